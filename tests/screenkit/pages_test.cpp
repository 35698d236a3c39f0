#include <QTabWidget>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

/// Two pages of entries with one of results between them, and a button that stands in for one that opens a screen.
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

class TabPages : public testing::Test {
protected:
    TabPages() {
        new AccessKeys(&window);
        window.setCentralWidget(&area);
        area.addSubWindow(screen);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        screen->activate();
    }
    std::string after(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(window.windowHandle(), key, with);
        QCoreApplication::processEvents();
        return QApplication::focusWidget()->objectName().toStdString();
    }
    TestDesk desk;
    Workbench bench{desk};
    QMainWindow window;
    QMdiArea area;
    Paged* screen = new Paged(bench.workplace);
};

TEST_F(TabPages, EnterGoesFromTheLastFieldOfAPageToTheNextPageThatHasAny) {
    EXPECT_EQ(after(Qt::Key_Return), "numB");
    EXPECT_EQ(after(Qt::Key_Return), "numC");
    EXPECT_EQ(screen->book->currentIndex(), 2);
    EXPECT_EQ(after(Qt::Key_Enter), "numD");
    after(Qt::Key_Return);
    EXPECT_EQ(screen->opened, 0);
}

TEST_F(TabPages, KeysThatTurnToAPageLeadTheFocusIntoIt) {
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifier with;
        const char* focus;
    };
    const Step steps[] = {{Qt::Key_L, Qt::AltModifier, "numC"},
                          {Qt::Key_S, Qt::AltModifier, "numSum"},
                          {Qt::Key_F, Qt::AltModifier, "numA"},
                          {Qt::Key_F, Qt::AltModifier, "numA"},
                          {Qt::Key_PageDown, Qt::ControlModifier, "numSum"},
                          {Qt::Key_PageDown, Qt::ControlModifier, "numC"},
                          {Qt::Key_PageDown, Qt::ControlModifier, "numA"},
                          {Qt::Key_PageUp, Qt::ControlModifier, "numC"}};
    for (const Step& step : steps)
        EXPECT_EQ(after(step.key, step.with), step.focus) << step.key;
    screen->findChild<QWidget*>("cmdOther")->setFocus();
    EXPECT_EQ(after(Qt::Key_PageUp, Qt::ControlModifier), "numSum");

    screen->panel->open(screen->findChild<QWidget*>("numE"));
    EXPECT_EQ(after(Qt::Key_PageUp, Qt::ControlModifier), "numE") << "the pages lie below the panel";
    EXPECT_EQ(screen->book->currentIndex(), 1);
}

TEST_F(TabPages, TheLetterOfTheFieldThatHasTheFocusSelectsIt) {
    auto* field = screen->findChild<QLineEdit*>("numA");
    field->deselect();
    EXPECT_EQ(after(Qt::Key_A, Qt::AltModifier), "numA");
    EXPECT_EQ(field->selectedText(), field->text());
}

} // namespace
} // namespace screenkit
