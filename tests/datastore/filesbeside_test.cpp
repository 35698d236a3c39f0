#include "datastore/filesbeside.h"

#include <cstdlib>

#include "datastore/datastore_support.h"
#include "datastore/funds.h"
#include "datastore/headfoot.h"
#include "datastore/printfeed.h"
#include "datastore/save.h"

namespace {

using namespace datastoretest;
using datastore::FilesBeside, datastore::OwnPrintDb;

/// Two clients, and a program that has been started once.
class Beside : public ClientFileTest {
protected:
    Beside() {
        start();
        for (const char* name : {"Adams", "Botha"}) {
            record = fullClient();
            record.details.CLName = record.client.Name = name;
            datastore::Save(record, file);
        }
        datastore::writeHeadFoot(folder.paths(), {{"Khumalo & Partners"}, {}});
        run("INSERT INTO CPIDefault(CPI) VALUES(4.25)");
        folder.run("Default.Mdb", "UPDATE MutualFunds SET ESPremCom=1.5; UPDATE Setup SET GRINC=0.25");
        fs::remove(folder / "DataPath.txt"); // a start would write it again
        fs::copy(folder.path(), sound.path());
        ::chmod(temporary.path().c_str(), 0777);
        ::setenv("TMPDIR", temporary.path().c_str(), 1);
    }
    ~Beside() override { // whatever happened, nothing is left
        EXPECT_TRUE(fs::is_empty(temporary.path()));
        was.empty() ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", was.c_str(), 1);
    }
    void restore() const {
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove(entry.path());
        fs::copy(sound.path(), folder.path());
    }
    const storetest::Folder sound, temporary;
    const std::string was = std::getenv("TMPDIR") == nullptr ? "" : std::getenv("TMPDIR");
};

TEST_F(Beside, ReadsAsALoadDoesAndWritesNothingWhateverMustBeChangedFirst) {
    Assessment expected = loaded(2);
    datastore::refreshFunds(expected, settings);
    const std::tuple<const char*, double, fs::path, const char*> cases[] = {
        {"nothing", 4.25, file, ""},
        {"an older version", 4.25, file, "UPDATE DataSetup SET UpDateDB=17"},
        {"settings that lack a field", 4.25, settings, "ALTER TABLE Setup DROP COLUMN RptLanguage"},
        {"a save that crashed", 4.25, file, halfAChange},
        {"a change of the settings that crashed", 4.25, settings,
         "PRAGMA cache_size=1; BEGIN; UPDATE Setup SET GRINC=9; CREATE TABLE T AS SELECT zeroblob(99999)"},
        {"a log of changes", 5.5, file, "PRAGMA journal_mode=WAL; UPDATE CPIDefault SET CPI=5.5"},
        {"another report database", 4.25, print, "DROP TABLE HeadFoot"},
    };
    for (const auto& [what, inflation, changed, sql] : cases) {
        restore();
        whileAnother(changed, sql);
        const storetest::OrdinaryUser user(folder);
        for (const auto& entry : fs::directory_iterator(folder.path()))
            ::chmod(entry.path().c_str(), 0444);
        ::chmod(folder.path().c_str(), 0555);
        const auto before = contentsOf(folder.path());
        {
            FilesBeside files(folder.path());
            Assessment found = files.read(2);
            expectSameClient(found, expected);
            EXPECT_EQ(std::tuple(found.CPI, found.GRINC, found.funds), std::tuple(inflation, 0.25, expected.funds))
                << what;
            EXPECT_EQ(found.client.Name + std::to_string(files.clients().size()), "Botha2") << what;
            EXPECT_EQ(errorOf([&] { files.read(9); }), 3021) << what;
            EXPECT_EQ(rowsOf(files.paths().PrintDbPath, "SELECT HEADERV0 FROM HeadFoot") +
                          rowsOf(files.paths().DefaultDbPath, "SELECT count(RptLanguage) FROM Setup"),
                      "Khumalo & Partners1")
                << what;
        }
        EXPECT_TRUE(contentsOf(folder.path()) == before && fs::is_empty(temporary.path())) << what;
        ::chmod(folder.path().c_str(), 0755);
    }
}

TEST_F(Beside, WorksWhileAnotherProgramWritesAndAfterItCrashed) {
    FilesBeside files(folder.path());
    whileAnother(file, "BEGIN IMMEDIATE; UPDATE Data SET Num1=1", [&] {
        EXPECT_EQ(files.read(1).loans, record.loans);
        const FilesBeside second(folder.path());
    });
    whileAnother(file, "BEGIN EXCLUSIVE", [&] { EXPECT_EQ(errorOf([&] { files.read(1); }), 3356); });
    whileAnother(file, "UPDATE Data SET Num1=77"); // nothing is held between two reads
    EXPECT_EQ(files.read(1).loans.Num1, 77);
    whileAnother(file, halfAChange);
    const auto before = contentsOf(folder.path());
    EXPECT_EQ(files.read(1).loans.Num1 + files.read(2).loans.Num1, 154);
    EXPECT_TRUE(contentsOf(folder.path()) == before);
}

TEST_F(Beside, ToldOfAFaultNamesTheUsersOwnFile) {
    const std::tuple<int, const char*, std::function<void()>> cases[] = {
        {321, "newest version", [&] { run("UPDATE DataSetup SET UpDateDB=19"); }},
        {3049, "last backup",
         [&] { // a page that only the upgrade of the copy reads
             run("UPDATE DataSetup SET UpDateDB=3");
             std::string bytes = storetest::bytesOf(file);
             const auto page = std::stoul(in("SELECT rootpage FROM sqlite_master WHERE name='RNAMonIncReq'"));
             storetest::put(file, bytes.replace((page - 1) * 4096, 8, 8, 'x'));
         }},
    };
    for (const auto& [number, advice, spoil] : cases) {
        restore();
        spoil();
        const auto before = contentsOf(folder.path());
        const auto error = storetest::caughtFrom([&] { FilesBeside files(folder.path()); });
        ASSERT_TRUE(error) << number;
        EXPECT_EQ(std::pair(error->number(), error->file()), std::pair(number, file.string()));
        EXPECT_NE(error->advice().find(advice), std::string::npos) << error->message();
        EXPECT_EQ(error->message().find(temporary.path().string()), std::string::npos) << error->message();
        EXPECT_TRUE(contentsOf(folder.path()) == before) << number;
    }
}

TEST_F(Beside, APrintDatabaseOfItsOwnDisturbsNoOther) {
    const OwnPrintDb one(folder.paths()), other(folder.paths());
    EXPECT_EQ(one.path().parent_path().parent_path(), temporary.path());
    datastore::PrintFeed(one.path(), "Adams").commit();
    { const datastore::PrintFeed undone(one.path(), "Botha"); }
    const std::string client = "SELECT Client FROM Printout";
    EXPECT_EQ(rowsOf(one.path(), client) + rowsOf(other.path(), client) + rowsOf(print, client), "Adams");
    ::setenv("TMPDIR", "/no/such/folder", 1);
    EXPECT_EQ(OwnPrintDb(folder.paths()).path().parent_path().parent_path(), "/tmp");
}

} // namespace
