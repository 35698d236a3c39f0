#include "datastore/startup.h"

#include "assessment/tables.h"
#include "datastore/reset.h"
#include "datastore/settings.h"
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

assessment::FundDefaults fundsFrom(const SettingsRow& row) {
    assessment::FundDefaults funds;
    for (const assessment::FieldLine& line : assessment::mutualFundsTable().fields())
        assessment::setValueAt(line.at(&funds), row.number(line.name), line.kind.blank);
    return funds;
}

/// Fails a start whose settings could not be written later: a read-only file, or a folder that takes no journal.
///
/// The factory's row is to stay as it is, and the database skips a write that changes nothing. So the row is changed
/// and the change undone: that needs all that a write needs, but the wait for the disk.
void touchTallowenDefault(store::Database& settings) {
    const store::Transaction undone(settings);
    const SettingsRow row = readSettings(settings, "TallowenDefault");
    Row changed;
    for (const assessment::FieldLine& line : assessment::mutualFundsTable().fields())
        changed.emplace_back(line.name, row.value(line.name));
    const bool isZero = changed.front().value == store::Value(0.0);
    changed.front().value = isZero ? 1.0 : 0.0;
    writeSettings(settings, "TallowenDefault", changed);
}

assessment::FundDefaults readFunds(store::Database& settings) {
    const assessment::FundDefaults funds = fundsFrom(readSettings(settings, assessment::mutualFundsTable().name()));
    touchTallowenDefault(settings);
    return funds;
}

} // namespace

StartUpResult startUp(const fs::path& programFolder, assessment::Assessment& record, const Notice& notice) {
    StartUpResult result{findPaths(programFolder)};
    provideClientDb(result.paths.DataDbPath, notice);
    // One connection a file: reading the definitions of its tables is most of the work of a start on it.
    store::Database clients(result.paths.DataDbPath);
    result.UpDateDBValue = bringUpToDate(clients, result.paths);
    store::Database settings(result.paths.DefaultDbPath);
    ResetAssessment(record, settings, clients);
    record.funds = readFunds(settings);
    return result;
}

} // namespace datastore
