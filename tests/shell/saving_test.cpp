#include "shell/running_program.h"

/// The questions to the user if another program has changed the file.
namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class Saving : public testing::Test {
protected:
    Saving() {
        run.saveClient("Botha");
        run.type("txtDescription", "typed here");
    }
    void meanwhile(const std::string& sql) { store::Database(run.folder / "Data.Mdb").execute(sql); }
    std::string description() { return run.inClients("SELECT [Description] FROM [PersDetails] ORDER BY DCLNO"); }
    RunningProgram run;
};

TEST_F(Saving, OffersSaveAsIfTheFileHoldsAnotherClient) {
    meanwhile("UPDATE PersDetails SET Name='Ms T Nkosi', BirthDate=25569, Description='of another'");
    for (const Answer answer : {Answer::no, Answer::yes}) {
        const QString asks = run.asked("mnuSave", answer).text;
        EXPECT_TRUE(asks.startsWith("Client 1 in the file is now Ms T Nkosi (born 01/01/1970) and no longer Botha."));
        EXPECT_EQ(description(), "of another");
        EXPECT_EQ(run.isOpen("frmSaveFileAs"), answer == Answer::yes);
    }
    run.click("cmdOK");
    EXPECT_EQ(description(), "of another\ntyped here");
    EXPECT_EQ(run.record().DCLNO, 2);
}

TEST_F(Saving, AsksBeforeItWritesOverAnotherProgramsChanges) {
    meanwhile("UPDATE PersDetails SET Description='typed there'");
    EXPECT_EQ(run.asked("mnuSave", Answer::no).defaultAnswer, Answer::no);
    EXPECT_EQ(description(), "typed there");
    EXPECT_EQ(run.shown("txtDescription"), "typed here");
    run.desk.expect(Answer::yes); // to the question of New whether to save
    run.desk.expect(Answer::yes);
    run.menu("mnuNewFile");
    EXPECT_EQ(description(), "typed here");
    EXPECT_EQ(run.record().client.Name, ""); // the new client, for which it was saved
}

} // namespace
