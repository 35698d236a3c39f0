#include "datastore/load.h"

#include "datastore/datastore_support.h"
#include "datastore/save.h"

namespace {

using namespace datastoretest;

class LoadTest : public ::testing::Test {
protected:
    LoadTest() { folder.makeClientDb(); }
    Assessment loaded() const {
        Assessment record = fullClient();
        datastore::load(record, folder.paths(), 1);
        return record;
    }
    ProgramFolder folder;
    fs::path file = folder / "Data.Mdb";
};

TEST_F(LoadTest, AVanishedClientLeavesABlankRecord) {
    Assessment record = fullClient();
    datastore::Save(record, file);
    for (const char* table : {"PersDetails", "Data"}) {
        folder.run("Data.Mdb", "DELETE FROM " + std::string(table));
        EXPECT_EQ(errorOf([&] { datastore::load(record, folder.paths(), 1); }), 3021) << table;
        EXPECT_EQ(record.ClientOnFile, 0);
        EXPECT_EQ(record.DCLNO, 0);
        EXPECT_EQ(record.client.Name, "");
        EXPECT_EQ(record.loans.Heading, "Monthly repayment");
        EXPECT_EQ(record.GRINC, 0.5);
    }
}

TEST_F(LoadTest, ReadsAsManyRowsAsTheListCountsAndNeverThoseOfAnother) {
    Assessment record = fullClient();
    datastore::Save(record, file);
    const struct {
        const char* sql;
        std::size_t policies, assets, sources, expenses;
    } cases[] = {
        {"UPDATE PolsInvests SET MaxNum=4; UPDATE CGTDetails SET CGTMaxNum=2; UPDATE CGTTrustOther SET MaxNum=1;"
         "UPDATE RNAOtherExp SET MaxNum=1",
         4, 2, 1, 1},
        {"UPDATE PolsInvests SET MaxNum=400; UPDATE CGTDetails SET CGTMaxNum=400; UPDATE CGTTrustOther SET "
         "MaxNum=1e300;"
         "UPDATE PolsInvests SET DCLNO=2 WHERE rowid>3; UPDATE RNAOtherExp SET MaxNum=99",
         3, 5, 3, 2},
        {"UPDATE PolsInvests SET MaxNum=0; UPDATE CGTDetails SET CGTMaxNum=NULL; UPDATE CGTTrustOther SET MaxNum=-1;"
         "UPDATE RNAOtherExp SET MaxNum=0",
         1, 0, 0, 0},
        {"DELETE FROM PolsInvests; DELETE FROM CGTDetails; DELETE FROM CGTTrustOther; DELETE FROM RNAOtherExp;"
         "DELETE FROM CGTDetailsOther; DELETE FROM LumpSumTax",
         1, 0, 0, 0},
    };
    for (const auto& [sql, policies, assets, sources, expenses] : cases) {
        folder.run("Data.Mdb", sql);
        const Assessment found = loaded();
        EXPECT_EQ(found.policies.size(), policies) << sql;
        EXPECT_EQ(found.capitalGains.assets.size(), assets) << sql;
        EXPECT_EQ(found.capitalGains.trustOther.size(), sources) << sql;
        EXPECT_EQ(found.itemised.RNAOtherExp.rows.size(), expenses) << sql;
        EXPECT_EQ(found.policies[0].InceptionDate == base::NoDate, policies == 1 && sql[0] == 'D');
    }
    EXPECT_EQ(loaded().lumpSums.FstLumpTaken, 0);
}

TEST_F(LoadTest, WhatAFieldCannotBeReadsAsItsBlank) {
    Assessment record = fullClient();
    record.rrrOld.RRR = 12;
    datastore::Save(record, file);
    EXPECT_EQ(cell(file, "SELECT RRR FROM Data"), "12");
    EXPECT_EQ(loaded().rrrOld.RRR, 0); // stored, and dropped by every load
    folder.run("Data.Mdb",
               "UPDATE Data SET Num1=NULL, Num2='text', Heading=NULL, TERM=40000, OMBP3=7.5, CapAmount=1e300, "
               "BirthDate='text', StartDateDB=NULL, InvAmount=3e9, ConPeriod=2.5, Salary=9e999, IntComp=NULL;"
               "UPDATE CGTDetails SET SB750PortDed=NULL, ExclCOPSplit=NULL, DateSale=-700000, DateAquired=-36521;"
               "UPDATE PolsInvests SET InceptionDate=NULL");
    const Assessment found = loaded();
    EXPECT_EQ(found.loans.Num1, 0);
    EXPECT_EQ(found.loans.Num2, 0);
    EXPECT_EQ(found.loans.Heading, "");
    EXPECT_EQ(found.loans.Num3, record.loans.Num3);
    EXPECT_EQ(found.quotes.term, 0);
    EXPECT_EQ(found.bond.OMBP3, 8);
    EXPECT_EQ(found.debts.ConPeriod, 2); // ties to even
    EXPECT_EQ(found.dailyBalance.CapAmount, 0);
    EXPECT_EQ(found.dailyBalance.StartDateDB, base::blankDate);
    EXPECT_EQ(found.offShore.InvAmount, 0);
    EXPECT_EQ(found.tax.Salary, 0);
    EXPECT_EQ(found.nominalEffective.IntComp, 0);
    EXPECT_EQ(found.capitalGains.assets[0].SB750PortDed, 1800000);
    EXPECT_EQ(found.capitalGains.assets[0].ExclCOPSplit, 1);
    EXPECT_EQ(found.capitalGains.assets[0].DateSale, base::NoDate);
    EXPECT_EQ(found.capitalGains.assets[0].DateAquired, -36521);
    EXPECT_EQ(found.policies[0].InceptionDate, base::NoDate);
}

} // namespace
