#include <QLabel>

#include "screenkit/kit_screen.h"
#include "screenkit/trouble.h"

namespace screenkit {
namespace {

struct PanelTest : KitTest {
    void openPrint() {
        click("cmdPrint");
        ASSERT_TRUE(screen->print->isVisible());
        ASSERT_EQ(focus(), "Check3");
    }
    bool inPanel() { return screen->print->isAncestorOf(QApplication::focusWidget()); }
};

TEST_F(PanelTest, whatLiesBelowIsOutOfReach) {
    go("numAmount");
    openPrint();
    EXPECT_TRUE(desk.boxes.empty());
    for (int i = 0; i < 12; ++i) {
        key(i < 6 ? Qt::Key_Tab : Qt::Key_Backtab);
        EXPECT_TRUE(inPanel()) << focus();
    }
    for (const char* name : {"cmdRun", "numAmount", "chkSmokes", "cmdOK", "cmdCancel"})
        click(get(name), QPoint(3, get(name)->height() / 2));
    act("Alt+K Alt+O Alt+D");
    EXPECT_TRUE(inPanel()) << focus();
    type("9");
    EXPECT_EQ(screen->runs + screen->cancels + screen->edits, 0);
    EXPECT_EQ(changed(), 0);

    EXPECT_EQ(after("Esc"), "cmdPrint") << "the focus comes back to where it was";
    EXPECT_FALSE(screen->print->isVisible());
    act("Alt+R");
    EXPECT_EQ(screen->runs, 1);
}

TEST_F(PanelTest, eachWayToPrintGoesWhereItSaysWhileTheUserIsTold) {
    std::vector<Destination> went;
    bool told = false;
    struct Painted : QObject {
        bool seen = false;
        bool eventFilter(QObject*, QEvent* event) override {
            seen = seen || event->type() == QEvent::Paint;
            return false;
        }
    } painted;
    auto* processing = get<QLabel>("lblProcessing");
    processing->installEventFilter(&painted);
    screen->printed = [&](Destination to) {
        went.push_back(to);
        told = painted.seen && processing->isVisible() && processing->text() == " PROCESSING !" &&
               screen->print->rect().contains(processing->geometry()) && processing->height() > 5;
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    };
    const std::pair<const char*, Destination> ways[] = {{"Return", Destination::preview}, // the default
                                                        {"@cmdPD", Destination::printer},
                                                        {"Alt+V", Destination::preview},
                                                        {"Tab Tab Enter", Destination::printer}}; // by its own button
    for (const auto& [way, to] : ways) {
        SCOPED_TRACE(way);
        went.clear();
        painted.seen = told = false;
        openPrint();
        act(way);
        EXPECT_EQ(went, std::vector{to});
        EXPECT_TRUE(told);
        EXPECT_FALSE(screen->print->isVisible());
        EXPECT_TRUE(processing->isHidden());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(focus(), "cmdPrint");
    }
    went.clear();
    act("@cmdPrint @Check3 @cmdPrintCancel");
    EXPECT_EQ(places.withNotes, 1);
    EXPECT_EQ(changed(), 0) << "how to print is no fact about the client";
    EXPECT_TRUE(went.empty());
}

TEST_F(PanelTest, theGridIsWalkedByKeysAndItsRowsAreCopiedFromTheTop) {
    screen->table({{1, 1000.5}, {2, 2000.125}, {3, -3}});
    EXPECT_EQ(after(""), "grdPayments");
    auto* grid = get<Grid>("grdPayments");
    act("Ctrl+Up Ctrl+Space Down Down Shift+Up Ctrl+C"); // selects upwards
    EXPECT_EQ(QApplication::clipboard()->text(), "Year\tBalance\n2\t2 000.12\n3\t-3.00");
    EXPECT_EQ(after("Tab"), "cmdGridClose") << "Tab leaves the table";
    EXPECT_EQ(after("Tab"), "grdPayments");
    EXPECT_EQ(after("Return"), "cmdOK");
    EXPECT_FALSE(grid->isVisible());
    EXPECT_EQ(grid->model()->rowCount(), 0) << "closing empties it";
    for (int i = 0; i < 3; ++i) {
        screen->table({});
        EXPECT_EQ(after("Esc"), "cmdOK");
    }
    EXPECT_EQ(grid->findChildren<QAbstractItemModel*>().size(), 1) << "each showing cleans up the one before";
}

} // namespace
} // namespace screenkit
