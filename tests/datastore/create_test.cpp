#include "datastore/create.h"

#include <set>

#include "base/text.h"
#include "datastore/datastore_support.h"

namespace {

using namespace datastoretest;
using datastore::Creator;
using datastore::MakeNewDb;

TEST(MakeNewDb, MakesTheTablesOfTheClientDatabase) {
    const storetest::Folder folder;
    const fs::path file = folder / "Data.Mdb";
    ASSERT_TRUE(MakeNewDb(file));
    EXPECT_EQ(rowsOf(file, "SELECT count(*) FROM sqlite_master WHERE type='table'"), "46");
    EXPECT_EQ(modeOf(file), 0600U);
    for (const auto& [table, fields, indexes] : // fields with the unused first one; a later version may add some
         {std::tuple{"Data", 231 + 1, 2},
          {"PersDetails", 68 + 1, 3},
          {"DataSetup", 2, 0},
          {"RNAFutureMonInc", 8, 1},
          {"PolsInvests", 62 + 1, 1},
          {"CGTTrustOther", 9, 0},
          {"LumpSumTax", 58, 1}}) {
        const std::string of = "('" + std::string(table) + "')";
        EXPECT_GE(std::stoi(rowsOf(file, "SELECT count(*) FROM pragma_table_info" + of)), fields) << table;
        EXPECT_EQ(rowsOf(file, "SELECT count(*) FROM pragma_index_list" + of + " WHERE [unique]=0"),
                  std::to_string(indexes))
            << table;
        EXPECT_EQ(rowsOf(file, "SELECT name||type FROM pragma_table_info" + of + " LIMIT 1"), "In UseBOOLEAN");
    }
    for (const auto& [table, field, declared] : {std::tuple{"Data", "DCLNO", "DOUBLE|0"},
                                                 {"Data", "RASurname", "VARCHAR(200)|"},
                                                 {"Data", "OMBP3", "SMALLINT|"},
                                                 {"Data", "BMBP4", "REAL|"},
                                                 {"Data", "BirthDate", "DATE DOUBLE|"},
                                                 {"Data", "RATaxPayerAge", "SMALLINT|0"},
                                                 {"CGTDetails", "CGTAsset", "VARCHAR(4)|"},
                                                 {"RNATravel", "IncomeSource", "VARCHAR(60)|''"}})
        EXPECT_EQ(rowsOf(file, "SELECT type||'|'||ifnull(dflt_value,'') FROM pragma_table_info('" + std::string(table) +
                                   "') WHERE name='" + field + "'"),
                  declared)
            << field;
    for (const assessment::TableDescription* table : assessment::clientTables()) {
        std::set<std::string> names;
        for (const auto& line : table->fields())
            EXPECT_TRUE(names.insert(base::lowerAscii(line.name)).second) << line.name; // names differ not only in case
    }
}

using MakeNewDbTest = ClientFileTest;

TEST_F(MakeNewDbTest, CompletesAnExistingFileAndDisturbsNothing) {
    run("INSERT INTO Data(DCLNO,Name) VALUES(1,'A'),(2,'B'); ALTER TABLE Data ADD COLUMN Extra TEXT;"
        "UPDATE Data SET Extra='kept'; INSERT INTO RNATravel(DCLNO,Amount) VALUES(1,9)");
    const std::string before = dump(file);
    ASSERT_TRUE(MakeNewDb(file));
    EXPECT_EQ(dump(file), before);
    run("ALTER TABLE Data DROP COLUMN TaxCGT; ALTER TABLE RNATravel DROP COLUMN Amount;"
        "ALTER TABLE Data DROP COLUMN Num1; DROP TABLE LumpSumTax; DROP INDEX Data_Name");
    ASSERT_TRUE(MakeNewDb(file));
    EXPECT_EQ(in("SELECT count(*) FROM Data WHERE TaxCGT IS NULL AND Num1 IS NULL AND Extra='kept'"), "2");
    EXPECT_EQ(in("SELECT Amount IS NULL FROM RNATravel"), "1"); // not the default of the field
    run("INSERT INTO RNATravel(DCLNO) VALUES(2)");
    EXPECT_EQ(in("SELECT Amount FROM RNATravel WHERE DCLNO=2"), "0");
    EXPECT_EQ(in("SELECT count(*) FROM LumpSumTax"), "0");
    EXPECT_EQ(in("SELECT count(*) FROM sqlite_master WHERE name='Data_Name'"), "1");
}

TEST(MakeNewDb, TellsTheUserWhereItCannotWork) {
    const storetest::Folder folder;
    storetest::put(folder / "Data.Mdb", "no database");
    for (const fs::path& path : {folder / "Data.Mdb", folder / "gone/Data.Mdb"}) {
        std::string told;
        EXPECT_FALSE(
            MakeNewDb(path, [&](const std::string& title, const std::string& text) { told = title + "|" + text; }));
        EXPECT_EQ(told,
                  "Operation Unsuccessful|Cannot Update " + path.string() + " at this stage.Please try again later");
    }
    EXPECT_EQ(storetest::bytesOf(folder / "Data.Mdb"), "no database");
}

TEST(Creator, TakesEffectWholeOrNotAtAll) {
    const storetest::Folder folder;
    const fs::path file = folder / "CopyData.Mdb";
    {
        Creator creator;
        creator.CreateOrOpenDb(file);
        creator.CreateOrOpenTable("T");
        creator.AddField("F", store::Type::Double, 0, 0);
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
    Creator creator;
    creator.CreateOrOpenDb(file);
    creator.CreateOrOpenTable("T");
    creator.AddField("Number", store::Type::Double, 0, 10);
    creator.AddField("Words", store::Type::Text, 5, 11);
    creator.AddField("NUMBER", store::Type::Text, 9, 0); // exists already
    creator.AddField("Plain", store::Type::Integer, 0, 12);
    for (int twice = 0; twice < 2; ++twice)
        creator.AddIndex("Number, Words", "Both", false, false);
    creator.AddIndex("Nothing", "Bad", false, false); // a field that is not there: no index, and no error
    creator.AddIndex("Words", "Unique", false, true);
    creator.finish();
    store::Database database(file);
    database.execute("INSERT INTO T([In Use]) VALUES(0)");
    EXPECT_EQ(rowsOf(file, "SELECT Number||'['||Words||']'||ifnull(Plain,'Null') FROM T"), "0.0[]Null");
    EXPECT_EQ(rowsOf(file, "SELECT group_concat(name) FROM pragma_index_info('T_Both')"), "Number,Words");
    EXPECT_EQ(rowsOf(file, "SELECT count(*) FROM sqlite_master WHERE type='index'"), "2");
    EXPECT_EQ(errorOf([&] { database.execute("INSERT INTO T([In Use]) VALUES(0)"); }), 3000);
}

} // namespace
