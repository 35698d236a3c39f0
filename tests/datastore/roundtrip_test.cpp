#include "datastore/datastore_support.h"
#include "datastore/save.h"

namespace {

using namespace datastoretest;
using RoundTrip = ClientFileTest;

TEST_F(RoundTrip, EveryFieldOfEveryGroupComesBackBitForBit) {
    Assessment saved = fullClient();
    ASSERT_EQ(datastore::Save(saved, file), datastore::Saved::written);
    EXPECT_EQ(saved.DCLNO, 1);
    Assessment second; // its rows must not mix with the first client's
    second.client.Name = "Somebody else";
    second.policies.resize(3);
    datastore::Save(second, file);
    for (int round = 0; round < 2; ++round) { // the second through an update, which deletes and rewrites the lists
        record = loaded();
        expectSameClient(saved, record);
        EXPECT_EQ(record.ClientOnFile, 1);
        EXPECT_EQ(record.ClientChanged, 0);
        EXPECT_EQ(record.DCLNO, 1);
        EXPECT_EQ(record.GRINC, 0.5);
        record.changed.LoansChanged = 1;
        EXPECT_EQ(datastore::Save(record, file), datastore::Saved::written);
    }
    EXPECT_EQ(in("SELECT count(*) FROM PolsInvests WHERE DCLNO=1"), "10");
    EXPECT_EQ(in("SELECT count(*) FROM PolsInvests WHERE DCLNO=2"), "3");
}

TEST_F(RoundTrip, EachValueLiesInTheFieldOfItsName) {
    Assessment a = fullClient();
    datastore::Save(a, file);
    const std::pair<const char*, store::Value> cases[] = {
        {"SELECT AMOUNT FROM Data", a.nominalEffective.amount},
        {"SELECT TERM FROM Data", static_cast<double>(a.quotes.term)},
        {"SELECT lib5 FROM Data", a.death.lib5},
        {"SELECT DISAlib5 FROM Data", a.disability.Disalib5},
        {"SELECT MidP FROM Data", a.drawDown.Midp},
        {"SELECT RNAFutMonIncItemise FROM Data", 1.0},
        {"SELECT RASurname FROM Data", a.raTaxAdvantage.RASurname},
        {"SELECT DEP8 FROM PersDetails", a.details.DEP[7]},
        {"SELECT DEPDOB1 FROM PersDetails", a.details.DEPDOB[0]},
        {"SELECT OccurAge FROM RNAOtherExp", a.itemised.RNAOtherExp.rows[0].At},
        {"SELECT MatAtAge FROM DISACars", a.itemised.DISACars.rows[0].At},
        {"SELECT MaxNum FROM DISACars", static_cast<double>(a.itemised.DISACars.rows.size())},
        {"SELECT ToAge FROM RNAFutureMonInc", a.itemised.RNAFutMonInc.rows[0].ToAge},
        {"SELECT [Trust or Other Source] FROM CGTTrustOther", a.capitalGains.trustOther[0].source},
        {"SELECT [COP Split] FROM CGTTrustOther", a.capitalGains.trustOther[0].copSplit},
        {"SELECT [Base Cost] FROM CGTTrustOther", a.capitalGains.trustOther[0].baseCost},
        {"SELECT RRExGrtCTY02042010 FROM LumpSumTax", a.lumpSums.RRExGrtCTY0204[0]},
        {"SELECT RetireDeathAfter2027 FROM LumpSumTax", a.lumpSums.RetireDeathAfter[17]},
        {"SELECT InvBensMatValLSEscAt FROM PolsInvests", static_cast<double>(a.policies[0].InvBensMatValLSEscAt)},
        {"SELECT CGTAssetNum FROM CGTDetails ORDER BY rowid DESC", 5.0},
        {"SELECT CGTMaxNum FROM CGTDetails", 5.0},
        {"SELECT AnsAss3 FROM Data", store::Value{}},
        {"SELECT TotPremPaid FROM Data", store::Value{}},
        {"SELECT DisaASS3 FROM Data", 0.0},
        {"SELECT [In Use] FROM Data", 0.0},
    };
    store::Database database(file);
    for (const auto& [sql, expected] : cases) {
        store::Statement select = database.prepare(sql);
        ASSERT_TRUE(select.step()) << sql;
        EXPECT_EQ(select.column(0), expected) << sql;
    }
}

TEST_F(RoundTrip, AFileOfVersion3IsBroughtUpAndThenHoldsEverything) {
    folder.makeClientDb(3);
    for (const char* later : {"LumpSumTax", "CGTTrustOther", "CGTDetails", "CGTDetailsOther", "CPIDefault", "DISACars"})
        run("DROP TABLE " + std::string(later));
    for (const char* later : {"Data DROP COLUMN AgeRetiment", "Data DROP COLUMN RANotes", "Data DROP COLUMN TaxCGT",
                              "Data DROP COLUMN AnnMonIncShare", "PersDetails DROP COLUMN DEPDOB8"})
        run("ALTER TABLE " + std::string(later));
    run("INSERT INTO Data(DCLNO,Name,Num1) VALUES(7,'Old client',5);"
        "INSERT INTO PersDetails(DCLNO,Name,CLName) VALUES(7,'Old client','Client')");
    start();
    Assessment old = loaded(7);
    EXPECT_EQ(old.client.Name, "Old client");
    EXPECT_EQ(old.loans.Num1, 5);
    EXPECT_EQ(old.client.BirthDate, base::blankDate); // what the old file lacks or has as Null is blank
    EXPECT_EQ(old.retirement.AgeRetiment, 0);
    EXPECT_EQ(old.incomeShares.AnnMonIncShare, "annually");
    EXPECT_EQ(in("SELECT TaxCGT IS NULL FROM Data WHERE DCLNO=7"), "1");
    // It has no row of capital gains or lump sums yet, but can be saved.
    old.lumpSums.FstLumpTaken = old.ClientChanged = 1;
    EXPECT_EQ(datastore::Save(old, file), datastore::Saved::written);
    Assessment young = fullClient();
    datastore::Save(young, file);
    EXPECT_EQ(young.DCLNO, 8);
    Assessment oldAgain = loaded(7), youngAgain = loaded(8);
    expectSameClient(old, oldAgain);
    expectSameClient(young, youngAgain);
}

} // namespace
