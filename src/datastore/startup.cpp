#include "datastore/startup.h"

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "datastore/reset.h"
#include "datastore/upgrade.h"
#include "store/error.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

bool isMissing(const fs::path& path) {
    try {
        const store::Database present(path);
        return false;
    } catch (const store::Error& error) {
        if (error.is(store::Number::fileNotFound)) return true;
        throw;
    }
}

/// Creates the client database if there is none. A missing folder is an error instead: an empty database in place of
/// an unmounted share would look as if all clients were lost.
void provideClientDb(const fs::path& path, const Notice& notice) {
    std::error_code ignored;
    if (fs::exists(path, ignored) || !isMissing(path)) return;
    if (!createClientDb(path, notice)) const store::Database stillMissing(path); // throws
}

[[noreturn]] void noRow(const fs::path& path, const std::string& table) {
    throw store::Error(store::Number::noCurrentRecord, path.string(), "The table " + table + " has no row.");
}

/// Rewrites the factory's row with what it holds, so that a start fails where the settings could not be written later.
void touchTallowenDefault(store::Database& settings) {
    const std::string table = "TallowenDefault";
    std::string sql;
    for (const assessment::FieldLine& line : assessment::mutualFundsTable().fields()) {
        const std::string field = store::bracketed(line.name);
        sql += (sql.empty() ? "UPDATE [TallowenDefault] SET " : ", ") + field + "=" + field;
    }
    store::Transaction transaction(settings);
    store::Statement first = settings.prepare("SELECT min(rowid) FROM [TallowenDefault]");
    first.step();
    if (store::isNull(first.column(0))) noRow(settings.path(), table);
    settings.prepare(sql + " WHERE rowid=?").bind(1, first.column(0)).run();
    first.reset();
    transaction.commit();
}

assessment::FundDefaults readFunds(const fs::path& defaultDbPath) {
    assessment::FundDefaults funds;
    store::Database settings(defaultDbPath);
    {
        assessment::RowReader reader(settings, assessment::mutualFundsTable(), {}, assessment::Lacking::isError);
        if (!reader.next(funds)) noRow(defaultDbPath, assessment::mutualFundsTable().name());
    }
    touchTallowenDefault(settings);
    return funds;
}

} // namespace

StartUpResult startUp(const fs::path& programFolder, assessment::Assessment& record, const Notice& notice) {
    StartUpResult result{findPaths(programFolder)};
    provideClientDb(result.paths.DataDbPath, notice);
    result.UpDateDBValue = bringUpToDate(result.paths);
    ResetAssessment(record, result.paths);
    record.funds = readFunds(result.paths.DefaultDbPath);
    return result;
}

} // namespace datastore
