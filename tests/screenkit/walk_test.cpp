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
        if (name.starts_with("cmd")) continue; // Enter skips the buttons between the fields
        EXPECT_EQ(focus(), name);
        EXPECT_EQ(screen->runs, 0);
        act(name == "txtNotes" ? "Tab" : "Return"); // Enter adds a line there
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
    for (const char* named : {"dtDay", "optMode(0)", "dtDay"})
        EXPECT_EQ(after("Alt+D"), named) << "a letter of two captions leads to each in turn";
}

// The toolkit shows a field that Tab leads to, but neither the next one of Enter nor one that is complained of.
TEST_F(KitTest, inASmallWindowTheFocusComesIntoView) {
    child->resize(420, 260);
    settle();
    EXPECT_FALSE(isSeenWhole("txtName"));
    EXPECT_EQ(after("Return Return Return Return Return Return"), "txtName");
    EXPECT_TRUE(isSeenWhole("txtName"));
    enter("numMonths", "700");
    auto* bar = screen->findChild<QScrollArea*>()->verticalScrollBar();
    bar->setValue(bar->maximum());
    desk.told([this] { click("cmdRun"); });
    EXPECT_TRUE(isSeenWhole("numMonths"));
    enter("numMonths", "7");
}

} // namespace
} // namespace screenkit
