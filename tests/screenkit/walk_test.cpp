#include <QScrollArea>
#include <QScrollBar>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

const std::vector<std::string> tabOrder{"numAmount", "numMonths", "numCount",  "numShares",  "numRate",
                                        "dtDay",     "txtName",   "txtNotes",  "optMode(0)", "cmdBetween",
                                        "chkSmokes", "cmdRun",    "cmdCancel", "cmdPrint",   "cmdOK"};

TEST_F(KitTest, tabFollowsTheDeclarationRoundAndBack) {
    EXPECT_EQ(focus(), tabOrder.front()) << "a screen opens on its first field";
    for (std::size_t i = 1; i <= tabOrder.size(); ++i) {
        EXPECT_EQ(after("Tab"), tabOrder[i % tabOrder.size()]);
    }
    for (std::size_t i = tabOrder.size(); i-- > 0;) {
        EXPECT_EQ(after("Backtab"), tabOrder[i]);
    }
}

TEST_F(KitTest, enterWalksTheFieldsAndTheLastPressesTheDefaultButton) {
    for (const auto& name : tabOrder) {
        if (name.starts_with("cmd")) continue; // Enter goes from field to field, past the buttons between
        EXPECT_EQ(focus(), name);
        EXPECT_EQ(screen->runs, 0);
        act(name == "txtNotes" ? "Tab" : "Return"); // Enter is a new line there
    }
    EXPECT_EQ(screen->runs, 1);
    EXPECT_EQ(focus(), "chkSmokes");
    go("cmdCancel");
    act("Num+Enter");
    EXPECT_EQ(screen->cancels, 1) << "on a button Enter presses that one";
    EXPECT_EQ(screen->runs, 1);

    go("numRate");
    EXPECT_EQ(after("Return"), "dtDay") << "past the result";
    go("numAmount");
    act("Return Alt+7");
    EXPECT_EQ(selected(), text("numMonths")) << "a key that leads nowhere is not typed over the selection";
}

TEST_F(KitTest, inASmallWindowWithLargeLettersTheFocusIsAlwaysInView) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2);
    QApplication::setFont(large);
    child->resize(420, 260);
    settle();
    auto* scroll = screen->findChild<QScrollArea*>();
    ASSERT_GT(scroll->verticalScrollBar()->maximum(), 0);
    const auto inView = [&] {
        auto* now = QApplication::focusWidget();
        const QRect seen = scroll->viewport()->rect();
        const QRect there(now->mapTo(scroll->viewport(), QPoint()), now->size());
        return seen.intersects(there) &&
               (there.height() > seen.height() || (seen.top() <= there.top() && seen.bottom() >= there.bottom()));
    };
    for (const char* pressed : {"Tab", "Return"}) {
        go("numAmount");
        for (std::size_t i = 0; i < tabOrder.size(); ++i)
            EXPECT_TRUE(after(pressed) != "" && inView()) << focus();
    }
    go("cmdOK");
    EXPECT_EQ(after("Alt+A"), "numAmount");
    EXPECT_TRUE(inView()) << "by access key";
    enter("numMonths", "700");
    scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
    desk.expect(Answer::ok);
    EXPECT_EQ(after("@cmdRun"), "numMonths");
    EXPECT_TRUE(inView()) << "after its box";
    enter("numMonths", "7");
    QApplication::setFont(before);
}

} // namespace
} // namespace screenkit
