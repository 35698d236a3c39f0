// The databases that the build makes, as a first start finds them.
#include <sys/stat.h>

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
    std::vector<const char*> withARow; ///< edited in place, so they must not be shipped empty
};

const Shipped files[] = {
    {settingsFile,
     7,
     {"MutualFunds", "TallowenDefault", "Setup", "IncFromShares", "livann", "PAYESetup", "EstateDutyEst"}},
    {unitsFile, 2, {"UTH"}},
    {diaryFile, 2, {}},
    {printFile,
     38,
     {"ItemisePrintName", "kwiktax", "RATaxAdvantage", "traveldeduction", "PAYESetup", "EstateDutyEst", "HeadFoot",
      "PersDetails", "AllDetailsHeader", "UnitHistDet", "IRP5Mon", "CGTTrustOtherDetails"}},
};

// The copy that packages take, which nobody has worked with.
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
        struct stat info {};
        ASSERT_EQ(::stat((fs::path(MARLOWBECK_PROGRAM_DIR) / each.file).c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777U, 0600U);
    }
}

TEST(ShippedDatabases, StartWithTheFactorySettings) {
    const struct {
        const char* file;
        const char* table;
        const char* field;
        double value;
    } cases[] = {
        {settingsFile, "MutualFunds", "ETaxRate", 30},
        {settingsFile, "TallowenDefault", "LumpSumPort", 33.33},
        {settingsFile, "TallowenDefault", "AnnuityPer", 8},
        {settingsFile, "MutualFunds", "UTAComPortVal", 0.5},
        {settingsFile, "Setup", "grinc", 0.5},
        {settingsFile, "IncFromShares", "TrailComm", 0.5},
        {settingsFile, "livann", "MaxIncAllowed", 17.5},
        {settingsFile, "PAYESetup", "UIFLimit", 17712},
        {settingsFile, "PAYESetup", "TAIncRate8020", 0.8},
        {settingsFile, "EstateDutyEst", "SndBracket", 30000000},
        {settingsFile, "EstateDutyEst", "ExecFeesRate", 3.5},
    };
    for (const auto& c : cases)
        EXPECT_EQ(readSettings(shipped(c.file), c.table).number(c.field), c.value) << c.table << " " << c.field;

    EXPECT_EQ(readSettings(shipped(settingsFile), "Setup").text("RptLanguage"), "E");
    const auto lines = readSettings(shipped(printFile), "HEADFOOT");
    EXPECT_EQ(lines.text("footv0"), "This report was prepared in accordance with ");
    EXPECT_EQ(lines.text("footv1"), "information supplied by the undersigned client.");
    EXPECT_EQ(lines.text("headerv3") + lines.text("footv3"), "");

    // The user's rates begin as the factory's.
    const auto user = readSettings(shipped(settingsFile), "MutualFunds");
    const auto factory = readSettings(shipped(settingsFile), "TallowenDefault");
    for (const auto& field : user.row())
        EXPECT_EQ(field.value, factory.value(field.name)) << field.name;
}

TEST(ShippedDatabases, NameFieldsAndIndexesAsScreensAskForThem) {
    const struct {
        const char* file;
        const char* table;
        const char* field;
        store::Type type;
        int size;
    } cases[] = {
        {printFile, "kwiktax", "TAXCOM4/2", store::Type::Double, 0},
        {printFile, "traveldeduction", "mta02", store::Type::Double, 0},
        {printFile, "CGTTrustOtherItemise", "Base Cost", store::Type::Text, 255},
        {printFile, "PersDetails", "Description", store::Type::Text, 60},
        {printFile, "PersDetails", "DEPDOB8", store::Type::Text, 10},
        {printFile, "PersDetails", "Comments", store::Type::Memo, 0},
        {printFile, "CGTDetails", "DBProfitType", store::Type::Memo, 0},
        {printFile, "HeadFoot", "footv3", store::Type::Text, 80},
        {printFile, "DebtCon", "LoanAmtTot", store::Type::Text, 255},
        {printFile, "UnitHistDet", "Inf 7yr", store::Type::Double, 0},
        {diaryFile, "DiaryDates", "Appointment details", store::Type::Memo, 0},
        {diaryFile, "Type_Diary_Apps", "UDDEYesNo", store::Type::Boolean, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.field);
        store::Database database(shipped(c.file));
        const auto declared =
            datastore::requiredField(database, c.table, datastore::requiredColumns(database, c.table), c.field);
        EXPECT_EQ(declared.type, c.type);
        EXPECT_EQ(declared.size, c.size);
    }
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
