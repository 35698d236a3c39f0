#include "datastore/funds.h"

#include "assessment/tables.h"
#include "datastore/settings.h"
#include "shell/running_program.h"

using namespace storetest;

TEST(Funds, EveryRateAndTheStepAreStoredOrNothingIs) {
    const shelltest::ProgramFolder folder;
    const fs::path path = folder / "Default.Mdb";
    const assessment::FundDefaults original = datastore::readOriginalFunds(path);
    EXPECT_EQ(original.LumpSumPort, 33.33);
    EXPECT_EQ(datastore::readFunds(path), original) << "as shipped";
    assessment::FundDefaults typed;
    double distinct = 0;
    for (const assessment::FieldLine& line : assessment::mutualFundsTable().fields())
        assessment::setValueAt(line.at(&typed), distinct += 1.25, 0.0);
    datastore::writeFunds(path, typed, 0.125);
    assessment::Assessment record;
    datastore::refreshFunds(record, path);
    EXPECT_EQ(record.funds, typed);
    EXPECT_EQ(record.GRINC, 0.125);
    EXPECT_EQ(datastore::readFunds(path), typed);
    EXPECT_EQ(datastore::readOriginalFunds(path), original) << "never changed";

    store::Database(path).execute("DELETE FROM [MutualFunds]");
    EXPECT_EQ(errorOf([&] { datastore::writeFunds(path, original, 9); }), 3021);
    EXPECT_EQ(datastore::readSettings(path, "Setup").number("GRINC"), 0.125) << "the step is not stored alone";
    EXPECT_EQ(errorOf([&] { datastore::readFunds(path); }), 3021);
}
