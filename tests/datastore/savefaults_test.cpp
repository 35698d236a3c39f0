#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <random>

#include "datastore/datastore_support.h"
#include "datastore/load.h"
#include "datastore/save.h"
#include "datastore/startup.h"

/// Whatever stops a save, the file holds the client as before or as after, whole.
namespace {

using namespace datastoretest;
using datastore::Save;

/// A client on file, and the same with every figure changed but not saved.
class SaveFaultTest : public ::testing::Test {
protected:
    SaveFaultTest() {
        folder.makeClientDb();
        record = fullClient();
        Save(record, file);
        folder.run("Data.Mdb",
                   "INSERT INTO DTHInvestments(DCLNO) VALUES(1); INSERT INTO DISAInvestments(DCLNO) VALUES(1)");
        record.loans.Num1 = 42;
        record.ClientChanged = record.changed.LoansChanged = 1;
    }
    void expectFailure(Assessment& client, int error, const std::string& what) {
        const std::string before = dump(file);
        EXPECT_EQ(errorOf([&] { Save(client, file); }), error) << what;
        EXPECT_EQ(client.changed.LoansChanged, 1) << what;
        EXPECT_EQ(dump(file), before) << what;
    }
    ProgramFolder folder;
    fs::path file = folder / "Data.Mdb";
    Assessment record;
};

TEST_F(SaveFaultTest, ATableThatRefusesLeavesAllOthersAsTheyWere) {
    int refusing = 0;
    for (const assessment::TableDescription* table : assessment::clientTables()) {
        if (table->field("DCLNO") == nullptr) continue;
        ++refusing;
        std::string refuse;
        std::string drop;
        for (const std::string event : {"INSERT", "UPDATE", "DELETE"}) {
            refuse += "CREATE TRIGGER t" + event + " BEFORE " + event + " ON " + table->name() +
                      " BEGIN SELECT RAISE(ABORT,'no'); END;";
            drop += "DROP TRIGGER t" + event + ";";
        }
        folder.run("Data.Mdb", refuse);
        expectFailure(record, 3000, table->name());
        EXPECT_EQ(record.ClientChanged, 1);
        Assessment anew = record;
        anew.ClientOnFile = 0;
        anew.SaveThenNew = 1;
        // These two lists are emptied by a save, never filled.
        if (table->name() != "DTHInvestments" && table->name() != "DISAInvestments") {
            expectFailure(anew, 3000, table->name());
            EXPECT_EQ(anew.ClientOnFile, 0);
            EXPECT_EQ(anew.SaveThenNew, 0);
        }
        folder.run("Data.Mdb", drop);
    }
    EXPECT_EQ(refusing, 42);
    EXPECT_EQ(Save(record, file), datastore::Saved::written);
}

TEST_F(SaveFaultTest, AFullDisk) {
    record.details.Comments = std::string(200000, 'x');
    const std::string before = dump(file);
    {
        store::Database database(file);
        database.execute("PRAGMA max_page_count=" + cell(file, "PRAGMA page_count"));
        EXPECT_EQ(errorOf([&] { Save(record, database); }), 3026);
    }
    EXPECT_EQ(record.ClientChanged, 1);
    EXPECT_EQ(dump(file), before);
    EXPECT_EQ(Save(record, file), datastore::Saved::written);
}

TEST_F(SaveFaultTest, AFileThatAnotherProgramHolds) {
    {
        store::Database other(file);
        other.execute("BEGIN EXCLUSIVE");
        EXPECT_EQ(errorOf([&] { Save(record, file); }), 3356);
        Assessment reader = record;
        EXPECT_EQ(errorOf([&] { datastore::load(reader, folder.paths(), 1); }), 3356);
        EXPECT_TRUE(reader == record); // the client who was loaded still is
    }
    EXPECT_EQ(record.ClientChanged, 1);
    EXPECT_EQ(Save(record, file), datastore::Saved::written);
}

TEST_F(SaveFaultTest, AFileThatMayNotBeWritten) {
    const std::string before = dump(file);
    fs::permissions(file, fs::perms::owner_read);
    const storetest::OrdinaryUser user(folder);
    EXPECT_EQ(errorOf([&] { Save(record, file); }), 3027);
    EXPECT_EQ(record.ClientChanged, 1);
    EXPECT_EQ(dump(file), before); // it can still be read
}

TEST_F(SaveFaultTest, FilesThatAreNoDatabase) {
    const std::string whole = storetest::bytesOf(file);
    const struct {
        const char* what;
        std::string bytes;
        int error;
    } cases[] = {{"empty", "", 3343},
                 {"text",
                  "This is not a database but a letter, long enough to hold a header of a hundred bytes and "
                  "then some more.",
                  3343},
                 {"header cut short", whole.substr(0, 50), 3343},
                 {"cut short", whole.substr(0, 5000), 3049}};
    for (const auto& [what, bytes, error] : cases) {
        storetest::put(file, bytes);
        EXPECT_EQ(errorOf([&] { Save(record, file); }), error) << what;
        Assessment started;
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), started); }), error) << what;
        EXPECT_EQ(storetest::bytesOf(file), bytes) << what;
    }
    fs::remove(file);
    EXPECT_EQ(errorOf([&] { Save(record, file); }), 3024);
    EXPECT_FALSE(fs::exists(file)); // only a start creates
    EXPECT_EQ(errorOf([&] { Save(record, folder / "gone/Data.Mdb"); }), 3044);
}

