#include <gtest/gtest.h>

#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using shelltest::RunningProgram;

constexpr const char* sure = "Are you sure you want to exit ?";
constexpr const char* unsaved = "Current changes have not been saved. Do you still want to exit. ?";

TEST(Close, AsksOnceWhenNothingIsUnsaved) {
    RunningProgram run;
    run.menu("mnuPersDet");
    run.desk.expect(Answer::no);
    run.menu("mnuExit");
    EXPECT_EQ(run.desk.last().text, sure);
    EXPECT_EQ(run.desk.last().title, "EXIT ?");
    EXPECT_EQ(run.desk.last().style, BoxStyle::question);
    EXPECT_EQ(run.desk.last().buttons, Buttons::yesNo);
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_TRUE(run.isOpen("frmPersDet")); // No leaves everything as it was

    run.desk.expect(Answer::yes);
    run.window().close();
    EXPECT_FALSE(run.window().isVisible());
    EXPECT_EQ(run.desk.boxes.size(), 2u);
}

TEST(Close, WarnsOfUnsavedChangesWithoutOfferingToSave) {
    RunningProgram run;
    run.menu("mnuNewFile");
    run.type("txtCLName", "Botha");
    run.desk.expect(Answer::yes);
    run.desk.expect(Answer::no);
    run.window().close();
    EXPECT_EQ(run.desk.last().text, unsaved);
    EXPECT_EQ(run.desk.last().title, "Exit ?");
    EXPECT_EQ(run.desk.last().buttons, Buttons::yesNo);
    EXPECT_EQ(run.desk.last().defaultAnswer, Answer::no);
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_EQ(run.shown("txtCLName"), "Botha");

    run.desk.expect(Answer::yes);
    run.desk.expect(Answer::yes);
    run.window().close();
    EXPECT_FALSE(run.window().isVisible());
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "0");
}

TEST(Close, WaitsForAFieldThatIsWrong) {
    RunningProgram run;
    run.menu("mnuLoansCalc");
    run.enter("numIntRate", "51");
    run.desk.expect(Answer::ok);
    run.window().close();
    EXPECT_EQ(run.desk.last().title, "Incorrect Interest Rate!");
    EXPECT_TRUE(run.window().isVisible());
}

// Each of these screens once asked the main window for something on its way out, when that was gone already.
TEST(Close, EndsCleanlyWithAnyScreenOpen) {
    for (const char* item : {"mnuBrowse", "mnuSaveAs", "mnuPersDet", "mnuPolInvests", "mnuNARA", "mnuLoansCalc",
                             "mnuQuickTax", "mnuPAYE", "mnuPrep", "mnuContents"}) {
        RunningProgram run;
        run.menu(item);
        run.desk.expect(Answer::yes);
        run.window().close();
        EXPECT_FALSE(run.window().isVisible()) << item;
    }
}

} // namespace
