#include <chrono>
#include <random>

#include "datastore/datastore_support.h"
#include "datastore/save.h"

/// After any failure of a save, the file holds the client completely as before or completely as after.
namespace {

using namespace datastoretest;
using datastore::Save;

/// A client on file, and the same client with every figure changed but not saved.
class SaveFaultTest : public ClientFileTest {
protected:
    SaveFaultTest() {
        record = fullClient();
        Save(record, file);
        run("INSERT INTO DTHInvestments(DCLNO) VALUES(1); INSERT INTO DISAInvestments(DCLNO) VALUES(1)");
        record.loans.Num1 = 42;
        record.ClientChanged = record.changed.LoansChanged = 1;
    }
    int saveError() {
        return errorOf([&] { Save(record, file); });
    }
    void expectFailure(Assessment& client, int error, const std::string& what) {
        const std::string before = dump(file);
        EXPECT_EQ(errorOf([&] { Save(client, file); }), error) << what;
        EXPECT_EQ(client.changed.LoansChanged, 1) << what;
        EXPECT_EQ(dump(file), before) << what;
    }
};

TEST_F(SaveFaultTest, AFailingTableLeavesAllOthersUnchanged) {
    int refusing = 0;
    auto tables = assessment::clientTables();
    tables.push_back(&assessment::fileTextsTable());
    for (const assessment::TableDescription* table : tables) {
        if (table->field("DCLNO") == nullptr) continue;
        ++refusing;
        std::string refuse, drop;
        for (const std::string event : {"INSERT", "UPDATE", "DELETE"}) {
            refuse += "CREATE TRIGGER t" + event + " BEFORE " + event + " ON " + table->name() +
                      " BEGIN SELECT RAISE(ABORT,'no'); END;";
            drop += "DROP TRIGGER t" + event + ";";
        }
        run(refuse);
        expectFailure(record, 3000, table->name());
        EXPECT_EQ(record.ClientChanged, 1);
        Assessment anew = record;
        anew.ClientOnFile = 0;
        anew.SaveThenNew = 1;
        // A save empties these two lists and never fills them.
        if (table->name() != "DTHInvestments" && table->name() != "DISAInvestments") {
            expectFailure(anew, 3000, table->name());
            EXPECT_EQ(anew.ClientOnFile, 0);
            EXPECT_EQ(anew.SaveThenNew, 0);
        }
        run(drop);
    }
    EXPECT_EQ(refusing, 43);
    EXPECT_EQ(Save(record, file), datastore::Saved::written);
}

TEST_F(SaveFaultTest, AFileThatAnotherProgramHolds) {
    {
        store::Database other(file);
        other.execute("BEGIN EXCLUSIVE");
        EXPECT_EQ(saveError(), 3356);
        Assessment reader = record;
        EXPECT_EQ(errorOf([&] { datastore::load(reader, folder.paths(), 1); }), 3356);
        EXPECT_TRUE(reader == record); // the loaded client is unchanged
    }
    EXPECT_EQ(record.ClientChanged, 1);
    EXPECT_EQ(Save(record, file), datastore::Saved::written);
}

/// Writes a number into every table of a client.
void stamp(Assessment& record, double number) {
    record.loans.Num1 = number;
    record.details.Comments = std::to_string(number);
    record.itemised.DISAOtherExp.rows[0].Amount = number;
    record.policies.back().RBEMV = record.capitalGains.assets.back().CapGain = number;
    record.lumpSums.FstLumpTaken = record.capitalGains.trustOther.back().Amount = number;
    record.ClientChanged = 1;
}

TEST_F(SaveFaultTest, AProgramKilledInTheMiddle) {
    const auto start = std::chrono::steady_clock::now();
    Save(record, file);
    const std::chrono::duration<double, std::micro> timeOfOneSave = std::chrono::steady_clock::now() - start;
    std::mt19937 random(20260301);
    std::uniform_real_distribution moment(0.0, 3 * timeOfOneSave.count());
    double number = 100;
    // On a busy machine the first rounds may be killed before their save: more follow until one save has completed.
    for (int round = 0; round < 30 || (number <= 101 && round < 200); ++round) {
        storetest::runAndKill(
            [&](auto ready) {
                for (ready();;) {
                    stamp(record, ++number);
                    Save(record, file);
                }
            },
            [&] { ::usleep(static_cast<useconds_t>(moment(random))); });
        // The next start opens the file without a question and finds one complete save.
        Assessment found;
        ASSERT_NO_THROW(datastore::startUp(folder.path(), found));
        ASSERT_NO_THROW(datastore::load(found, folder.paths(), 1));
        if (found.loans.Num1 > 100) stamp(record, number = found.loans.Num1);
        expectSameClient(record, found);
        record.inFile = found.inFile; // the killed process knew what it had saved
    }
    EXPECT_GT(number, 101);
    EXPECT_EQ(in("PRAGMA integrity_check"), "ok");
}

} // namespace
