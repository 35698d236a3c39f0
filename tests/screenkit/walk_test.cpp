#include <QAbstractButton>
#include <QLabel>
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
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), tabOrder[i % tabOrder.size()]);
    }
    for (std::size_t i = tabOrder.size(); i-- > 0;) {
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(focus(), tabOrder[i]);
    }
}

TEST_F(KitTest, enterWalksTheFieldsAndTheLastPressesTheDefaultButton) {
    for (const auto& name : tabOrder) {
        if (name.starts_with("cmd")) continue; // Enter goes from field to field, past the buttons between
        EXPECT_EQ(focus(), name);
        EXPECT_EQ(screen->runs, 0);
        if (name == "txtNotes")
            key(Qt::Key_Tab); // Enter is a new line there
        else
            key(Qt::Key_Return);
    }
    EXPECT_EQ(screen->runs, 1);
    EXPECT_EQ(focus(), "chkSmokes");
    go("cmdCancel");
    key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(screen->cancels, 1) << "on a button Enter presses that one";
    EXPECT_EQ(screen->runs, 1);

    go("numRate");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "dtDay") << "past the result";
    go("numAmount");
    key(Qt::Key_Return);
    EXPECT_EQ(selected(), text("numMonths"));
    const std::string held = text("numMonths");
    key(Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(text("numMonths"), held) << "a key that leads nowhere is not typed over the selection";
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
    go("numAmount");
    for (std::size_t i = 0; i <= tabOrder.size(); ++i) {
        key(Qt::Key_Tab);
        EXPECT_TRUE(inView()) << focus();
    }
    go("numAmount");
    for (int i = 0; i < 6; ++i) {
        key(Qt::Key_Return);
        EXPECT_TRUE(inView()) << focus();
    }
    go("cmdOK");
    key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(focus(), "numAmount");
    EXPECT_TRUE(inView()) << "by access key";
    enter("numMonths", "700");
    scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
    desk.expect(Answer::ok);
    click("cmdRun");
    EXPECT_EQ(focus(), "numMonths");
    EXPECT_TRUE(inView()) << "after its box";
    enter("numMonths", "7");
    QApplication::setFont(before);
}

} // namespace
} // namespace screenkit
