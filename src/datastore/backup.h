#pragma once

#include <filesystem>
#include <optional>

#include "datastore/paths.h"
#include "store/error.h"
#include "store/progress.h"

/// Backup and restore of the whole client database. Each file is written beside its place, flushed, opened and checked
/// (every page, the version, the number of clients) and only then renamed: at every moment there is a complete file of
/// clients, and never half a backup. Progress may cancel; then every file is as it was, and store::Cancelled is thrown.
namespace datastore {

/// The file in use can't be had alone or is damaged: a window of the program works with it, another program has it
/// locked, or its check fails.
class NotRepaired : public store::Error {
    using Error::Error;
};

/// Repairs the file in use, then compacts the program folder's `Data.Mdb` in its place; the file as it was becomes
/// `Data.bak`. Throws NotRepaired, Error 3024 if the program folder has no such file, or any other store::Error, and
/// leaves both files as they were.
void compactClientDb(const Paths& paths, const store::Progress& progress = {});

/// Repairs the file in use and writes a compacted copy of it to `NEWData.Mdb`, for when the clients are elsewhere. The
/// file itself stays as it is. Errors as above.
void compactFileInUse(const Paths& paths, const store::Progress& progress = {});

/// Copies a finished file of clients to the place that the user chose. Throws store::Error for a disk that is full,
/// read-only or gone, and refuses to write over the source, the file in use and the program's own files; what was at
/// that place is then unchanged.
void copyToMedia(const Paths& paths, const std::filesystem::path& file, const std::filesystem::path& destination,
                 const store::Progress& progress = {});

/// Replaces the client database `target` by a copy of the chosen file, brought up to date. The chosen file is only
/// read, together with its journal. Nothing is done if it is the target itself.
///
/// Throws store::Error, with the target unchanged, if the chosen file can't be read, is damaged or no client database,
/// or if another program holds the target. A damaged or missing target is no obstacle.
void restoreClientDb(const Paths& paths, const std::filesystem::path& chosen, const std::filesystem::path& target,
                     const store::Progress& progress = {});

/// Checks a copy of a client database: every page, its version, and that it has this many clients, if the number is
/// known. Throws store::Error.
void checkCopy(const std::filesystem::path& copy, std::optional<double> clients, const store::Progress& progress = {});

} // namespace datastore
