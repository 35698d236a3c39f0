#include "datastore/load.h"

#include "datastore/datastore_support.h"
#include "datastore/save.h"

namespace {

using namespace datastoretest;

class LoadTest : public ClientFileTest {
protected:
    LoadTest() {
        record = fullClient();
        record.rrrOld.RRR = 12;
        datastore::Save(record, file);
    }
};

TEST_F(LoadTest, AVanishedClientLeavesABlankRecord) {
    for (const char* table : {"PersDetails", "Data"}) {
        run("DELETE FROM " + std::string(table));
        EXPECT_EQ(errorOf([&] { datastore::load(record, folder.paths(), 1); }), 3021) << table;
        Assessment blank;
        expectSameClient(record, blank);
        EXPECT_EQ(record.ClientOnFile + record.DCLNO, 0);
        EXPECT_EQ(record.GRINC, 0.5);
    }
}

TEST_F(LoadTest, ReadsAsManyRowsAsTheListCountsAndNeverThoseOfAnother) {
    struct Case {
        const char* sql;
        std::vector<std::size_t> rows; ///< policies, assets, sources, expenses
    };
    for (const auto& [sql, rows] :
         {Case{"UPDATE Data SET RNAOtherExpItemise=0; UPDATE CGTDetailsOther SET ItemiseAdditCapGain=0", {10, 5, 0, 0}},
          {"UPDATE Data SET RNAOtherExpItemise=1; UPDATE CGTDetailsOther SET ItemiseAdditCapGain=1", {10, 5, 3, 2}},
          {"UPDATE PolsInvests SET MaxNum=4; UPDATE CGTDetails SET CGTMaxNum=2; UPDATE CGTTrustOther SET MaxNum=1;"
           "UPDATE RNAOtherExp SET MaxNum=1",
           {4, 2, 1, 1}},
          {"UPDATE PolsInvests SET MaxNum=400; UPDATE CGTDetails SET CGTMaxNum=400; UPDATE CGTTrustOther SET "
           "MaxNum=1e300; UPDATE PolsInvests SET DCLNO=2 WHERE rowid>3; UPDATE RNAOtherExp SET MaxNum=99",
           {3, 5, 3, 2}},
          {"UPDATE PolsInvests SET MaxNum=0; UPDATE CGTDetails SET CGTMaxNum=NULL; UPDATE CGTTrustOther SET MaxNum=-1;"
           "UPDATE RNAOtherExp SET MaxNum=0",
           {1, 0, 0, 0}},
          {"DELETE FROM PolsInvests; DELETE FROM CGTDetails; DELETE FROM CGTTrustOther; DELETE FROM RNAOtherExp;"
           "DELETE FROM CGTDetailsOther; DELETE FROM LumpSumTax",
           {1, 0, 0, 0}}}) {
        run(sql);
        const Assessment found = loaded();
        const std::vector<std::size_t> counted{found.policies.size(), found.capitalGains.assets.size(),
                                               found.capitalGains.trustOther.size(),
                                               found.itemised.RNAOtherExp.rows.size()};
        EXPECT_EQ(counted, rows) << sql;
        EXPECT_EQ(found.policies[0].InceptionDate == base::NoDate, rows[0] == 1 && sql[0] == 'D');
    }
    EXPECT_EQ(loaded().lumpSums.FstLumpTaken, 0);
}

TEST_F(LoadTest, WhatAFieldCannotBeReadsAsItsBlank) {
    EXPECT_EQ(in("SELECT RRR FROM Data"), "12");
    EXPECT_EQ(loaded().rrrOld.RRR, 0); // stored, but no load restores it
    run("UPDATE Data SET Num1=NULL, Num2='text', Heading=NULL, TERM=40000, OMBP3=7.5, CapAmount=1e300, "
        "BirthDate='text', StartDateDB=NULL, InvAmount=3e9, ConPeriod=2.5, Salary=9e999, IntComp=NULL;"
        "UPDATE CGTDetails SET SB750PortDed=NULL, ExclCOPSplit=NULL, DateSale=-700000, DateAquired=-36521;"
        "UPDATE PolsInvests SET InceptionDate=NULL; INSERT INTO CPIDefault(CPI) VALUES(4.25)");
    const Assessment found = loaded();
    EXPECT_EQ(found.CPI, 4.25);
    const auto& gain = found.capitalGains.assets[0];
    EXPECT_EQ(found.loans, assessment::Loans("", 0, 0, record.loans.Num3, record.loans.Num4));
    EXPECT_EQ(found.bond.OMBP3, 8);
    EXPECT_EQ(found.debts.ConPeriod, 2); // ties to even
    EXPECT_EQ(found.dailyBalance.StartDateDB, base::blankDate);
    EXPECT_EQ(found.policies[0].InceptionDate, base::NoDate);
    EXPECT_EQ(gain.SB750PortDed, 1800000);
    EXPECT_EQ(gain.ExclCOPSplit, 1);
    EXPECT_EQ(gain.DateSale, base::NoDate);
    EXPECT_EQ(gain.DateAquired, -36521);
    const double zero[] = {
        static_cast<double>(found.quotes.term), found.tax.Salary, static_cast<double>(found.dailyBalance.CapAmount),
        static_cast<double>(found.offShore.InvAmount), static_cast<double>(found.nominalEffective.IntComp)};
    EXPECT_THAT(zero, testing::Each(0));
}

} // namespace