/// Saves the client over and over, each time with the next number in every table.
[[noreturn]] void saveForEver(Assessment& record, const fs::path& file) {
    for (;; record.loans.Num1 += 1) {
        const double number = record.loans.Num1;
        record.details.Comments = std::to_string(number);
        record.itemised.DISAOtherExp.rows[0].Amount = number;
        record.policies.back().RBEMV = record.capitalGains.assets.back().CapGain = number;
        record.lumpSums.FstLumpTaken = record.capitalGains.trustOther.back().Amount = number;
        record.ClientChanged = 1;
        Save(record, file);
    }
}

/// Microseconds that one save takes on this machine just now.
long timeOfOneSave(Assessment record, const fs::path& file) {
    const auto start = std::chrono::steady_clock::now();
    Save(record, file);
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start).count();
}

/// Lets another process save for that long and kills it.
void saveAndKill(Assessment& record, const fs::path& file, long microseconds) {
    int started[2];
    ASSERT_EQ(::pipe(started), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        if (::write(started[1], "", 1) == 1) saveForEver(record, file);
        ::_exit(1);
    }
    char byte = 0;
    EXPECT_EQ(::read(started[0], &byte, 1), 1);
    ::usleep(static_cast<useconds_t>(microseconds));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(started[0]);
    ::close(started[1]);
}

TEST_F(SaveFaultTest, AProgramKilledInTheMiddle) {
    std::mt19937 random(20260301);
    std::uniform_int_distribution<long> moment(0, 3 * timeOfOneSave(record, file));
    double highest = 0;
    // On a busy machine the first rounds may all be killed before their save: more follow until one has got through.
    for (int round = 0; round < 30 || (highest <= 43 && round < 200); ++round) {
        saveAndKill(record, file, moment(random));
        Assessment found;
        // The next start asks nothing and finds one save, whole.
        ASSERT_NO_THROW(datastore::startUp(folder.path(), found));
        ASSERT_NO_THROW(datastore::load(found, folder.paths(), 1));
        const double number = found.loans.Num1;
        highest = std::max(highest, number);
        record.loans.Num1 = std::max(number, 43.0);
        record.inFile = found.inFile; // the process that was killed knew what it had saved
        if (number < 43) continue;    // killed before its first save ended
        EXPECT_EQ(found.details.Comments, std::to_string(number));
        EXPECT_EQ(found.itemised.DISAOtherExp.rows.at(0).Amount, number);
        EXPECT_EQ(found.policies.at(9).RBEMV, number);
        EXPECT_EQ(found.capitalGains.assets.at(4).CapGain, number);
        EXPECT_EQ(found.capitalGains.trustOther.at(2).Amount, number);
        EXPECT_EQ(found.lumpSums.FstLumpTaken, number);
    }
    EXPECT_GT(highest, 43);
    EXPECT_EQ(cell(file, "PRAGMA integrity_check"), "ok");
}

} // namespace
