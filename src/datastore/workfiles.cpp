#include "datastore/workfiles.h"

#include <algorithm>
#include <initializer_list>

#include "base/text.h"
#include "store/error.h"
#include "store/filecopy.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;

WorkFiles::WorkFiles(const fs::path& programFolder)
    : own(store::existingSpelling(programFolder / "Data.Mdb")),
      kept(store::existingSpelling(programFolder / "Data.bak")),
      compacted(store::existingSpelling(programFolder / "NEWData.Mdb")),
      transfer(store::existingSpelling(programFolder / "CopyData.Mdb")),
      compactedTransfer(store::existingSpelling(programFolder / "NEWCopyData.Mdb")) {}

namespace {

/// A path with its links resolved, also of a file that does not exist yet.
fs::path resolved(const fs::path& file) {
    std::error_code failed;
    fs::path real = fs::weakly_canonical(store::existingSpelling(file), failed);
    return failed ? file : real;
}

/// By name, not by content: after a backup that was killed in its last step `Data.bak` and `Data.Mdb` are two names of
/// one file, which the next backup parts again.
bool isAnyOf(const fs::path& file, std::initializer_list<fs::path> others) {
    const fs::path real = resolved(file);
    return std::ranges::any_of(others, [&](const fs::path& other) {
        const fs::path own = resolved(other);
        return base::sameName(real.filename().string(), own.filename().string()) &&
               store::isSameFile(real.parent_path(), own.parent_path());
    });
}

} // namespace

bool isElsewhere(const Paths& paths) {
    return !store::isSameFile(paths.DataDbPath, WorkFiles(paths.programFolder).own);
}

bool isWorkingCopy(const Paths& paths, const fs::path& file) {
    const WorkFiles files(paths.programFolder);
    return isAnyOf(file, {files.kept, files.compacted, files.transfer, files.compactedTransfer});
}

void requireSafePlace(const Paths& paths) {
    if (!isWorkingCopy(paths, paths.DataDbPath)) return;
    throw store::Error(store::Number::pathAccess, paths.DataDbPath.string(),
                       "The clients in use are in a file that Marlowbeck itself overwrites.",
                       "Copy {name} under another name, choose that copy in File, Remote Database Path, then try "
                       "again.");
}

bool isOwnFile(const Paths& paths, const fs::path& file) {
    return isWorkingCopy(paths, file) ||
           isAnyOf(file, {paths.DataDbPath, WorkFiles(paths.programFolder).own, paths.DefaultDbPath, paths.PrintDbPath,
                          paths.UnitsDbPath, paths.DiaryDbPath, paths.programFolder / "DataPath.txt"});
}

} // namespace datastore
