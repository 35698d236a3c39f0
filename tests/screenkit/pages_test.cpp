#include <QTabWidget>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

/// Two pages of entries, one of results between them, and a button like one that opens a screen.
class Paged : public Screen {
public:
    explicit Paged(Workplace& work) : Screen(work, "frmPaged", "Paged", untracked()) {
        const auto entry = [this](const char* name, int at) { return number(name, m_figures[at], money); };
        book = tabs("tabBook", {{"&First", form({{"&A", entry("numA", 0)}, {"&B", entry("numB", 1)}})},
                                {"&Sums", form({{"Sum", result("numSum", m_figures[2], money)}})},
                                {"&Last", form({{"&C", entry("numC", 3)}, {"&D", entry("numD", 4)}})}});
        body(column({book, row({button("cmdOther", "&Other", [this] { ++opened; }), okButton("cmdOK", "O&K")})}));
        panel = Screen::panel("fraOver", "Over", form({{"&E", entry("numE", 5)}}),
                              {cancelButton("cmdBack", "Ba&ck", [this] { panel->close(); })});
    }
    QTabWidget* book;
    Panel* panel;
    int opened = 0;

private:
    double m_figures[6] = {};
};

struct TabPages : KitTest {
    Paged* paged = bring(new Paged(bench.workplace));
};

TEST_F(TabPages, EnterGoesFromTheLastFieldOfAPageToTheNextPageThatHasAny) {
    for (const char* next : {"numB", "numC", "numD"})
        EXPECT_EQ(after("Return"), next);
    EXPECT_EQ(paged->book->currentIndex(), 2);
    act("Return");
    EXPECT_EQ(paged->opened, 0);
}

TEST_F(TabPages, KeysThatTurnToAPageLeadTheFocusIntoIt) {
    const std::pair<const char*, const char*> steps[] = {
        {"Alt+L", "numC"},         {"Alt+S", "numSum"},     {"Alt+F", "numA"},       {"Alt+F", "numA"},
        {"Ctrl+PgDown", "numSum"}, {"Ctrl+PgDown", "numC"}, {"Ctrl+PgDown", "numA"}, {"Ctrl+PgUp", "numC"}};
    for (const auto& [keys, leadTo] : steps)
        EXPECT_EQ(after(keys), leadTo) << keys;
    go("cmdOther");
    EXPECT_EQ(after("Ctrl+PgUp"), "numSum");

    paged->panel->open(get("numE"));
    EXPECT_EQ(after("Ctrl+PgUp"), "numE") << "the pages lie below the panel";
    EXPECT_EQ(paged->book->currentIndex(), 1);
}

} // namespace
} // namespace screenkit
