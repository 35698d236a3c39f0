#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using shelltest::RunningProgram;

/// Makes every save fail at the client's second table until the table is repaired.
class FailingSave {
public:
    explicit FailingSave(const std::filesystem::path& file) : m_file(file) {
        run("CREATE TRIGGER stop BEFORE INSERT ON [PersDetails] BEGIN SELECT RAISE(ABORT, 'stopped'); END");
    }
    ~FailingSave() { run("DROP TRIGGER stop"); }

private:
    void run(const std::string& sql) { store::Database(m_file).execute(sql); }
    std::filesystem::path m_file;
};

TEST(NewFile, AsksNothingWithoutChangesAndOpensPersonalDetails) {
    RunningProgram run;
    run.saveClient("Botha");
    run.menu("mnuLoansCalc");
    run.menu("mnuNewFile");
    EXPECT_TRUE(run.desk.boxes.empty());
    EXPECT_EQ(run.window().screens().size(), 1);
    EXPECT_EQ(run.front()->objectName(), "frmPersDet");
    EXPECT_EQ(run.shown("txtCLName"), "");
    EXPECT_EQ(run.clientName(), "");
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().DCLNO, 0);
}

TEST(NewFile, CancelLeavesAllAsItWasAndNoDropsTheChanges) {
    RunningProgram run;
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

    run.asked("mnuNewFile", Answer::no);
    EXPECT_EQ(run.shown("txtCLName"), "");
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "0");
    EXPECT_EQ(run.record().ClientChanged, 0);
}

TEST(NewFile, YesSavesAndLeavesABlankClientWithNoScreenOpen) {
    RunningProgram run;
    run.menu("mnuLoansCalc");
    run.menu("mnuPersDet");
    run.type("txtCLName", "Botha");
    run.asked("mnuNewFile", Answer::yes);
    EXPECT_EQ(run.inClients("SELECT [CLName] FROM [PersDetails]"), "Botha");
    EXPECT_TRUE(run.window().screens().isEmpty());
    EXPECT_EQ(run.clientName(), "");
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().details.CLName, "");
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
    const auto nameless = failsToSave();
    EXPECT_EQ(nameless.text, "To save a file a Name is required !");
    EXPECT_EQ(nameless.title, "No Name !");
    run.type("txtCLName", "Botha");
    {
        const FailingSave failing(run.folder / "Data.Mdb");
        const auto failed = failsToSave();
        EXPECT_EQ(failed.title, "Marlowbeck");
        EXPECT_TRUE(failed.text.contains("Data.Mdb")) << failed.text.toStdString();
        EXPECT_EQ(run.record().changed.PersDetChanged, 1);
    }
    run.menu("mnuSave");
    EXPECT_EQ(run.shown("txtCLName"), "Botha");
    EXPECT_EQ(run.record().loans.Num1, 100000);
    EXPECT_EQ(run.record().ClientOnFile, 1);
    EXPECT_EQ(run.inClients("SELECT [DCLNO], [CLName] FROM [PersDetails]"), "1|Botha");
}

TEST(Save, AsksForANameOfMoreThanBlanks) {
    RunningProgram run;
    for (const char* name : {"", "   "}) {
        EXPECT_EQ(run.asked("mnuSave", Answer::ok).title, "No Name !");
        EXPECT_EQ(run.front()->objectName(), "frmPersDet");
        run.type("txtCLName", name);
    }
    EXPECT_EQ(run.asked("mnuSave", Answer::ok).title, "No Name !");
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "0");
}

TEST(Screens, OpeningAndClosingEachLeavesTheClientUnchanged) {
    RunningProgram run;
    run.saveClient("Botha");
    for (const char* item : {"mnuPersDet", "mnuPolInvests", "mnuNARA", "mnuLoansCalc", "mnuQuickTax", "mnuPAYE",
                             "mnuPrep", "mnuBrowse", "mnuSaveAs", "mnuContents"}) {
        run.menu(item);
        run.front()->parentWidget()->close();
        RunningProgram::settle();
        EXPECT_TRUE(run.window().screens().isEmpty() || item == std::string("mnuPersDet")) << item;
        assessment::CheckChanges(run.record());
        EXPECT_EQ(run.record().ClientChanged, 0) << item;
    }
    EXPECT_TRUE(run.desk.boxes.empty());
}

} // namespace
