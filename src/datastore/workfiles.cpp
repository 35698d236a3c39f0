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

/// Also of a file that does not exist yet: then its name and its folder decide.
bool isAnyOf(const fs::path& file, std::initializer_list<fs::path> others) {
    const fs::path spelled = store::existingSpelling(file);
    return std::ranges::any_of(others, [&](const fs::path& other) {
        return store::isSameFile(spelled, other) ||
               (base::sameName(spelled.filename().string(), other.filename().string()) &&
                store::isSameFile(spelled.parent_path(), other.parent_path()));
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
