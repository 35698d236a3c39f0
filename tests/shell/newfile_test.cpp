#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using shelltest::RunningProgram;

TEST(NewFile, AsksAboutChangesWhichCancelLeavesYesSavesAndNoDrops) {
    RunningProgram run;
    run.menu("mnuLoansCalc");
    run.menu("mnuPersDet");
    run.type("txtCLName", "Botha");
    const auto box = run.asked("mnuNewFile", Answer::cancel);
    EXPECT_EQ(box.text, "Current changes have not been saved. Do you want to save them. ?");
    EXPECT_EQ(box.title, "NEW ?");
    EXPECT_EQ(box.style, BoxStyle::question);
    EXPECT_EQ(box.buttons, Buttons::yesNoCancel);
    EXPECT_EQ(run.shown("txtCLName"), "Botha");
    EXPECT_EQ(run.clientName(), "  Botha");
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);
    EXPECT_EQ(run.record().SaveThenNew, 0);

    run.asked("mnuNewFile", Answer::yes);
    EXPECT_EQ(run.inClients("SELECT [CLName] FROM [PersDetails]"), "Botha");
    EXPECT_TRUE(run.window().screens().isEmpty()); // a blank client with no screen open
    EXPECT_EQ(run.clientName(), "");
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().details.CLName, "");

    run.menu("mnuPersDet");
    run.type("txtCLName", "Cele");
    run.asked("mnuNewFile", Answer::no);
    EXPECT_EQ(run.shown("txtCLName"), "");
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "1");
    EXPECT_EQ(run.record().ClientChanged, 0);

    run.desk.boxes.clear();
    run.saveClient("Dube");
    run.menu("mnuLoansCalc");
    run.menu("mnuNewFile"); // nothing to ask about
    EXPECT_TRUE(run.desk.boxes.empty());
    EXPECT_EQ(run.window().screens().size(), 1);
    EXPECT_EQ(run.front()->objectName(), "frmPersDet");
    EXPECT_EQ(run.record().DCLNO + run.record().ClientOnFile, 0);
}

TEST(NewFile, ASaveForItThatFailsIsForgottenByTheNextPlainOne) {
    RunningProgram run;
    run.menu("mnuLoansCalc");
    run.type("numPrinAmount", "100000");
    const auto failsToSave = [&] {
        run.desk.expect(Answer::yes);
        run.desk.expect(Answer::ok);
        run.menu("mnuNewFile");
        EXPECT_EQ(run.front()->objectName(), "frmPersDet");
        EXPECT_EQ(run.record().ClientOnFile, 0);
        return run.desk.last();
    };
    for (const char* name : {"", "   "}) {
        const auto nameless = failsToSave();
        EXPECT_EQ(nameless.text, "To save a file a Name is required !");
        EXPECT_EQ(nameless.title, "No Name !");
        run.type("txtCLName", name);
    }
    EXPECT_EQ(run.asked("mnuSave", Answer::ok).title, "No Name !"); // blanks are no name
    run.type("txtCLName", "Botha");
    run.inClients("CREATE TRIGGER stop BEFORE INSERT ON [PersDetails] BEGIN SELECT RAISE(ABORT, 'stopped'); END");
    const auto failed = failsToSave();
    EXPECT_EQ(failed.title, "Marlowbeck");
    EXPECT_TRUE(failed.text.contains("Data.Mdb")) << failed.text.toStdString();
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);
    run.inClients("DROP TRIGGER stop");
    run.menu("mnuSave");
    EXPECT_EQ(run.shown("txtCLName"), "Botha");
    EXPECT_EQ(run.record().loans.Num1, 100000);
    EXPECT_EQ(run.record().ClientOnFile, 1);
    EXPECT_EQ(run.inClients("SELECT [DCLNO], [CLName] FROM [PersDetails]"), "1|Botha");
}

} // namespace
