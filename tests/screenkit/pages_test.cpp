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

/// Two calculations, a page each, and a table over a panel.
class Separate : public Screen {
public:
    explicit Separate(Workplace& work) : Screen(work, "frmSeparate", "Separate", work.record.changed.LoansChanged) {
        auto* unsaved = number("numB", m_figures[2], money);
        unsavedField(unsaved);
        auto* sumA = result("numSumA", m_figures[1], money);
        auto* sumB = result("numSumB", m_figures[3], money);
        for (auto* sum : {sumA, sumB})
            showsCalculated(sum);
        auto* book = tabs("tabBook", {{"&First", form({{"&A", number("numA", m_figures[0], money)}, {"Sum", sumA}})},
                                      {"&Last", form({{"&B", unsaved}, {"Sum", sumB}})}});
        worksByPage(book);
        auto* run = button("cmdRun", "&Run", [this, book] { calculated(book->currentIndex()); });
        body(column({book, run}));
        defaultButton(run);
        panel = Screen::panel("fraUnder", "Under",
                              form({{"&C", button("cmdTable", "&Table",
                                                  [this] {
                                                      showGrid("Table", {{"Year", "##"}}, {{1}}, nullptr);
                                                  })}}),
                              {cancelButton("cmdBack", "Ba&ck", [this] { panel->close(); })});
    }
    Panel* panel;

protected:
    void edited() override { ++edits; }
    void filled() override {
        for (const int page : {0, 1})
            calculated(page);
    }

private:
    double m_figures[4] = {};

public:
    int edits = 0;
};

struct SeparatePages : KitTest {
    std::string stale() {
        std::string lines;
        for (const char* line : {"numSumA", "numSumB"})
            if (get<QLineEdit>(line)->font().italic()) lines += line;
        return lines;
    }
    Separate* pages = bring(new Separate(bench.workplace));
};

TEST_F(SeparatePages, EachPageIsCalculatedByItself) {
    enter("numA", "5");
    EXPECT_EQ(stale(), "numSumA");
    EXPECT_EQ(std::exchange(changed(), 0), 1);
    act("Alt+L");
    enter("numB", "6");
    EXPECT_EQ(stale(), "numSumAnumSumB");
    EXPECT_EQ(changed(), 0) << "nothing of the client";
    EXPECT_EQ(pages->edits, 2);
    EXPECT_EQ(after("Return"), "numB");
    EXPECT_EQ(stale(), "numSumA");
    act("Alt+F");
    EXPECT_EQ(after("Return"), "numA") << "not to the next page";
    EXPECT_EQ(stale(), "");
}

TEST_F(SeparatePages, ATableOverAPanelLeavesBothInTurn) {
    pages->panel->open();
    EXPECT_EQ(after("@cmdTable"), "grdPayments");
    EXPECT_FALSE(get("cmdTable")->isEnabled());
    EXPECT_EQ(after("Esc"), "cmdTable");
    EXPECT_FALSE(get("numA")->isEnabled()) << "still below the panel";
    act("Esc");
    EXPECT_TRUE(get("numA")->isEnabled());
}

} // namespace
} // namespace screenkit
