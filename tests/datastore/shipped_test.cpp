#include "datastore/shipped.h"

#include "datastore/datastore_support.h"

/// The databases that come with the program, in the state of an older version.
namespace {

using namespace datastoretest;

std::string declaredIn(const fs::path& file) {
    return rowsOf(file,
                  "SELECT group_concat(sql) FROM (SELECT sql FROM sqlite_master WHERE type='table' ORDER BY name)");
}

using Shipped = StartTest;

TEST_F(Shipped, PrintMdbIsMadeAnewWhereItsTablesAreOthers) {
    start();
    run("UPDATE HeadFoot SET HEADERV0='The practice'");
    const std::string shipped = declaredIn(print);
    for (const char* older :
         {"ALTER TABLE Loans DROP COLUMN Num4", "DROP TABLE Amort", "ALTER TABLE IRP5Mon ADD COLUMN More DOUBLE",
          "CREATE TABLE Another(A)", "ALTER TABLE kwiktax RENAME AGE TO Years", "damaged", "no database"}) {
        const std::string spoilt = storetest::bytesOf(print);
        if (older == std::string("damaged"))
            storetest::put(print, spoilt.substr(0, spoilt.size() / 2));
        else if (older == std::string("no database"))
            storetest::put(print, "");
        else
            folder.run("Print.mdb", older);
        storetest::put(folder / "Print.mdb-journal", "of the old file");
        storetest::put(folder / ".Print.mdb.new", "of a killed start");
        start();
        EXPECT_EQ(declaredIn(print), shipped) << older;
        EXPECT_EQ(rowsOf(print, "SELECT HEADERV0||footv0 FROM HeadFoot"),
                  "The practiceThis report was prepared in accordance with ")
            << older;
        EXPECT_EQ(rowsOf(print, "SELECT count(*) FROM PAYESetup"), "1") << older; // tables that are shipped with a row
        EXPECT_FALSE(fs::exists(folder / ".Print.mdb.new"));
    }
    const auto written = fs::last_write_time(print);
    start();
    EXPECT_EQ(fs::last_write_time(print), written); // it was up to date and is unchanged
}

TEST_F(Shipped, PrintMdbOfAnOldClientDatabaseGetsTheLinesWithItsUpgrade) {
    folder.makeClientDb(5);
    run("DROP TABLE HeadFoot");
    folder.run("Print.mdb", "DROP TABLE Amort");
    start();
    EXPECT_EQ(rowsOf(print, "SELECT footv0 FROM HeadFoot"), "This report was prepared in accordance with ");
}

TEST_F(Shipped, SettingsAreCompletedAndTheUsersOwnKept) {
    for (const auto& [older, asked, expected] :
         {std::tuple{"DROP TABLE Setup", "SELECT GRINC||RptLanguage FROM Setup", "0.5E"},
          {"ALTER TABLE PAYESetup DROP COLUMN SkillLevy; UPDATE PAYESetup SET UIFLimit=9",
           "SELECT SkillLevy||'|'||UIFLimit FROM PAYESetup", "1.0|9.0"},
          {"ALTER TABLE TallowenDefault RENAME UTDiv TO Mine; UPDATE MutualFunds SET UTDiv=7",
           "SELECT t.UTDiv||'|'||Mine||'|'||m.UTDiv FROM TallowenDefault t, MutualFunds m", "3.0|3.0|7.0"},
          {"ALTER TABLE livann DROP COLUMN MinIncAllowed; DELETE FROM livann", "SELECT count(*) FROM livann", "0"}}) {
        folder.run("Default.Mdb", older);
        start();
        EXPECT_EQ(rowsOf(settings, asked), expected) << older;
        const std::string completed = dump(settings);
        start();
        EXPECT_EQ(dump(settings), completed) << older;
    }
}

} // namespace
