#include <filesystem>

#include "datastore/save.h"
#include "shell/running_program.h"

/// Backup, restore, transfer, deletion and the path of the clients, as the user meets them.
namespace {

namespace fs = std::filesystem;
using screenkit::Answer;
using screenkit::Buttons;
using shelltest::RunningProgram;
using storetest::bytesOf;

constexpr const char* writingProblem =
    "There is a problem Writing to the Chosen Media?\nPlease ensure that the Device is available and has sufficient "
    "space for the file.";

class DataCare : public testing::Test {
protected:
    DataCare() {
        fs::create_directory(stick);
        for (const char* surname : {"Adams", "O'Brien", "Cele"}) {
            assessment::Assessment client;
            client.details.CLName = client.client.Name = surname;
            datastore::Save(client, file);
        }
    }
    static QString name(const fs::path& path) { return QString::fromStdString(path.string()); }
    screenkit::Grid* list() { return run.control<screenkit::Grid>("List1"); }
    std::string clients(const fs::path& path) {
        return storetest::rowsOf(path, "SELECT CLName FROM PersDetails ORDER BY DCLNO");
    }
    /// Answers the boxes that `act` shows, in this order, and returns their texts and titles.
    std::vector<std::string> answered(std::initializer_list<Answer> answers, const std::function<void()>& act) {
        run.desk.boxes.clear();
        for (const Answer answer : answers)
            run.desk.expect(answer);
        act();
        RunningProgram::settle();
        std::vector<std::string> texts;
        for (const auto& box : run.desk.boxes)
            texts.push_back((box.title + ": " + box.text).toStdString());
        return texts;
    }
    std::vector<std::string> chosen(const QString& item, std::initializer_list<Answer> answers) {
        return answered(answers, [&] { run.menu(item); });
    }
    using Texts = std::vector<std::string>;

