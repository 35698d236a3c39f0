#pragma once

#include <filesystem>

#include "datastore/paths.h"

namespace datastore {

/// The client database of the program folder and the copies that backup and transfer keep beside it.
struct WorkFiles {
    explicit WorkFiles(const std::filesystem::path& programFolder);

    std::filesystem::path own;               ///< `Data.Mdb`, the client database unless `DataPath.txt` names another
    std::filesystem::path kept;              ///< `Data.bak`, what the last backup or copy replaced
    std::filesystem::path compacted;         ///< `NEWData.Mdb`, only while a backup runs
    std::filesystem::path transfer;          ///< `CopyData.Mdb`, the clients copied last, or those being read
    std::filesystem::path compactedTransfer; ///< `NEWCopyData.Mdb`, only while clients are copied
};

/// True if the clients in use are not those of the program folder's own `Data.Mdb`.
bool isElsewhere(const Paths& paths);

/// True for a file that backup and transfer overwrite without asking: it can't hold the clients in use.
bool isWorkingCopy(const Paths& paths, const std::filesystem::path& file);

/// Before work that overwrites a working copy: throws Error 75 if the clients in use are in one.
void requireSafePlace(const Paths& paths);

/// True for the file in use and for every file of the program folder that belongs to the program: nothing may be saved
/// over them.
bool isOwnFile(const Paths& paths, const std::filesystem::path& file);

} // namespace datastore
