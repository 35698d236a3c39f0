#include "datastore/upgrade.h"

#include "datastore/datastore_support.h"
#include "datastore/headfoot.h"

namespace {

using namespace datastoretest;

class UpgradeTest : public ClientFileTest {
protected:
    double version() { return start().paths.UpDateDBValue; } ///< after a start
    /// A client of that key on file whose shares draw an income.
    void addDrawing(int key, const std::string& investAmountPercentAndRate) const {
        run("INSERT INTO Data(DCLNO,InvestAmount,InitPercRequire,AnnMonIncShare) VALUES(" + std::to_string(key) + "," +
            investAmountPercentAndRate + ")");
    }
    std::string incomeDrawn(int key) const {
        return in("SELECT InitPercRequire FROM Data WHERE DCLNO=" + std::to_string(key));
    }
};

TEST_F(UpgradeTest, EachVersionIsUpgradedToTheCurrentOneAtOnce) {
    for (const auto& [before, rand, printLine] : {std::tuple{1.0, "80", ""},
                                                  {3.0, "80", ""},
                                                  {3.5, "8", ""},
                                                  {17.5, "8", ""},
                                                  {datastore::currentVersion, "8", "old"},
                                                  {datastore::currentVersion + 1, "8", "old"}}) {
        folder.makeClientDb(before);
        folder.run("Print.mdb", "UPDATE HeadFoot SET HEADERV0='old'");
        addDrawing(1, "1000,8,'annually'");
        for (int starts = 0; starts < 2; ++starts) {
            EXPECT_EQ(version(), std::max(before, datastore::currentVersion)) << before;
            EXPECT_EQ(incomeDrawn(1), rand) << before;
        }
        EXPECT_EQ(std::stod(in("SELECT UpDateDB FROM DataSetup")), std::max(before, datastore::currentVersion));
        EXPECT_EQ(rowsOf(print, "SELECT HEADERV0 FROM HeadFoot"), printLine) << before;
    }
}

TEST_F(UpgradeTest, PercentagesBecomeWholeRandOnceAndEscalationsLeftNullNone) {
    folder.makeClientDb(3);
    const std::pair<const char*, const char*> cases[] = {
        {"100000, 7.5, 'annually'", "7500"},
        {"100000, 7.5, 'Monthly '", "625"},
        {"100000, 1.23456, 'annually'", "1235"}, // 0.012346 rounded to six places
        {"250, 1, 'annually'", "2"},             // 2.5
        {"350, 1, 'annually'", "4"},             // 3.5: ties to even
        {"1000, 5.5, 'weekly'", "6"},
        {"1000, 4.5, NULL", "4"},
        {"1000, NULL, 'annually'", "0"},
        {"NULL, 12, 'monthly'", "0"}, // from before the shares screen
        {"0, 12, 'monthly'", "0"},
    };
    int key = 0;
    for (const auto& [row, rand] : cases)
        addDrawing(++key, row);
    run("INSERT INTO RNAMonIncReq(DCLNO,Escalation) VALUES(1,NULL),(1,6)");
    EXPECT_EQ(version(), datastore::currentVersion);
    EXPECT_EQ(in("SELECT group_concat(Escalation) FROM RNAMonIncReq"), "0.0,6.0"); // one left Null is none
    key = 0;
    for (const auto& [row, rand] : cases)
        EXPECT_EQ(incomeDrawn(++key), rand) << row;
    EXPECT_EQ(in("SELECT AnnMonIncShare FROM Data WHERE DCLNO=9"), "annually");
    EXPECT_EQ(in("SELECT AnnMonIncShare FROM Data WHERE DCLNO=10"), "monthly"); // 0 is not Null
}

TEST_F(UpgradeTest, NothingIsStampedOrConvertedUntilPrintMdbHasTheLines) {
    folder.makeClientDb(3);
    addDrawing(1, "1000,8,'annually'");
    run("DROP TABLE LumpSumTax; UPDATE HeadFoot SET HEADERV0='new'");
    const std::string before = dump(file);
    fs::rename(print, folder / "away");
    EXPECT_EQ(startError(), 3024);
    EXPECT_EQ(dump(file), before);
    fs::rename(folder / "away", print);
    EXPECT_EQ(version(), datastore::currentVersion);
    EXPECT_EQ(incomeDrawn(1), "80");
    EXPECT_EQ(rowsOf(print, "SELECT HEADERV0||footv0 FROM HeadFoot"),
              "newThis report was prepared in accordance with ");
    fs::remove(print);
    EXPECT_EQ(version(), datastore::currentVersion); // an up-to-date file does not need Print.mdb
}

TEST_F(UpgradeTest, AVersionThatCannotBeReadEndsTheStart) {
    for (const auto& [sql, error] : {std::pair{"UPDATE DataSetup SET UpDateDB=NULL", 94},
                                     {"UPDATE DataSetup SET UpDateDB='old'", 3421},
                                     {"DELETE FROM DataSetup", 3021},
                                     {"DROP TABLE DataSetup; CREATE TABLE DataSetup(Other)", 3265},
                                     {"DROP TABLE DataSetup", 3011}}) {
        folder.makeClientDb(3);
        run(sql);
        const std::string before = storetest::bytesOf(file);
        EXPECT_EQ(startError(), error) << sql;
        EXPECT_EQ(storetest::bytesOf(file), before) << sql;
    }
    folder.makeClientDb(3);
    run("INSERT INTO DataSetup(UpDateDB) VALUES(5)");
    EXPECT_EQ(version(), datastore::currentVersion);
    EXPECT_EQ(in("SELECT group_concat(UpDateDB) FROM DataSetup"), current + ".0,5.0"); // only the first row counts
}

TEST_F(UpgradeTest, HeaderAndFooterLinesGoToBothDatabases) {
    assessment::HeadFootLines lines = datastore::readHeadFoot(folder.paths());
    const auto writeError = [&] { return errorOf([&] { datastore::writeHeadFoot(folder.paths(), lines); }); };
    lines.HeaderV[3] = longText("O'Brien & Seun <b>", 80);
    lines.FootV[0] = "Êksteen";
    EXPECT_EQ(writeError(), 0);
    EXPECT_EQ(datastore::readHeadFoot(folder.paths()).HeaderV, lines.HeaderV);
    EXPECT_EQ(rowsOf(print, "SELECT HEADERV3||footv0 FROM HeadFoot"), lines.HeaderV[3] + "Êksteen");
    folder.run("Print.mdb", "DELETE FROM HeadFoot");
    EXPECT_EQ(writeError(), 0); // adds the row
    EXPECT_EQ(rowsOf(print, "SELECT count(*) FROM HeadFoot"), "1");
    lines.FootV[0] = std::string(81, 'x');
    EXPECT_EQ(writeError(), 3163);
    fs::remove(print);
    lines.FootV[0] = "kept in the client database";
    EXPECT_EQ(writeError(), 3024);
    EXPECT_EQ(datastore::readHeadFoot(folder.paths()).FootV[0], "kept in the client database");
}

} // namespace