    RunningProgram run;
    const fs::path file = run.folder / "Data.Mdb", bak = run.folder / "Data.bak",
                   transfer = run.folder / "CopyData.Mdb", stick = run.folder / "Thandi's stick",
                   saved = stick / "Data.Mdb";
};

TEST_F(DataCare, BackupSavesOrDropsChangesFirstAndSaysHowItEnds) {
    run.loadClient("Adams");
    run.type("txtCFName", "Ann");
    const std::string asked = "BACKUP !: Current changes have not been saved. Do you want to save them. ?";
    EXPECT_EQ(chosen("mnuBackup", {Answer::cancel}), Texts{asked});
    EXPECT_EQ(run.record().details.CFName, "Ann");
    EXPECT_EQ(chosen("mnuBackup", {Answer::yes}), Texts{asked});
    EXPECT_EQ(run.inClients("SELECT CFName FROM PersDetails WHERE DCLNO=1"), "Ann");
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_FALSE(fs::exists(bak));

    run.desk.expectFile({});
    EXPECT_EQ(chosen("mnuBackup", {Answer::ok}), Texts{"Marlowbeck: User has cancelled the operation!"});
    EXPECT_EQ(run.desk.suggestedName, QDir::home().filePath("Data.Mdb"));
    EXPECT_TRUE(fs::exists(bak)) << "made before the question for the place";
    run.desk.expectFile(name(stick / "Data")); // the ending is added
    EXPECT_EQ(chosen("mnuBackup", {Answer::ok}), Texts{"Marlowbeck: Backing up of Database completed !"});
    EXPECT_EQ(clients(stick / "Data.mdb"), clients(file));

    const std::string faulty = std::string("Chosen Media Faulty!: ") + writingProblem;
    run.desk.expectFile(name(stick / "gone" / "Data.mdb"));
    EXPECT_EQ(chosen("mnuBackup", {Answer::ok, Answer::cancel}), (Texts{faulty, faulty}));
    EXPECT_EQ(run.desk.last().buttons, Buttons::okCancel);

    run.menu("mnuToA"); // it holds the file
    EXPECT_EQ(
        chosen("mnuBackup", {Answer::ok}),
        Texts{"Marlowbeck: Please ensure that all windows in Marlowbeck are closed and try the Backup data option "
              "again!"});
}

TEST_F(DataCare, WithTheClientsElsewhereBackupAndRestoreAskWhichFileIsMeant) {
    fs::copy_file(file, saved);
    storetest::rowsOf(saved, "DELETE FROM PersDetails WHERE DCLNO=3");
    run.window().useClientDb(saved);
    const std::string where = "The clients in use are in " + saved.string() + ". Do you want to ";
    const std::string used = bytesOf(saved);
    EXPECT_EQ(chosen("mnuBackup", {Answer::cancel}), Texts{"BACKUP !: " + where + "back up that file ?"});
    for (const auto& [answer, held] :
         {std::pair{Answer::no, "Adams\nO'Brien\nCele"}, {Answer::yes, "Adams\nO'Brien"}}) {
        run.desk.expectFile(name(stick / "copy.mdb"));
        EXPECT_EQ(chosen("mnuBackup", {answer, Answer::ok}).back(), "Marlowbeck: Backing up of Database completed !");
        EXPECT_EQ(clients(stick / "copy.mdb"), held);
    }
    EXPECT_EQ(bytesOf(saved), used);
    EXPECT_FALSE(fs::exists(run.folder / "NEWData.Mdb"));
    fs::remove(file);
    const Texts missing = chosen("mnuBackup", {Answer::no, Answer::ok});
    EXPECT_NE(missing.back().find("Error (3024)"), std::string::npos) << missing.back();

    run.desk.expectFile(name(stick / "copy.mdb"));
    const Texts confused = chosen("mnuRestore", {Answer::yes, Answer::no, Answer::ok});
    EXPECT_EQ(confused[1], "RESTORE !!: " + where + "restore into that file ?");
    EXPECT_TRUE(confused[2].starts_with("Path Error!: There is a problem Restoring?\nThe 'Look in'")) << confused[2];
    EXPECT_FALSE(fs::exists(file));
    storetest::rowsOf(saved, "DELETE FROM PersDetails WHERE DCLNO=1");
    run.desk.expectFile(name(stick / "copy.mdb"));
    EXPECT_EQ(chosen("mnuRestore", {Answer::yes, Answer::yes, Answer::ok}).back(),
              "Marlowbeck: Restoring of Database completed !");
    EXPECT_EQ(clients(saved), "Adams\nO'Brien");
}

TEST_F(DataCare, RestoreReplacesTheClientsOnlyByAGoodFile) {
    fs::copy_file(file, saved);
    storetest::rowsOf(saved, "DELETE FROM PersDetails WHERE DCLNO=3");
    storetest::rowsOf(saved, "INSERT INTO CPIDefault(CPI) VALUES(6.5)");
    run.loadClient("Adams");
    run.type("txtCFName", "Ann");
    EXPECT_EQ(chosen("mnuRestore", {Answer::no}).size(), 1U);
    EXPECT_EQ(run.desk.last().defaultAnswer, Answer::no);
    EXPECT_EQ(run.desk.last().title, "RESTORE !!");
    EXPECT_EQ(chosen("mnuRestore", {Answer::yes, Answer::cancel}).back(),
              "NEW ?: Current changes have not been saved. Do you want to save them. ?");
    EXPECT_EQ(run.record().details.CFName, "Ann");
    run.inClients("CREATE TRIGGER stop BEFORE UPDATE ON [Data] BEGIN SELECT RAISE(ABORT, 'stopped'); END");
    chosen("mnuRestore", {Answer::yes, Answer::yes, Answer::ok}); // a save that fails stops it too
    EXPECT_EQ(run.record().details.CFName, "Ann");
    run.inClients("DROP TRIGGER stop");
    run.desk.expectFile({});
    EXPECT_EQ(chosen("mnuRestore", {Answer::yes, Answer::no, Answer::ok}).back(),
              "Marlowbeck: User has cancelled the Restore operation!");

    const std::string before = bytesOf(file);
    storetest::put(stick / "text.mdb", std::string(500, 'x'));
    run.desk.expectFile(name(stick / "text.mdb"));
    EXPECT_EQ(chosen("mnuRestore", {Answer::yes, Answer::ok}).back(),
              "Chosen Media Faulty!: There is a problem Coping?\nPlease ensure that the Device is available and "
              "correctly plugged in/inserted!");
    EXPECT_EQ(run.desk.last().buttons, Buttons::ok);
    EXPECT_EQ(bytesOf(file), before);

    run.menu("mnuToA"); // closed first, so that it neither holds the file nor shows its clients
    run.desk.expectFile(name(saved));
    EXPECT_EQ(chosen("mnuRestore", {Answer::yes, Answer::ok}).back(), "Marlowbeck: Restoring of Database completed !");
    EXPECT_FALSE(run.isOpen("frmCOPYToA"));
    EXPECT_EQ(clients(file), "Adams\nO'Brien");
    EXPECT_EQ(run.record().CPI, 6.5);
    EXPECT_EQ(run.screen("frmPersDet")->findChild<QLineEdit*>("txtCFName")->text(), "");
    run.type("txtCLName", "Dube");
    run.menu("mnuSave");
    EXPECT_EQ(clients(file), "Adams\nO'Brien\nDube");
}

TEST_F(DataCare, DeletingAsksFirstAndNeverByEnter) {
    run.loadClient("Adams");
    run.menu("mnuDelete");
    run.click("cmdDelete"); // nobody is chosen
    EXPECT_EQ(run.focused(), "List1");
    run.enter("txtSearch", "brien");
    run.key(Qt::Key_Return);
    EXPECT_TRUE(list()->picked().empty());
    EXPECT_EQ(run.focused(), "List1");
    const auto choose = [&] {
        list()->pickFirst();
        return answered({Answer::no}, [&] { run.click("cmdDelete"); });
    };
    EXPECT_EQ(choose(), Texts{"Confirm Delete !: ARE YOU SURE YOU WANT TO DELETE THIS FILE !"});
    EXPECT_EQ(run.desk.last().defaultAnswer, Answer::no);
    answered({Answer::yes}, [&] { run.click("cmdDelete"); });
    EXPECT_EQ(clients(file), "Adams\nCele");
    EXPECT_TRUE(list()->picked().empty());
    run.enter("txtSearch", "adams");
    list()->pickFirst();
    answered({Answer::yes}, [&] { run.click("cmdDelete"); });
    EXPECT_EQ(run.record().ClientOnFile, 1) << "the client in memory is not touched";
    run.enter("txtSearch", "cele");
    list()->pickFirst();
    run.inClients("UPDATE PersDetails SET Name='Somebody else'");
    const Texts refused = answered({Answer::yes, Answer::ok}, [&] { run.click("cmdDelete"); });
    EXPECT_NE(refused.back().find("Error (3197)"), std::string::npos);
    EXPECT_EQ(clients(file), "Cele");
    run.click("cmdOK");
    EXPECT_FALSE(run.isOpen("frmDelete"));
}

TEST_F(DataCare, ChosenClientsAreCopiedToAMediumAndReadFromIt) {
    run.menu("mnuToA");
    EXPECT_TRUE(fs::exists(transfer));
    const auto copy = [&](std::initializer_list<Answer> answers) {
        return answered(answers, [&] { run.click("cmdCopyToA"); });
    };
    EXPECT_EQ(copy({Answer::ok}), Texts{"Marlowbeck: There are no Assessments selected to be copied"});
    EXPECT_EQ(run.focused(), "List1");
    for (const char* word : {"brien", "adams"}) {
        run.enter("txtSearch", word);
        run.key(Qt::Key_Down); // goes to the list and picks nobody yet
        run.key(Qt::Key_Space);
    }
    run.enter("txtSearch", "nobody"); // what is picked outlives a search
    EXPECT_EQ(RunningProgram::cells(run.control<screenkit::Grid>("List2")),
              (std::vector<QStringList>{{"Adams  "}, {"O'Brien  "}}));
    run.desk.expectFile({});
    EXPECT_EQ(copy({Answer::ok}), Texts{"Marlowbeck: User has cancelled the operation!"});
    EXPECT_EQ(clients(bak), "Adams\nO'Brien");
    run.desk.expectFile(name(file));
    EXPECT_EQ(copy({Answer::cancel}),
              Texts{"Chosen Media Faulty!: There is a problem Writing to the Chosen Media!\nPlease ensure that the "
                    "Device is available and has sufficient space for the file."});
    run.desk.expectFile(name(stick / "CopyData.Mdb"));
    EXPECT_EQ(copy({Answer::ok}),
              Texts{"Marlowbeck: The File CopyData.Mdb has been copied to the Chosen Media successfully !"});
    run.click("cmdCancel");

    run.menu("mnuPersDet");
    run.type("txtCLName", "Dube");
    EXPECT_EQ(chosen("mnuFromA", {Answer::cancel}),
              Texts{"Import Data ?: Current changes have not been saved. Do you want to save them. ?"});
    chosen("mnuFromA", {Answer::no});
    const auto read = [&](const fs::path& from, std::initializer_list<Answer> answers) {
        run.desk.expectFile(name(from));
        return answered(answers, [&] { run.click("cmdCopyFromA"); }).back();
    };
    EXPECT_EQ(read("", {Answer::ok}), "Marlowbeck: User has cancelled the operation!");
    EXPECT_FALSE(fs::exists(transfer));
    EXPECT_EQ(read(stick / "gone.mdb", {Answer::ok, Answer::cancel}),
              "Chosen Media Empty/Faulty!: There is a problem with the Chosen Media!");
    fs::copy_file(stick / "CopyData.Mdb", stick / "old.mdb");
    storetest::rowsOf(stick / "old.mdb", "UPDATE DataSetup SET UpDateDB=17");
    EXPECT_EQ(
        read(stick / "old.mdb", {Answer::ok}),
        "Marlowbeck: It appears that you are currently trying to copy data from a \nversion of Marlowbeck than is "
        "not compatible with this version!\n \nThe Copying process has been stopped.\nPlease ensure both programs "
        "are the same version!");
    EXPECT_EQ(read(stick / "CopyData.Mdb", {Answer::ok}),
              "Marlowbeck: The File CopyData.Mdb has been READ FROM the Chosen Media successfully !");
    EXPECT_FALSE(run.isOpen("frmREADFromA"));
    EXPECT_EQ(run.inClients("SELECT DCLNO, CLName FROM PersDetails WHERE DCLNO>3"), "4|Adams\n5|O'Brien");
    EXPECT_EQ(run.record().details.CLName, "Dube") << "the client at work, not saved";
}

TEST_F(DataCare, AnotherFileOfClientsIsLocatedAndUsedAtOnce) {
    const std::string location = bytesOf(run.folder / "DataPath.txt");
    const auto locate = [&](std::initializer_list<Answer> answers) {
        return answered(answers, [&] { run.click("cmdLocateSysAdmin"); });
    };
    fs::copy_file(file, saved);
    run.loadClient("Adams");
    run.menu("mnuRemotePath");
    EXPECT_EQ(run.shown("txtUserSysAdDB"), name(file));
    for (const fs::path& unchanged : {fs::path(), file}) {
        run.desk.expectFile(name(unchanged));
        locate({});
    }
    run.desk.expectFile(name(run.folder / "Default.Mdb"));
    run.desk.expectFile(name(stick / ".." / "data.BAK"));
    fs::copy_file(file, bak);
    const std::string incorrect =
        " Data.mdb Database not found!: Incorrect File Selected!\nDo you want to locate correct file?";
    EXPECT_EQ(locate({Answer::yes, Answer::no}), (Texts{incorrect, incorrect}));
    EXPECT_EQ(bytesOf(run.folder / "DataPath.txt"), location);
    run.desk.expectFile(name(saved));
    EXPECT_EQ(locate({}), Texts{});
    EXPECT_EQ(run.shown("txtUserSysAdDB"), name(saved));
    EXPECT_TRUE(bytesOf(run.folder / "DataPath.txt").starts_with("\"" + saved.string() + "\""));
    EXPECT_EQ(run.record().ClientOnFile, 0) << "the key is one of the former file";
    run.click("cmdOK");

    fs::rename(saved, stick / "away.mdb");
    const std::string missing =
        ": Database can not be found in the default folder!\nDo you want to set the search path?";
    EXPECT_EQ(chosen("mnuRemotePath", {Answer::no}), Texts{"Main Client Database not found!" + missing});
    EXPECT_FALSE(run.isOpen("frmMasterDBLocator"));
    EXPECT_EQ(chosen("mnuToA", {Answer::no}), Texts{"Marlowbeck Data Database not found!" + missing});
    EXPECT_FALSE(run.isOpen("frmCOPYToA"));
    storetest::put(saved, bytesOf(run.folder / "Default.Mdb"));
    run.desk.expectFile(name(stick / "away.mdb"));
    EXPECT_EQ(
        chosen("mnuToA", {Answer::yes}),
        Texts{" Marlowbeck Data Database not found!: Incorrect File Selected!\nDo you want to reset search path and "
              "file name?"});
    EXPECT_EQ(list()->model()->rowCount(), 3);
    run.click("cmdCancel");
    fs::remove(run.folder / "DataPath.txt");
    run.desk.expectFile({});
    EXPECT_EQ(chosen("mnuRemotePath", {Answer::yes}),
              Texts{"Main Database not found!: No path has been set.\nDo you want to continue setting the path?"});
    EXPECT_TRUE(run.isOpen("frmMasterDBLocator"));
}

} // namespace
