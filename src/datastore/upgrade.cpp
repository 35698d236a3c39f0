#include "datastore/upgrade.h"

#include <vector>

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "base/rounding.h"
#include "base/text.h"
#include "datastore/create.h"
#include "datastore/headfoot.h"
#include "store/error.h"

namespace datastore {

namespace {

/// The fields of a client's income from shares that the conversion needs.
struct ShareIncome {
    std::int64_t row;
    double percent;
    double capital;
    std::string mode;
};

std::vector<ShareIncome> readShareIncomes(store::Database& database) {
    std::vector<ShareIncome> incomes;
    store::Statement select =
        database.prepare("SELECT rowid, [InitPercRequire], [InvestAmount], [AnnMonIncShare] FROM [Data]");
    while (select.step())
        incomes.push_back(
            {static_cast<std::int64_t>(select.number(0)), select.number(1), select.number(2), select.text(3)});
    return incomes;
}

double wholeRand(const ShareIncome& income) {
    const double amount = income.capital * base::roundHalfEven(income.percent / 100, 6);
    if (base::sameWord(income.mode, "annually")) return base::roundHalfEven(amount);
    if (base::sameWord(income.mode, "monthly")) return base::roundHalfEven(amount / 12);
    return base::roundHalfEven(income.percent);
}

void writeVersion(store::Database& database, double version) {
    store::Statement update =
        database.prepare("UPDATE [DataSetup] SET [UpDateDB]=? WHERE rowid=(SELECT min(rowid) FROM [DataSetup])");
    update.bind(1, version).run();
}

void runUpgradeSteps(store::Database& database, double version, const Paths& paths) {
    MakeNewDb(database);
    UpgradeHeadFoot(database);
    UpgradeRnaMonIncReq(database);
    UpgradeData(database);
    if (version <= lastPercentageVersion) UpgradeInitPercRequire(database);
    CopyHeadFootToPrintDb(database, paths.PrintDbPath);
    writeVersion(database, currentVersion);
}

store::Value versionCell(store::Database& database) {
    try {
        store::Statement select = database.prepare("SELECT [UpDateDB] FROM [DataSetup] ORDER BY rowid LIMIT 1");
        if (!select.step())
            throw store::Error(store::Number::noCurrentRecord, database.path().string(),
                               "The file does not contain its version.");
        return select.column(0);
    } catch (const store::Error& error) {
        if (!error.is(store::Number::noSuchTableInQuery)) throw;
        throw store::Error(store::Number::noSuchTable, error.file(), error.why());
    }
}

} // namespace

double readVersion(store::Database& database) {
    const store::Value cell = versionCell(database);
    if (const double* version = std::get_if<double>(&cell)) return *version;
    throw store::Error(store::isNull(cell) ? store::Number::null : store::Number::wrongType, database.path().string(),
                       "The file does not contain its version.");
}

void UpgradeHeadFoot(store::Database& database) {
    if (assessment::firstRow(database, assessment::headFootTable())) return;
    assessment::HeadFootLines lines;
    lines.FootV[0] = "This report was prepared in accordance with ";
    lines.FootV[1] = "information supplied by the undersigned client.";
    writeHeadFoot(database, lines);
}

void UpgradeRnaMonIncReq(store::Database& database) {
    database.execute("UPDATE [RNAMonIncReq] SET [Escalation]=0 WHERE [Escalation] IS NULL");
}

void UpgradeData(store::Database& database) {
    database.execute("UPDATE [Data] SET [InvestAmount]=0, [ISGrowthRate]=0, [InitPercRequire]=0, [AnnIncEsca]=0, "
                     "[EffTaxRate]=0, [AnnMonIncShare]='annually' WHERE [InvestAmount] IS NULL");
}

void UpgradeInitPercRequire(store::Database& database) {
    const std::vector<ShareIncome> incomes = readShareIncomes(database);
    store::Statement update = database.prepare("UPDATE [Data] SET [InitPercRequire]=? WHERE rowid=?");
    for (const ShareIncome& income : incomes) {
        update.bind(
            1, store::toStored(wholeRand(income), {store::Type::Double}, database.path().string(), "InitPercRequire"));
        update.bind(2, static_cast<double>(income.row)).run();
    }
}

void CopyHeadFootToPrintDb(store::Database& database, const std::filesystem::path& printDbPath) {
    assessment::HeadFootLines lines = readHeadFoot(database);
    store::Database print(printDbPath);
    store::Transaction transaction(print);
    writeHeadFoot(print, lines);
    transaction.commit();
}

double bringUpToDate(store::Database& database, const Paths& paths) {
    const double version = readVersion(database);
    if (version >= currentVersion) return version;
    store::Transaction transaction(database);
    // Read again inside the transaction: another start may just have upgraded a shared file.
    const double lockedVersion = readVersion(database);
    if (lockedVersion >= currentVersion) return lockedVersion;
    runUpgradeSteps(database, lockedVersion, paths);
    transaction.commit();
    return currentVersion;
}

} // namespace datastore
