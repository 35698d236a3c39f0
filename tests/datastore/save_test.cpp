#include "datastore/save.h"

#include "datastore/datastore_support.h"

namespace {

using namespace datastoretest;
using datastore::Save;
using datastore::Saved;

class SaveTest : public ClientFileTest {
protected:
    std::string rowCount(const std::string& table, double key) const {
        return in("SELECT count(*) FROM [" + table + "] WHERE DCLNO=" + std::to_string(key));
    }
};

TEST_F(SaveTest, KeysCountUpFromTheHighest) {
    for (double key = 1; key <= 3; ++key) {
        Assessment next;
        ASSERT_EQ(Save(next, file), Saved::written);
        EXPECT_EQ(next.DCLNO, key);
    }
    run("DELETE FROM Data WHERE DCLNO IN (1,3)");
    Save(record, file);
    EXPECT_EQ(record.DCLNO, 3); // a key is reused only if it was the highest
    EXPECT_EQ(in("SELECT count(*) FROM PersDetails WHERE DCLNO=3"), "2");
}

TEST_F(SaveTest, WritesOnlyWhatChangedAndClearsAllFlagsButTheAnnuitys) {
    Save(record, file);
    EXPECT_EQ(record.ClientOnFile, 1);
    const std::string before = storetest::bytesOf(file);
    EXPECT_EQ(Save(record, file), Saved::nothing);
    EXPECT_EQ(storetest::bytesOf(file), before);
    record.changed.DDLivAnnChanged = record.changed.LoansChanged = record.changed.SpareChanged = 1;
    EXPECT_EQ(Save(record, file), Saved::written);
    EXPECT_EQ(record.ClientChanged, 0);
    EXPECT_EQ(record.changed.LoansChanged + record.changed.SpareChanged, 0);
    EXPECT_EQ(record.changed.DDLivAnnChanged, 1);
    EXPECT_EQ(Save(record, file), Saved::written); // so the next save writes again
    EXPECT_EQ(rowCount("Data", 1), "1");
}

TEST_F(SaveTest, EmptyDatesAreStoredAsTheFirstOfJanuary1800) {
    for (const double born : {base::NoDate, base::NoDate - 1, base::blankDate}) {
        record = {};
        record.client.BirthDate = born;
        record.dailyBalance.StartDateDB = record.dailyBalance.EndDateDB = static_cast<std::int32_t>(base::NoDate);
        record.retirement.NaraLastReview = record.education.EducNextReview = base::NoDate;
        record.details.DEPDOB[7] = record.details.NextApp = base::NoDate;
        record.capitalGains.assets.resize(1);
        Save(record, file);
        for (const auto& [table, fields, stored] :
             {std::tuple{"Data", "BirthDate, StartDateDB, EndDateDB, NaraLastReview, EducNextReview", "-36522"},
              {"PersDetails", "BirthDate, DEPDOB8, NextApp", "-36522"},
              {"CGTDetails", "DateAquired, DateSale", "-36522"},
              {"PolsInvests", "InceptionDate, InceptionDate", "-693959"}})
            for (const char* most : {"max(", "min("})
                EXPECT_EQ(in(std::string("SELECT ") + most + fields + ") FROM " + table +
                             " WHERE DCLNO=" + std::to_string(record.DCLNO)),
                          stored)
                    << fields;
        EXPECT_EQ(record.client.BirthDate, base::blankDate);
        const Assessment again = loaded(record.DCLNO);
        EXPECT_EQ(again.capitalGains.assets.at(0).DateSale, base::NoDate); // the gain's arithmetic tests for it
        EXPECT_EQ(again.policies[0].InceptionDate, base::NoDate);
        EXPECT_EQ(again.dailyBalance.StartDateDB, base::blankDate);
    }
}

TEST_F(SaveTest, AListIsKeptOnlyWhileItsFlagIsOne) {
    record = fullClient();
    record.itemised.DTHInvestments.flag = 1;
    record.itemised.DTHInvestments.rows.emplace_back().IncomeSource = "unit trusts";
    Save(record, file);
    EXPECT_EQ(rowCount("DTHInvestments", 1), "0"); // this list and its flag are never stored
    EXPECT_EQ(in("SELECT DTHInvestmentsItemise FROM Data"), "0");
    run("INSERT INTO DTHInvestments(DCLNO) VALUES(1); INSERT INTO CGTTrustOther(DCLNO) VALUES(9)");
    EXPECT_NE(rowCount("RNAStocks", 1), "0");
    record.itemised.RNAStocks.flag = 0;
    record.itemised.DISACars.flag = 2; // neither on nor off: stored like that, without rows
    record.itemised.RNATravel.rows.clear();
    record.capitalGains.ItemiseAdditCapGain = 0;
    record.capitalGains.assets.resize(2);
    record.policies.resize(1);
    record.ClientChanged = 1;
    Save(record, file);
    for (const char* table : {"RNAStocks", "DISACars", "RNATravel", "CGTTrustOther", "DTHInvestments"})
        EXPECT_EQ(rowCount(table, 1), "0") << table;
    EXPECT_EQ(rowCount("CGTTrustOther", 9), "1");
    EXPECT_EQ(rowCount("CGTDetails", 1), "2");
    EXPECT_EQ(rowCount("PolsInvests", 1), "1");
    Assessment again = loaded();
    EXPECT_EQ(again.itemised.RNAStocks.rows.size(), 0U);
    EXPECT_EQ(again.itemised.DISACars.flag, 2);
    EXPECT_EQ(again.itemised.RNATravel.flag, 1);
    EXPECT_TRUE(again.itemised.RNATravel.rows.empty());
    EXPECT_EQ(again.itemised.DTHInvestments.flag, 0);
}

TEST_F(SaveTest, RowsLeftBehindByADeletedClientDoNotHideTheNewOnes) {
    for (const char* table : {"CGTDetailsOther", "LumpSumTax", "CGTDetails"})
        run("INSERT INTO " + std::string(table) + "(DCLNO) VALUES(1)");
    record = fullClient();
    Save(record, file);
    EXPECT_EQ(rowCount("LumpSumTax", 1), "1");
    Assessment again = loaded();
    expectSameClient(record, again);
}

TEST_F(SaveTest, AClientWithoutRowsIsAddedToAnEmptyTableAndElseAnError) {
    Save(record, file);
    run("DELETE FROM Data; DELETE FROM PersDetails; DELETE FROM LumpSumTax");
    record.ClientChanged = 1;
    EXPECT_EQ(Save(record, file), Saved::written);
    EXPECT_EQ(rowCount("PersDetails", 1), "1");
    Assessment other;
    Save(other, file);
    for (const char* table : {"Data", "PersDetails"}) {
        run("UPDATE " + std::string(table) + " SET DCLNO=99 WHERE DCLNO=1");
        const std::string before = dump(file);
        record.ClientChanged = record.SaveThenNew = 1;
        EXPECT_EQ(errorOf([&] { Save(record, file); }), 3021);
        EXPECT_EQ(dump(file), before);
        EXPECT_EQ(record.ClientChanged, 1);
        EXPECT_EQ(record.SaveThenNew, 0);
        run("UPDATE " + std::string(table) + " SET DCLNO=1 WHERE DCLNO=99");
    }
}

TEST_F(SaveTest, WritesOverNoStrangerAndOnlyWhenToldOverAnothersChanges) {
    const std::tuple<const char*, bool, bool> cases[] = {
        {"UPDATE Data SET Name='Ms A Botha'; UPDATE PersDetails SET Name='Ms A Botha', BirthDate=25569", true, true},
        {"UPDATE Data SET BirthDate=3; UPDATE PersDetails SET BirthDate=3", true, true},
        {"UPDATE Data SET BirthDate=NULL; UPDATE PersDetails SET BirthDate=NULL", true, true},
        {"UPDATE Data SET Num2=Num2+1", false, true},
        {"UPDATE PersDetails SET CCell='083 555 0101'", false, true},
        {"UPDATE PolsInvests SET DeathBen=1 WHERE rowid=(SELECT max(rowid) FROM PolsInvests)", false, true},
        {"DELETE FROM DISAOtherExp WHERE rowid=1", false, true},
        {"UPDATE CGTTrustOther SET Proceeds=NULL", false, true},
        {"UPDATE LumpSumTax SET FstLumpTaken=-1", false, true},
        {"UPDATE CPIDefault SET CPI=9; UPDATE HeadFoot SET HEADERV0='x'; INSERT INTO Data(DCLNO) VALUES(7)", false,
         false},
    };
    for (const bool afterALoad : {true, false})
        for (const auto& [meanwhile, isStranger, isChange] : cases) {
            folder.makeClientDb();
            record = fullClient();
            record.client.Name = "Mr P J O'Brien";
            Save(record, file);
            if (afterALoad) record = loaded();
            record.loans.Num1 = 42;
            record.ClientChanged = record.changed.LoansChanged = record.SaveThenNew = 1;
            run(meanwhile);
            const std::string before = dump(file);
            const std::string now = in("SELECT Name FROM PersDetails");
            try {
                EXPECT_EQ(Save(record, file), Saved::thenNew) << meanwhile;
                EXPECT_FALSE(isChange) << meanwhile;
                continue;
            } catch (const datastore::OtherClientInFile& error) {
                EXPECT_TRUE(isStranger) << meanwhile;
                EXPECT_EQ(error.why().find("Client 1 in the file is now " + now), 0U) << error.why();
            } catch (const datastore::ChangedInFile&) {
                EXPECT_TRUE(isChange && !isStranger) << meanwhile;
            }
            EXPECT_EQ(dump(file), before) << meanwhile;
            EXPECT_EQ(record.ClientChanged + record.changed.LoansChanged, 2) << meanwhile;
            const int error = errorOf([&] { Save(record, file, datastore::TheirChanges::overwrite); });
            EXPECT_EQ(error, isStranger ? 3197 : 0) << meanwhile;
            if (isStranger) continue;
            Assessment again = loaded();
            expectSameClient(record, again);
        }
}

TEST_F(SaveTest, RefusesWhatAFieldCannotHold) {
    const std::pair<std::function<void(Assessment&)>, int> cases[] = {
        {[](Assessment& a) { a.policies.at(9).PolIncAddNote = longText("n", 121); }, 3163},
        {[](Assessment& a) { a.policies.at(9).PremInvAmtMonthlyAnnEsc = 32768; }, 3421},
        {[](Assessment& a) { a.loans.Num4 = std::numeric_limits<double>::infinity(); }, 3421},
    };
    Assessment good = fullClient();
    Save(good, file);
    const std::string before = dump(file);
    for (const auto& [spoil, error] : cases) {
        Assessment bad = good;
        spoil(bad);
        bad.ClientChanged = 1;
        EXPECT_EQ(errorOf([&] { Save(bad, file); }), error);
        EXPECT_EQ(dump(file), before);
        EXPECT_EQ(bad.ClientChanged, 1);
    }
}

} // namespace
