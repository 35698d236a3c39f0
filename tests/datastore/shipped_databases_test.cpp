// The databases that the build makes, as a first start finds them.
#include <sys/stat.h>

#include <algorithm>
#include <iterator>

#include "datastore/settings.h"
#include "store/store_support.h"

using namespace storetest;
using datastore::readSettings;

namespace {

struct Table {
    const char* file;
    const char* name;
    int fields;
    int rows;
};

constexpr const char* settingsFile = "Default.Mdb";
constexpr const char* unitsFile = "units.mdb";
constexpr const char* diaryFile = "Diary.mdb";
constexpr const char* printFile = "Print.mdb";

const Table tables[] = {
    {settingsFile, "MutualFunds", 24, 1},
    {settingsFile, "TallowenDefault", 24, 1},
    {settingsFile, "Setup", 2, 1},
    {settingsFile, "IncFromShares", 5, 1},
    {settingsFile, "livann", 7, 1},
    {settingsFile, "PAYESetup", 5, 1},
    {settingsFile, "EstateDutyEst", 5, 1},
    {unitsFile, "Units", 6, 24},
    {unitsFile, "UTH", 5, 1},
    {diaryFile, "DiaryDates", 8, 0},
    {diaryFile, "Type_Diary_Apps", 3, 0},
    {printFile, "NomEffect", 6, 0},
    {printFile, "Amort", 5, 0},
    {printFile, "Loans", 11, 0},
    {printFile, "OffShore", 11, 0},
    {printFile, "IncFromShares", 42, 0},
    {printFile, "Inflation", 5, 0},
    {printFile, "BondBust", 12, 0},
    {printFile, "ItemisePrintName", 1, 1},
    {printFile, "ItemisePrint", 6, 0},
    {printFile, "NARA", 47, 0},
    {printFile, "NADeath", 29, 0},
    {printFile, "NAED", 23, 0},
    {printFile, "LOcap", 6, 0},
    {printFile, "AllDetails", 5, 0},
    {printFile, "RRR", 37, 0},
    {printFile, "InvestmentPro", 20, 0},
    {printFile, "kwiktax", 12, 1},
    {printFile, "InvComp", 20, 0},
    {printFile, "DebtCon", 17, 0},
    {printFile, "BondComp", 20, 0},
    {printFile, "PolsInvests", 22, 0},
    {printFile, "PolsInvestsAmorts", 61, 0},
    {printFile, "RATaxAdvantage", 11, 1},
    {printFile, "DailyBal", 6, 0},
    {printFile, "IRP5IncDed", 26, 0},
    {printFile, "CGTTrustOtherItemise", 7, 0},
    {printFile, "traveldeduction", 31, 1},
    {printFile, "LivAnn", 33, 0},
    {printFile, "PAYESetup", 5, 1},
    {printFile, "EstateDutyEst", 20, 1},
    {printFile, "HeadFoot", 8, 1},
    {printFile, "PersDetails", 66, 1},
    {printFile, "AllDetailsHeader", 5, 1},
    {printFile, "UnitHist", 6, 0},
    {printFile, "UnitHistDet", 6, 1},
    {printFile, "IRP5Mon", 45, 1},
    {printFile, "CGTDetails", 41, 0},
    {printFile, "CGTTrustOtherDetails", 2, 1},
};

// The copy that packages take, which nobody has worked with.
fs::path shipped(const std::string& file) { return fs::path(MARLOWBECK_PROGRAM_DIR) / "../databases" / file; }

double number(store::Database& database, const std::string& sql) {
    store::Statement statement = database.prepare(sql);
    EXPECT_TRUE(statement.step()) << sql;
    return statement.number(0);
}

} // namespace

TEST(ShippedDatabases, HoldEveryTableWithItsFieldsAndFirstRows) {
    for (const Table& table : tables) {
        SCOPED_TRACE(std::string(table.file) + " " + table.name);
        store::Database database(shipped(table.file));
        EXPECT_EQ(database.columns(table.name).size(), static_cast<std::size_t>(table.fields));
        EXPECT_EQ(number(database, "SELECT count(*) FROM " + store::bracketed(table.name)), table.rows);
    }
    for (const char* file : {settingsFile, unitsFile, diaryFile, printFile}) {
        SCOPED_TRACE(file);
        store::Database database(shipped(file));
        const auto listed = std::count_if(std::begin(tables), std::end(tables),
                                          [&](const Table& table) { return table.file == std::string(file); });
        EXPECT_EQ(number(database, "SELECT count(*) FROM sqlite_schema WHERE type = 'table'"), listed);
        EXPECT_EQ(number(database, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);
        struct stat info {};
        ASSERT_EQ(::stat((fs::path(MARLOWBECK_PROGRAM_DIR) / file).c_str(), &info), 0);
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
