#include "datastore/settings.h"

#include "store/store_support.h"

using namespace storetest;
using datastore::editOrAddRow;
using datastore::readSettings;
using datastore::writeSettings;

TEST(Settings, TheFirstRowIsReadAndEdited) {
    const Folder folder;
    const fs::path path = folder / "Default.Mdb";
    store::Database::create(path);
    store::Database(path).execute("CREATE TABLE Setup (GRINC DOUBLE, RptLanguage VARCHAR(1));"
                                  "INSERT INTO Setup VALUES (0.5, 'E'), (9, 'X');"
                                  "CREATE TABLE Bare (CPI DOUBLE)");
    writeSettings(path, "setup", {{"grinc", 0.25}});
    EXPECT_EQ(readSettings(path, "Setup").number("grinc"), 0.25);
    EXPECT_EQ(readSettings(path, "Setup").text("rptlanguage"), "E");

    EXPECT_EQ(errorOf([&] { readSettings(path, "Bare"); }), 3021);
    EXPECT_EQ(errorOf([&] { writeSettings(path, "Bare", {{"CPI", 1}}); }), 3021);
    EXPECT_EQ(errorOf([&] { readSettings(path, "Nowhere"); }), 3011);
    EXPECT_EQ(errorOf([&] { readSettings(path, "Setup").number("CPI"); }), 3265);
    EXPECT_EQ(errorOf([&] { readSettings(path, "Setup").number("RptLanguage"); }), 3421);
    EXPECT_EQ(errorOf([&] { writeSettings(path, "Setup", {{"GRINC", 1}, {"CPI", 1}}); }), 3265);

    store::Database database(path);
    editOrAddRow(database, "Bare", {{"CPI", 5}});
    editOrAddRow(database, "Bare", {{"CPI", store::Value{}}});
    EXPECT_EQ(errorOf([&] { readSettings(path, "Bare").number("CPI"); }), 94);
    EXPECT_EQ(rowsOf(database, "SELECT count(*), (SELECT GRINC FROM Setup WHERE rowid = 2) FROM Bare"), "1|9")
        << "the second row is unchanged";
}
