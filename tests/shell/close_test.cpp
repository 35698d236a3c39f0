#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using shelltest::RunningProgram;

TEST(Close, AsksOnceAndOnceMoreWhereChangesAreNotSaved) {
    RunningProgram run;
    run.menu("mnuPersDet");
    const auto box = run.asked("mnuExit", Answer::no);
    EXPECT_EQ(box.text, "Are you sure you want to exit ?");
    EXPECT_EQ(box.title, "EXIT ?");
    EXPECT_EQ(box.style, BoxStyle::question);
    EXPECT_EQ(box.buttons, Buttons::yesNo);
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_TRUE(run.isOpen("frmPersDet")); // No leaves everything as it was
    run.type("txtCLName", "Botha");
    for (const Answer answer : {Answer::no, Answer::yes}) {
        run.desk.expect(Answer::yes);
        run.desk.expect(answer);
        run.window().close();
        EXPECT_EQ(run.desk.last().text, "Current changes have not been saved. Do you still want to exit. ?");
        EXPECT_EQ(run.desk.last().title, "Exit ?");
        EXPECT_EQ(run.desk.last().buttons, Buttons::yesNo);
        EXPECT_EQ(run.desk.last().defaultAnswer, Answer::no);
        EXPECT_EQ(run.window().isVisible(), answer == Answer::no);
        EXPECT_EQ(run.record().details.CLName, "Botha");
    }
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "0"); // it never offers to save
}

// Each of these screens used to call the main window while closing, when it was already destroyed.
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
