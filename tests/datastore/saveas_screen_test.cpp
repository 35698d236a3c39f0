#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class SaveAs : public testing::Test {
protected:
    SaveAs() {
        run.menu("mnuNewFile");
        run.typeAll("txtCTitle Mr, txtCInit P J, txtCLName O'Brien, dtCDOB 17/03/1960, txtDescription met at the show");
        run.menu("mnuSave");
        run.menu("mnuSaveAs");
    }
    RunningProgram run;
};

TEST_F(SaveAs, EditsAPrivateCopyThatCancelForgets) {
    run.expectShown("txtName Mr P J O'Brien, dtCDOB 17/03/1960, txtDescription met at the show");
    run.type("txtCTitle", "  Dr ");
    EXPECT_EQ(run.shown("txtName"), "Dr P J O'Brien");
    run.type("txtCInit", "");
    run.type("txtCLName", "Êksteen");
    EXPECT_EQ(run.shown("txtName"), "Dr  Êksteen");
    run.type("txtDescription", "");
    run.type("dtCDOB", "");
    run.menu("mnuPersDet"); // to another screen and back: what was typed stays
    EXPECT_EQ(run.shown("txtCLName"), "O'Brien");
    run.menu("mnuSaveAs");
    EXPECT_EQ(run.shown("txtName"), "Dr  Êksteen");
    run.click("cmdCancel");
    EXPECT_EQ(run.record().client.Name, "Mr P J O'Brien");
    EXPECT_EQ(run.record().details.Description, "met at the show");
    assessment::CheckChanges(run.record());
    EXPECT_EQ(run.record().ClientChanged, 0);
    EXPECT_EQ(run.inClients("SELECT count(*) FROM [Data]"), "1");
    run.menu("mnuSaveAs");
    run.menu("mnuNewFile");
    run.menu("mnuSaveAs"); // takes its copy afresh
    run.expectShown("txtName , txtCLName ");
}

TEST_F(SaveAs, MakesANewClientOnceItCanAndLeavesTheOldOneAlone) {
    const std::string old = "SELECT * FROM [PersDetails] WHERE DCLNO=1";
    const std::string before = run.inClients(old);
    run.type("txtCLName", "");
    const auto box = run.desk.told([this] { run.click("cmdOK"); });
    EXPECT_EQ(box.text, "To save a file a Name is required !");
    EXPECT_EQ(box.title, "No Last Name !");
    EXPECT_EQ(run.focused(), "txtCLName");

    run.type("txtCLName", "Ṱhoho-Nḓou");
    run.type("dtCDOB", "");
    run.inClients("CREATE TRIGGER stop BEFORE INSERT ON [PersDetails] BEGIN SELECT RAISE(ABORT, 'stopped'); END");
    run.desk.told([this] { run.click("cmdOK"); });
    EXPECT_TRUE(run.isOpen("frmSaveFileAs"));
    EXPECT_EQ(run.record().client.Name, "Mr P J O'Brien"); // a failed save leaves the old client in hand
    EXPECT_EQ(run.record().ClientOnFile, 1);
    EXPECT_EQ(run.record().DCLNO, 1);

    run.inClients("DROP TRIGGER stop");
    run.click("cmdOK");
    EXPECT_FALSE(run.isOpen("frmSaveFileAs"));
    EXPECT_EQ(run.inClients(old), before);
    EXPECT_EQ(run.inClients("SELECT [DCLNO], [Name], [BirthDate] FROM [PersDetails] WHERE DCLNO<>1"),
              "2|Mr P J Ṱhoho-Nḓou|-36522");
    EXPECT_EQ(run.record().DCLNO, 2);
    EXPECT_EQ(run.record().ClientOnFile, 1);
    EXPECT_EQ(run.clientName(), "Mr P J Ṱhoho-Nḓou");
    EXPECT_EQ(run.shown("txtCLName"), "Ṱhoho-Nḓou"); // personal details shows the new client

    run.type("txtCInit", "T");
    run.menu("mnuSave"); // saves the new client
    EXPECT_EQ(run.inClients("SELECT [CInit] FROM [PersDetails] ORDER BY DCLNO"), "P J\nT");
}

} // namespace
