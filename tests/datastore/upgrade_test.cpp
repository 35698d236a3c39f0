#include "datastore/upgrade.h"

#include "datastore/datastore_support.h"
#include "datastore/headfoot.h"
#include "datastore/startup.h"

namespace {

using namespace datastoretest;

class LadderTest : public ::testing::Test {
protected:
    double start() {
        Assessment record;
        return datastore::startUp(folder.path(), record).paths.UpDateDBValue;
    }
    std::string drawing(double key) const {
        return cell(file, "SELECT InitPercRequire FROM Data WHERE DCLNO=" + std::to_string(key));
    }
    ProgramFolder folder;
    fs::path file = folder / "Data.Mdb";
};

TEST_F(LadderTest, EachVersionClimbsToTheCurrentOneAtOnce) {
    const struct {
        double version;
        const char* drawing; ///< of 8 percent a year of 1000 rand
        const char* printLine;
    } cases[] = {{1, "80", ""},
                 {3, "80", ""},
                 {3.5, "8", ""},
                 {4, "8", ""},
                 {17, "8", ""},
                 {17.5, "8", ""},
                 {datastore::currentVersion, "8", "old"},
                 {datastore::currentVersion + 1, "8", "old"}};
    for (const auto& [version, expected, printLine] : cases) {
        const double after = std::max(version, datastore::currentVersion);
        const ProgramFolder fresh;
        fresh.makeClientDb(version);
        fresh.run("Data.Mdb", "INSERT INTO Data(DCLNO,InvestAmount,InitPercRequire,AnnMonIncShare) "
                              "VALUES(1,1000,8,'annually')");
        for (int starts = 0; starts < 2; ++starts) {
            Assessment record;
            EXPECT_EQ(datastore::startUp(fresh.path(), record).paths.UpDateDBValue, after) << version;
            EXPECT_EQ(cell(fresh / "Data.Mdb", "SELECT InitPercRequire FROM Data"), expected) << version;
        }
        EXPECT_EQ(std::stod(cell(fresh / "Data.Mdb", "SELECT UpDateDB FROM DataSetup")), after);
        EXPECT_EQ(cell(fresh / "Print.mdb", "SELECT HEADERV0 FROM HeadFoot"), printLine) << version;
    }
}

TEST_F(LadderTest, PercentagesBecomeWholeRandOnce) {
    folder.makeClientDb(3);
    const struct {
        const char* row; ///< InvestAmount, InitPercRequire, AnnMonIncShare
        const char* rand;
    } cases[] = {
        {"100000, 7.5, 'annually'", "7500"},
        {"100000, 7.5, 'Monthly '", "625"},
        {"100000, 1.23456, 'annually'", "1235"}, // 0.012346 after six places
        {"250, 1, 'annually'", "2"},             // 2.5
        {"350, 1, 'annually'", "4"},             // 3.5: ties to even
        {"1000, 5.5, 'weekly'", "6"},
        {"1000, 4.5, NULL", "4"},
        {"1000, NULL, 'annually'", "0"},
        {"NULL, 12, 'monthly'", "0"}, // from before the shares screen
        {"0, 12, 'monthly'", "0"},
    };
    int key = 0;
    for (const auto& row : cases)
        folder.run("Data.Mdb", "INSERT INTO Data(DCLNO,InvestAmount,InitPercRequire,AnnMonIncShare) VALUES(" +
                                   std::to_string(++key) + "," + row.row + ")");
    EXPECT_EQ(start(), datastore::currentVersion);
    key = 0;
    for (const auto& [row, rand] : cases)
        EXPECT_EQ(drawing(++key), rand) << row;
    EXPECT_EQ(cell(file, "SELECT AnnMonIncShare FROM Data WHERE DCLNO=9"), "annually");
    EXPECT_EQ(cell(file, "SELECT AnnMonIncShare FROM Data WHERE DCLNO=10"), "monthly"); // 0 is not Null
}

TEST_F(LadderTest, NothingIsStampedOrConvertedUntilPrintMdbHasTheLines) {
    folder.makeClientDb(3);
    folder.run("Data.Mdb", "INSERT INTO Data(DCLNO,InvestAmount,InitPercRequire,AnnMonIncShare) "
                           "VALUES(1,1000,8,'annually'); DROP TABLE LumpSumTax; UPDATE HeadFoot SET HEADERV0='new'");
    const std::string before = dump(file);
    fs::rename(folder / "Print.mdb", folder / "away");
    EXPECT_EQ(errorOf([&] { start(); }), 3024);
    EXPECT_EQ(dump(file), before);
    fs::rename(folder / "away", folder / "Print.mdb");
    EXPECT_EQ(start(), datastore::currentVersion);
    EXPECT_EQ(drawing(1), "80");
    EXPECT_EQ(cell(folder / "Print.mdb", "SELECT HEADERV0||footv0 FROM HeadFoot"),
              "newThis report was prepared in accordance with ");
    fs::remove(folder / "Print.mdb");
    EXPECT_EQ(start(), datastore::currentVersion); // an up-to-date file does not need it
}

TEST_F(LadderTest, AVersionThatCannotBeReadEndsTheStart) {
    const struct {
        const char* sql;
        int error;
    } cases[] = {{"UPDATE DataSetup SET UpDateDB=NULL", 94},
                 {"UPDATE DataSetup SET UpDateDB='old'", 3421},
                 {"DELETE FROM DataSetup", 3021},
                 {"DROP TABLE DataSetup; CREATE TABLE DataSetup(Other)", 3265},
                 {"DROP TABLE DataSetup", 3011}};
    for (const auto& [sql, error] : cases) {
        folder.makeClientDb(3);
        folder.run("Data.Mdb", sql);
        const std::string before = storetest::bytesOf(file);
        EXPECT_EQ(errorOf([&] { start(); }), error) << sql;
        EXPECT_EQ(storetest::bytesOf(file), before) << sql;
    }
    folder.makeClientDb(3);
    folder.run("Data.Mdb", "INSERT INTO DataSetup(UpDateDB) VALUES(5)");
    EXPECT_EQ(start(), datastore::currentVersion);
    EXPECT_EQ(cell(file, "SELECT group_concat(UpDateDB) FROM DataSetup"),
              current + ".0,5.0"); // the first row alone counts
}

TEST_F(LadderTest, EscalationsLeftNullBecomeZero) {
    folder.makeClientDb(5);
    folder.run("Data.Mdb", "INSERT INTO RNAMonIncReq(DCLNO,Escalation) VALUES(1,NULL),(1,6)");
    EXPECT_EQ(start(), datastore::currentVersion);
    EXPECT_EQ(cell(file, "SELECT group_concat(Escalation) FROM RNAMonIncReq"), "0.0,6.0");
}

TEST_F(LadderTest, HeaderAndFooterLinesGoToBothDatabases) {
    folder.makeClientDb();
    assessment::HeadFootLines lines = datastore::readHeadFoot(folder.paths());
    EXPECT_EQ(lines.HeaderV[0], "");
    EXPECT_EQ(lines.FootV[1], "information supplied by the undersigned client.");
    lines.HeaderV[3] = longText("O'Brien & Seun <b>", 80);
    lines.FootV[0] = "Êksteen";
    datastore::writeHeadFoot(folder.paths(), lines);
    EXPECT_EQ(datastore::readHeadFoot(folder.paths()).HeaderV, lines.HeaderV);
    EXPECT_EQ(cell(folder / "Print.mdb", "SELECT HEADERV3||footv0 FROM HeadFoot"), lines.HeaderV[3] + "Êksteen");
    folder.run("Print.mdb", "DELETE FROM HeadFoot");
    datastore::writeHeadFoot(folder.paths(), lines); // adds the row
    EXPECT_EQ(cell(folder / "Print.mdb", "SELECT count(*) FROM HeadFoot"), "1");
    lines.FootV[0] = std::string(81, 'x');
    EXPECT_EQ(errorOf([&] { datastore::writeHeadFoot(folder.paths(), lines); }), 3163);
    fs::remove(folder / "Print.mdb");
    lines.FootV[0] = "kept in the client database";
    EXPECT_EQ(errorOf([&] { datastore::writeHeadFoot(folder.paths(), lines); }), 3024);
    EXPECT_EQ(datastore::readHeadFoot(folder.paths()).FootV[0], "kept in the client database");
}

} // namespace
