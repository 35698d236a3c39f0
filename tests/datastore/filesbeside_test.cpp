#include "datastore/filesbeside.h"

#include <cstdlib>
#include <map>

#include "datastore/datastore_support.h"
#include "datastore/funds.h"
#include "datastore/headfoot.h"
#include "datastore/printfeed.h"
#include "datastore/save.h"

namespace {

using namespace datastoretest;
using datastore::FilesBeside;
using datastore::OwnPrintDb;

/// Two clients, and a program that has been started once.
class Beside : public ClientFileTest {
protected:
    Beside() {
        ::chmod(temporary.path().c_str(), 0777);
        ::setenv("TMPDIR", temporary.path().c_str(), 1);
        start();
        for (const char* name : {"Adams", "Botha"}) {
            record = fullClient();
            record.details.CLName = record.client.Name = name;
            datastore::Save(record, file);
        }
        datastore::writeHeadFoot(folder.paths(), {{"Khumalo & Partners"}, {}});
        run("INSERT INTO CPIDefault(CPI) VALUES(4.25)");
        folder.run("Default.Mdb", "UPDATE MutualFunds SET ESPremCom=1.5; UPDATE Setup SET GRINC=0.25");
    }
    ~Beside() override { // whatever happened, nothing is left
        EXPECT_TRUE(fs::is_empty(temporary.path()));
        was.empty() ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", was.c_str(), 1);
    }
    using State = std::map<std::string, std::pair<std::string, fs::file_time_type>>;
    State state() const {
        State found;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            found[entry.path().filename()] = {storetest::bytesOf(entry.path()), entry.last_write_time()};
        return found;
    }
    /// Another program does this to the file and is still at work, or was killed at it.
    static void another(
        const fs::path& at, const std::string& sql, const std::function<void()>& meanwhile = [] {}) {
        storetest::runAndKill(
            [&](auto ready) {
                const store::OpenedAs asUsual(at, store::Opening::usual); // of the files beside it knows nothing
                store::Database other(at);
                other.execute(sql);
                ready();
                ::pause();
            },
            meanwhile);
    }
    const storetest::Folder temporary;
    const std::string was = std::getenv("TMPDIR") == nullptr ? "" : std::getenv("TMPDIR");
    const std::string half =
        "PRAGMA cache_size=1; BEGIN; DELETE FROM PersDetails; DELETE FROM PolsInvests; UPDATE Data "
        "SET Num1=1, RANotes=printf('%9000s', 'x')";
};

TEST_F(Beside, ReadsAsALoadDoesAndWritesNothingWhateverMustBeChangedFirst) {
    Assessment expected = loaded(2);
    datastore::refreshFunds(expected, settings);
    fs::remove(folder / "DataPath.txt");
    const State sound = state();
    const std::tuple<const char*, bool, std::function<void()>> cases[] = {
        {"nothing", true, [] {}},
        {"an older version", false, [&] { run("UPDATE DataSetup SET UpDateDB=17; DROP TABLE LumpSumTax"); }},
        {"settings that lack a field", true,
         [&] { folder.run("Default.Mdb", "ALTER TABLE Setup DROP COLUMN RptLanguage"); }},
        {"a save that crashed", true, [&] { another(file, half); }},
        {"a change of the settings that crashed", true,
         [&] {
             another(settings, "PRAGMA cache_size=1; BEGIN; UPDATE Setup SET GRINC=9; CREATE TABLE T AS SELECT "
                               "zeroblob(99999)");
         }},
        {"a log of changes", true, [&] { another(file, "PRAGMA journal_mode=WAL; UPDATE CPIDefault SET CPI=4.25"); }},
        {"no report database", true, [&] { fs::remove(print); }},
    };
    for (const auto& [what, isWhole, spoil] : cases) {
        for (const auto& [name, contents] : sound)
            storetest::put(folder / name, contents.first);
        for (const char* journal : {"-journal", "-wal", "-shm"})
            fs::remove(file.string() + journal);
        spoil();
        const storetest::OrdinaryUser user(folder);
        for (const auto& entry : fs::directory_iterator(folder.path()))
            ::chmod(entry.path().c_str(), 0444);
        ::chmod(folder.path().c_str(), 0555);
        const State before = state();
        {
            FilesBeside files(folder.path());
            Assessment found = files.read(2);
            if (isWhole) expectSameClient(found, expected);
            EXPECT_EQ(std::tuple(found.CPI, found.GRINC, found.funds), std::tuple(4.25, 0.25, expected.funds)) << what;
            EXPECT_EQ(found.client.Name + std::to_string(files.clients().size()), "Botha2") << what;
            EXPECT_EQ(errorOf([&] { files.read(9); }), 3021) << what;
            EXPECT_EQ(files.paths().UpDateDBValue, datastore::currentVersion) << what;
            EXPECT_EQ(rowsOf(files.paths().PrintDbPath, "SELECT HEADERV0 FROM HeadFoot"), "Khumalo & Partners") << what;
            EXPECT_EQ(rowsOf(files.paths().DefaultDbPath, "SELECT count(RptLanguage) FROM Setup"), "1") << what;
        }
        EXPECT_TRUE(state() == before && fs::is_empty(temporary.path())) << what;
        ::chmod(folder.path().c_str(), 0755);
        for (const auto& entry : fs::directory_iterator(folder.path()))
            ::chmod(entry.path().c_str(), 0644);
    }
}

TEST_F(Beside, WorksWhileAnotherProgramWritesAndAfterItCrashed) {
    FilesBeside files(folder.path());
    another(file, "BEGIN IMMEDIATE; UPDATE Data SET Num1=1", [&] {
        EXPECT_EQ(files.read(1).loans, record.loans);
        const FilesBeside second(folder.path());
    });
    another(file, "BEGIN EXCLUSIVE", [&] { EXPECT_EQ(errorOf([&] { files.read(1); }), 3356); });
    another(file, "SELECT 1", [&] { // nothing is held between two reads
        files.read(1);
        another(file, "UPDATE Data SET Num1=77 WHERE DCLNO=1");
    });
    EXPECT_EQ(files.read(1).loans.Num1, 77);
    another(file, half);
    const State before = state();
    EXPECT_EQ(files.read(1).loans.Num1, 77);
    EXPECT_EQ(files.read(2).client.Name, "Botha");
    EXPECT_TRUE(state() == before);
}

TEST_F(Beside, RefusesWhatItCannotRead) {
    const std::string whole = storetest::bytesOf(file);
    const std::tuple<int, const char*, std::function<void()>> cases[] = {
        {321, "newest version", [&] { run("UPDATE DataSetup SET UpDateDB=19"); }},
        {3049, "last backup", [&] { storetest::put(file, whole.substr(0, whole.size() - 9)); }},
        {3343, "last backup", [&] { storetest::put(file, std::string(500, 'x')); }},
        {3011, "Install Marlowbeck again",
         [&] { fs::copy_file(settings, file, fs::copy_options::overwrite_existing); }},
        {3000, "Try again",
         [&] {
             run("UPDATE DataSetup SET UpDateDB=3; CREATE TABLE x(a); CREATE TRIGGER t BEFORE "
                 "UPDATE ON DataSetup BEGIN SELECT RAISE(ABORT, 'no'); END");
         }},
        {3024, "backup", [&] { fs::remove(file); }},
        {3044, "DataPath.txt", [&] { storetest::put(folder / "DataPath.txt", "/nowhere/at/all/Data.Mdb"); }},
        {3024, "installing it again", [&] { fs::remove(settings); }},
    };
    for (const auto& [number, advice, spoil] : cases) {
        storetest::put(file, whole);
        spoil();
        const State before = state();
        const auto error = storetest::caughtFrom([&] { FilesBeside files(folder.path()); });
        ASSERT_TRUE(error) << number;
        EXPECT_EQ(error->number(), number);
        EXPECT_NE(error->advice().find(advice), std::string::npos) << error->message();
        EXPECT_EQ(error->message().find("marlowbeck-"), std::string::npos) << error->message();
        EXPECT_TRUE(state() == before) << number;
    }
}

TEST_F(Beside, APrintDatabaseOfItsOwnDisturbsNoOther) {
    const std::string before = storetest::bytesOf(print);
    const OwnPrintDb one(folder.paths()), other(folder.paths());
    EXPECT_EQ(modeOf(one.path().parent_path()), 0700U);
    const auto feed = [&](const char* client, bool commits) {
        datastore::PrintFeed fed(one.path(), client);
        if (commits) fed.commit();
    };
    feed("Adams", true);
    feed("Botha", false);
    const std::string client = "SELECT Client FROM Printout";
    EXPECT_EQ(rowsOf(one.path(), client) + rowsOf(other.path(), client), "Adams");
    EXPECT_EQ(storetest::bytesOf(print), before);
}

} // namespace
