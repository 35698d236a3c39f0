#include "datastore/backup.h"

#include <optional>

#include "datastore/upgrade.h"
#include "datastore/workfiles.h"
#include "store/database.h"
#include "store/filecopy.h"
#include "store/files.h"
#include "store/upkeep.h"

namespace datastore {

namespace fs = std::filesystem;
using store::Progress;
using store::UpkeepDatabase;

namespace {

constexpr const char* countClients = "SELECT count(*) FROM [PersDetails]";

/// Has the file to itself, and has found it undamaged.
class Repaired {
public:
    Repaired(const fs::path& file, const Progress& progress) {
        try {
            m_database.emplace(file, store::Lock::exclusive, progress);
            m_database->checkIntegrity();
        } catch (const store::Error& error) {
            throw NotRepaired(error.kind(), error.file(), error.why(), error.advice());
        }
    }
    UpkeepDatabase* operator->() { return &*m_database; }
    UpkeepDatabase& operator*() { return *m_database; }

private:
    std::optional<UpkeepDatabase> m_database;
};

void compactChecked(UpkeepDatabase& source, const fs::path& compacted, const Progress& progress) {
    source.compactInto(compacted);
    checkCopy(compacted, source.figure(countClients), progress);
    store::tell(progress, 1);
}

/// Undoes what an interrupted writer left in an old file, before its journal goes.
void settleOldFile(const fs::path& file) {
    try {
        const store::Database settled(file);
    } catch (const store::Error&) {
        // It is to be replaced; a damaged file or one of another kind has nothing to be undone.
    }
}

/// The report lines in Print.mdb are those of the file in use; the upgrade of another file has overwritten them.
void copyReportLinesOfFileInUse(const Paths& paths) {
    try {
        store::Database clients(paths.DataDbPath);
        CopyHeadFootToPrintDb(clients, paths.PrintDbPath);
    } catch (const store::Error&) {
        // The next start copies them.
    }
}

void bringCopyUpToDate(const Paths& paths, const fs::path& copy) {
    store::Database clients(copy);
    if (readVersion(clients) >= currentVersion) return;
    try {
        bringUpToDate(clients, paths);
    } catch (...) {
        copyReportLinesOfFileInUse(paths);
        throw;
    }
    copyReportLinesOfFileInUse(paths);
}

} // namespace

void checkCopy(const fs::path& copy, std::optional<double> clients, const Progress& progress) {
    UpkeepDatabase checked(copy, store::Lock::none, progress);
    checked.checkIntegrity();
    store::Database database(copy);
    readVersion(database);
    const double found = checked.figure(countClients);
    if (clients && found != *clients)
        throw store::Error(store::Number::corrupt, copy.string(), "The copy does not hold all clients.",
                           "Check that the disk with the folder {folder} is in order, then try again.");
}

void compactClientDb(const Paths& paths, const Progress& progress) {
    requireSafePlace(paths);
    const WorkFiles files(paths.programFolder);
    Repaired used(paths.DataDbPath, progress);
    std::optional<UpkeepDatabase> own;
    if (isElsewhere(paths)) own.emplace(files.own, store::Lock::exclusive, progress);
    UpkeepDatabase& source = own ? *own : *used;
    store::WorkingCopy compacted(files.compacted);
    compactChecked(source, files.compacted, progress);
    store::replaceKeepingOld(files.compacted, source.path(), files.kept);
    compacted.keep();
}

void compactFileInUse(const Paths& paths, const Progress& progress) {
    requireSafePlace(paths);
    const fs::path compacted = WorkFiles(paths.programFolder).compacted;
    Repaired used(paths.DataDbPath, progress);
    store::WorkingCopy copy(compacted);
    compactChecked(*used, compacted, progress);
    copy.keep();
}

void copyToMedia(const Paths& paths, const fs::path& file, const fs::path& destination, const Progress& progress) {
    if (isOwnFile(paths, destination) || store::isSameFile(file, destination))
        throw store::Error(store::Number::pathAccess, destination.string(),
                           "This is one of Marlowbeck's own files, which a copy must not replace.",
                           "Choose another folder or another name.");
    const double clients = UpkeepDatabase(file, store::Lock::none).figure(countClients);
    store::FileBeside beside(destination);
    store::copyFile(file, beside.path(), progress);
    checkCopy(beside.path(), clients, progress);
    if (store::isThere(destination)) {
        store::takeOverRights(beside.path(), destination);
        settleOldFile(destination);
    }
    beside.replace();
}

void restoreClientDb(const Paths& paths, const fs::path& chosen, const fs::path& target, const Progress& progress) {
    if (store::isThere(chosen) && store::isSameFile(chosen, target)) return;
    store::FileBeside beside(target);
    store::copyDatabase(chosen, beside.path(), progress);
    checkCopy(beside.path(), {}, progress);
    bringCopyUpToDate(paths, beside.path());
    store::tell(progress, 1);
    std::optional<UpkeepDatabase> old;
    if (store::isThere(target)) {
        store::takeOverRights(beside.path(), target);
        try {
            old.emplace(target, store::Lock::exclusive);
        } catch (const store::Error& error) {
            if (error.is(store::Number::heldByAnother)) throw;
        }
    }
    beside.replace();
}

} // namespace datastore
