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
    for (const Qt::Key letter : {Qt::Key_R, Qt::Key_A, Qt::Key_K, Qt::Key_O, Qt::Key_D})
        if (letter != Qt::Key_R && letter != Qt::Key_A) key(letter, Qt::AltModifier); // those two are the panel's own
    EXPECT_TRUE(inPanel()) << focus();
    type("9");
    EXPECT_EQ(screen->runs + screen->cancels + screen->edits, 0);
    EXPECT_EQ(changed(), 0);

    key(Qt::Key_Escape);
    EXPECT_FALSE(screen->print->isVisible());
    EXPECT_EQ(focus(), "cmdPrint") << "the focus comes back to where it was";
    EXPECT_TRUE(get("numAmount")->isEnabled());
    key(Qt::Key_R, Qt::AltModifier);
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
    const struct {
        const char* way;
        std::function<void()> act;
        Destination to;
    } ways[] = {{"Enter: the default", [this] { key(Qt::Key_Return); }, Destination::preview},
                {"mouse", [this] { click("cmdPD"); }, Destination::printer},
                {"access key", [this] { key(Qt::Key_V, Qt::AltModifier); }, Destination::preview},
                {"Enter on a button",
                 [this] {
                     go("cmdPD");
                     key(Qt::Key_Enter);
                 },
                 Destination::printer}};
    for (const auto& w : ways) {
        SCOPED_TRACE(w.way);
        went.clear();
        painted.seen = told = false;
        openPrint();
        w.act();
        EXPECT_EQ(went, std::vector{w.to});
        EXPECT_TRUE(told);
        EXPECT_FALSE(screen->print->isVisible());
        EXPECT_TRUE(processing->isHidden());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(focus(), "cmdPrint");
    }
    openPrint();
    click(get("Check3"), QPoint(8, get("Check3")->height() / 2));
    EXPECT_EQ(places.withNotes, 1);
    EXPECT_EQ(changed(), 0) << "how to print is no fact about the client";
    went.clear();
    click("cmdPrintCancel");
    EXPECT_TRUE(went.empty());
}

TEST_F(PanelTest, aReportThatFailsShowsOneBoxAndLeavesTheScreenUsable) {
    screen->printed = [](Destination) { throw store::Error(store::Number::diskFull, "/practice/Print.mdb"); };
    openPrint();
    desk.expect(Answer::ok);
    click("cmdVR");
    ASSERT_EQ(desk.boxes.size(), 1U);
    EXPECT_EQ(desk.last().style, BoxStyle::critical);
    EXPECT_EQ(desk.last().title, "Marlowbeck");
    EXPECT_TRUE(desk.last().text.startsWith("Marlowbeck could not make the report."));
    EXPECT_TRUE(desk.last().text.contains("/practice/Print.mdb"));
    EXPECT_FALSE(screen->print->isVisible());
    EXPECT_TRUE(get<QLabel>("lblProcessing")->isHidden());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(focus(), "cmdPrint");
    click("cmdRun");
    EXPECT_EQ(screen->runs, 1);
}

TEST_F(PanelTest, theGridIsWalkedByKeysAndItsRowsAreCopiedFromTheTop) {
    screen->table({{1, 1000.5}, {2, 2000.125}, {3, -3}});
    settle();
    EXPECT_EQ(focus(), "grdPayments");
    auto* grid = get<Grid>("grdPayments");
    EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal), "Year");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Up, Qt::ShiftModifier); // picked upwards
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Year\tBalance\n2\t2 000.12\n3\t-3.00");
    key(Qt::Key_Up, Qt::ControlModifier); // the first row, picked last
    key(Qt::Key_Space, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Year\tBalance\n1\t1 000.50\n2\t2 000.12\n3\t-3.00");
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Year\tBalance\n1\t1 000.50\n2\t2 000.12\n3\t-3.00");

    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cmdGridClose") << "Tab leaves the table";
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "grdPayments");
    key(Qt::Key_Return);
    EXPECT_FALSE(grid->isVisible());
    EXPECT_EQ(grid->model()->rowCount(), 0) << "closing empties it";
    EXPECT_EQ(focus(), "cmdOK");
    for (int i = 0; i < 3; ++i) {
        screen->table({});
        key(Qt::Key_Escape);
        EXPECT_EQ(focus(), "cmdOK");
    }
    EXPECT_EQ(grid->findChildren<QAbstractItemModel*>().size(), 1) << "each showing cleans up the one before";
}

} // namespace
} // namespace screenkit
