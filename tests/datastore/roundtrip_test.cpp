#include "datastore/datastore_support.h"
#include "datastore/load.h"
#include "datastore/save.h"
#include "datastore/startup.h"

namespace {

using namespace datastoretest;

TEST(RoundTrip, EveryFieldOfEveryGroupComesBackBitForBit) {
    const ProgramFolder folder;
    folder.makeClientDb();
    Assessment saved = fullClient();
    ASSERT_EQ(datastore::Save(saved, folder / "Data.Mdb"), datastore::Saved::written);
    EXPECT_EQ(saved.DCLNO, 1);
    Assessment second; // its rows must not run into the first client's
    second.client.Name = "Somebody else";
    second.policies.resize(3);
    datastore::Save(second, folder / "Data.Mdb");
    Assessment loaded;
    datastore::load(loaded, folder.paths(), 1);
    expectSameClient(saved, loaded);
    EXPECT_EQ(loaded.ClientOnFile, 1);
    EXPECT_EQ(loaded.ClientChanged, 0);
    EXPECT_EQ(loaded.DCLNO, 1);
    EXPECT_EQ(loaded.GRINC, 0.5);
    // And once more through an update, which deletes and rewrites the lists.
    loaded.changed.LoansChanged = 1;
    EXPECT_EQ(datastore::Save(loaded, folder / "Data.Mdb"), datastore::Saved::written);
    Assessment again;
    datastore::load(again, folder.paths(), 1);
    expectSameClient(saved, again);
    EXPECT_EQ(cell(folder / "Data.Mdb", "SELECT count(*) FROM PolsInvests WHERE DCLNO=1"), "10");
    EXPECT_EQ(cell(folder / "Data.Mdb", "SELECT count(*) FROM PolsInvests WHERE DCLNO=2"), "3");
}

TEST(RoundTrip, EachValueLiesInTheFieldOfItsName) {
    const ProgramFolder folder;
    folder.makeClientDb();
    Assessment a = fullClient();
    datastore::Save(a, folder / "Data.Mdb");
    const struct {
        const char* sql;
        store::Value expected;
    } cases[] = {
        {"SELECT AMOUNT FROM Data", a.nominalEffective.amount},
        {"SELECT TERM FROM Data", static_cast<double>(a.quotes.term)},
        {"SELECT lib5 FROM Data", a.death.lib5},
        {"SELECT DISAlib5 FROM Data", a.disability.Disalib5},
        {"SELECT Loan3Int FROM Data", a.debts.Loan3Int},
        {"SELECT Period FROM Data", static_cast<double>(a.rrrOld.Period)},
        {"SELECT MidP FROM Data", a.drawDown.Midp},
        {"SELECT RNAFutMonIncItemise FROM Data", 1.0},
        {"SELECT RASurname FROM Data", a.raTaxAdvantage.RASurname},
        {"SELECT DEP8 FROM PersDetails", a.details.DEP[7]},
        {"SELECT DEPDOB1 FROM PersDetails", a.details.DEPDOB[0]},
        {"SELECT SSinNum0 FROM PersDetails", a.details.SSinNum0},
        {"SELECT IDNumber FROM PersDetails", a.client.IDNumber},
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
    store::Database database(folder / "Data.Mdb");
    for (const auto& [sql, expected] : cases) {
        store::Statement select = database.prepare(sql);
        ASSERT_TRUE(select.step()) << sql;
        EXPECT_EQ(select.column(0), expected) << sql;
    }
}

TEST(RoundTrip, NamesComeThroughLetterForLetter) {
    const ProgramFolder folder;
    folder.makeClientDb();
    const std::string names[] = {"O'Brien", "Êksteen", "Ṱhoho-Nḓou", "<b>&\"x\"", "'; DROP TABLE Data; --", "[x]"};
    for (const std::string& name : names) {
        Assessment record;
        record.client.Name = record.details.CLName = record.loans.Heading = name;
        record.itemised.RNATravel.flag = 1;
        record.itemised.RNATravel.rows.emplace_back().IncomeSource = name;
        datastore::Save(record, folder / "Data.Mdb");
        Assessment loaded;
        datastore::load(loaded, folder.paths(), record.DCLNO);
        EXPECT_EQ(loaded.client.Name, name);
        EXPECT_EQ(loaded.details.CLName, name);
        EXPECT_EQ(loaded.loans.Heading, name);
        EXPECT_EQ(loaded.itemised.RNATravel.rows.at(0).IncomeSource, name);
    }
}

/// Makes of an up-to-date file one of version 3: tables and fields of later versions are gone.
void makeOld(const ProgramFolder& folder) {
    folder.makeClientDb(3);
    std::string sql;
    for (const char* table : {"LumpSumTax", "CGTTrustOther", "CGTDetails", "CGTDetailsOther", "CPIDefault", "DBSearch",
                              "RNAMonIncReq", "DISACars", "HeadFoot"})
        sql += "DROP TABLE " + std::string(table) + ";";
    for (const char* field :
         {"Data.RRRNEWPeriod", "Data.RegMpayDet1", "Data.AgeRetiment", "Data.RANotes", "Data.NaraLastReview",
          "Data.InvestAmount", "Data.AnnMonIncShare", "Data.TaxCGT", "Data.RNATravelItemise", "PersDetails.Description",
          "PersDetails.Deceased", "PersDetails.DEPDOB8", "PolsInvests.RBMonAvaible", "DTHCars.MatAtAge"}) {
        const std::string name = field;
        const auto point = name.find('.');
        sql += "ALTER TABLE " + name.substr(0, point) + " DROP COLUMN " + name.substr(point + 1) + ";";
    }
    folder.run("Data.Mdb", sql);
}

TEST(RoundTrip, AFileOfVersion3IsBroughtUpAndThenHoldsEverything) {
    const ProgramFolder folder;
    makeOld(folder);
    folder.run("Data.Mdb", "INSERT INTO Data(DCLNO,Name,Num1) VALUES(7,'Old client',5);"
                           "INSERT INTO PersDetails(DCLNO,Name,CLName) VALUES(7,'Old client','Client')");
    Assessment record;
    ASSERT_EQ(datastore::startUp(folder.path(), record).paths.UpDateDBValue, datastore::currentVersion);
    datastore::load(record, folder.paths(), 7);
    EXPECT_EQ(record.client.Name, "Old client");
    EXPECT_EQ(record.loans.Num1, 5);
    // What the old file did not know, or left Null, is blank.
    EXPECT_EQ(record.client.BirthDate, base::blankDate);
    EXPECT_EQ(record.retirement.NaraLastReview, base::blankDate);
    EXPECT_EQ(record.retirement.AgeRetiment, 0);
    EXPECT_EQ(record.retirement.RANotes, "");
    EXPECT_EQ(record.incomeShares.AnnMonIncShare, "annually");
    EXPECT_EQ(cell(folder / "Data.Mdb", "SELECT TaxCGT FROM Data"), "Null");
    EXPECT_EQ(record.policies.size(), 1U);
    // It has no row of capital gains or lump sums yet, and can be saved all the same.
    record.ClientChanged = 1;
    record.lumpSums.FstLumpTaken = 2;
    EXPECT_EQ(datastore::Save(record, folder / "Data.Mdb"), datastore::Saved::written);
    Assessment saved = fullClient();
    datastore::Save(saved, folder / "Data.Mdb");
    EXPECT_EQ(saved.DCLNO, 8);
    Assessment loaded;
    datastore::load(loaded, folder.paths(), 8);
    expectSameClient(saved, loaded);
    datastore::load(loaded, folder.paths(), 7);
    expectSameClient(record, loaded);
    EXPECT_EQ(loaded.lumpSums.FstLumpTaken, 2);
}

} // namespace
