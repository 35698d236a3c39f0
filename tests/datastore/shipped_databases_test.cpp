// The databases that the build creates, as a first start finds them.
#include <vector>

#include "datastore/settings.h"
#include "store/store_support.h"

using namespace storetest;
using datastore::readSettings;

namespace {

constexpr const char* settingsFile = "Default.Mdb";
constexpr const char* unitsFile = "units.mdb";
constexpr const char* diaryFile = "Diary.mdb";
constexpr const char* printFile = "Print.mdb";

struct Shipped {
    const char* file;
    int tables;
    std::vector<const char*> withARow; ///< the program only edits these rows, so they must be shipped
};

const Shipped files[] = {
    {settingsFile,
     7,
     {"MutualFunds", "TallowenDefault", "Setup", "IncFromShares", "livann", "PAYESetup", "EstateDutyEst"}},
    {unitsFile, 2, {"UTH"}},
    {diaryFile, 2, {}},
    {printFile,
     39,
     {"ItemisePrintName", "kwiktax", "RATaxAdvantage", "traveldeduction", "PAYESetup", "EstateDutyEst", "HeadFoot",
      "PersDetails", "Printout", "AllDetailsHeader", "UnitHistDet", "IRP5Mon", "CGTTrustOtherDetails"}},
};

// The copy for packages, which no program has changed.
fs::path shipped(const std::string& file) { return fs::path(MARLOWBECK_PROGRAM_DIR) / "../databases" / file; }

double number(store::Database& database, const std::string& sql) {
    store::Statement statement = database.prepare(sql);
    EXPECT_TRUE(statement.step()) << sql;
    return statement.number(0);
}

} // namespace

TEST(ShippedDatabases, AreWholeWithTheirFirstRowsAndTheOwnersAlone) {
    for (const Shipped& each : files) {
        SCOPED_TRACE(each.file);
        store::Database database(shipped(each.file));
        EXPECT_EQ(number(database, "SELECT count(*) FROM sqlite_schema WHERE type = 'table'"), each.tables);
        EXPECT_EQ(number(database, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);
        for (const char* table : each.withARow)
            EXPECT_EQ(number(database, "SELECT count(*) FROM " + store::bracketed(table)), 1) << table;
        EXPECT_EQ(modeOf(fs::path(MARLOWBECK_PROGRAM_DIR) / each.file), 0600U);
    }
}

TEST(ShippedDatabases, StartWithTheFactorySettings) {
    EXPECT_EQ(readSettings(shipped(settingsFile), "Setup").text("RptLanguage"), "E");
    const auto lines = readSettings(shipped(printFile), "HEADFOOT");
    EXPECT_EQ(lines.text("footv0"), "This report was prepared in accordance with ");
    EXPECT_EQ(lines.text("footv1"), "information supplied by the undersigned client.");
    EXPECT_EQ(lines.text("headerv3") + lines.text("footv3"), "");

    // The user's rates start equal to the original ones.
    const auto user = readSettings(shipped(settingsFile), "MutualFunds");
    const auto factory = readSettings(shipped(settingsFile), "TallowenDefault");
    for (const auto& field : user.row())
        EXPECT_EQ(field.value, factory.value(field.name)) << field.name;
}

TEST(ShippedDatabases, OrderTheFundsByEachColumnBothWays) {
    store::Database units(shipped(unitsFile));
    for (const char* period : {"UTF", "1yr", "2yr", "3yr", "5yr", "10yr"})
        for (const char* direction : {"IndexD", "IndexA"})
            EXPECT_EQ(errorOf([&] {
                          units.prepare("SELECT * FROM Units INDEXED BY " +
                                        store::bracketed(std::string(period) + direction));
                      }),
                      0)
                << period << direction;
}
