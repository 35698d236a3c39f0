#include "datastore/startup.h"

#include "assessment/tables.h"
#include "base/text.h"
#include "datastore/funds.h"
#include "datastore/reset.h"
#include "datastore/settings.h"
#include "datastore/shipped.h"
#include "datastore/upgrade.h"
#include "store/error.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

/// Removes the unfinished files of a start that was killed while writing.
void clearUnfinished(const fs::path& programFolder) {
    store::removeUnfinished(programFolder, [](const std::string& name) {
        const std::string kind = base::lowerAscii(fs::path(name).extension().string());
        return base::sameName(name, "DataPath.txt") || kind == ".mdb" || kind == ".rpt" || kind == ".md";
    });
}

bool isMissing(const fs::path& path) {
    try {
        const store::Database present(path);
        return false;
    } catch (const store::Error& error) {
        if (error.is(store::Number::fileNotFound)) return true;
        throw;
    }
}

/// Advice for a missing folder. The start ends there, so the user can only correct the path by hand.
std::string adviceOnPath(const Paths& paths) {
    std::string advice = "Check that the disk or network share with the folder {folder} is connected, and that "
                         "DataPath.txt in the folder " +
                         paths.programFolder.string() + " names the right file, then start again.";
    const fs::path own = store::existingSpelling(paths.programFolder / "Data.Mdb");
    std::error_code ignored;
    if (fs::exists(own, ignored))
        advice += " That folder has a client file of its own, " + own.string() +
                  "; to work with that one delete DataPath.txt.";
    return advice;
}

/// Creates the client database if there is none. But a missing folder is an error: an empty database instead of an
/// unmounted share would look as if all clients were lost.
void provideClientDb(const Paths& paths, const Notice& notice) {
    const fs::path& path = paths.DataDbPath;
    std::error_code ignored;
    try {
        if (!fs::exists(path, ignored) && isMissing(path)) createClientDb(path, notice);
    } catch (const store::Error& error) {
        if (!error.is(store::Number::badPath)) throw;
        throw store::Error(error.kind(), error.file(), error.why(), adviceOnPath(paths));
    }
}

/// Ends a start at once if the settings could not be written later: a read-only file, or a folder that takes no
/// journal.
///
/// The row must keep its values, and SQLite skips a write that changes nothing. So the row is changed and the change
/// rolled back: this tests everything about a write without waiting for the disk.
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

} // namespace

StartUpResult startUp(const fs::path& programFolder, assessment::Assessment& record, const Notice& notice) {
    clearUnfinished(programFolder);
    StartUpResult result;
    result.paths = findPaths(programFolder);
    result.notice = copiedFolderNotice(result.paths);
    provideClientDb(result.paths, notice);
    // One connection per file: reading the table definitions is most of the work when a file is opened.
    store::Database clients(result.paths.DataDbPath);
    renewPrintDb(clients, result.paths.PrintDbPath);
    result.paths.UpDateDBValue = bringUpToDate(clients, result.paths);
    store::Database settings(result.paths.DefaultDbPath);
    completeSettings(settings);
    ResetAssessment(record, settings, clients);
    record.funds = readFunds(settings);
    touchTallowenDefault(settings);
    return result;
}

void useClientDb(Paths& paths, const fs::path& dataDbPath, assessment::Assessment& record) {
    Paths next = paths;
    next.DataDbPath = dataDbPath;
    store::Database clients(dataDbPath);
    next.UpDateDBValue = bringUpToDate(clients, next);
    UpgradeHeadFoot(clients);
    std::error_code ignored; // the program works without reports, as at start-up
    if (fs::exists(next.PrintDbPath, ignored)) CopyHeadFootToPrintDb(clients, next.PrintDbPath);
    paths = std::move(next);
    readCPI(record, clients);
    record.ClientOnFile = 0;
}

} // namespace datastore
