#pragma once

#include <filesystem>

namespace datastore {

/// The program folder: holds this user's databases, `DataPath.txt` and report definitions.
///
/// Normally the folder of the executable itself. If the marker file `installed-for-all-users` is beside the executable,
/// it is the user's own data folder instead, since an ordinary user cannot write among installed files:
/// `$XDG_DATA_HOME/marlowbeck`, or `~/.local/share/marlowbeck` if that variable is not set to an absolute path.
///
/// realExecutable: absolute, its links resolved. Touches no file. Throws store::Error 76 for a user without a home
/// folder.
std::filesystem::path programFolder(const std::filesystem::path& realExecutable);

/// Fills a user's own program folder from the installed files; does nothing if there is no marker beside the
/// executable.
///
/// The first start creates the folder for its owner only (0700, files 0600). Each missing database is copied. An
/// existing database holds the user's own settings and is never replaced, not even by an upgrade. Report definitions
/// and help pages belong to the package: one that differs from the installed one is replaced, so that an upgraded
/// program never uses an old definition.
///
/// Call it after a second instance has been refused, since it writes. Throws store::Error: 53 naming a missing
/// installed file, 70, 75 or 76 for a folder that cannot be created or written, 61 for a full disk. Files copied so far
/// are complete, and the next start continues from there.
void seedProgramFolder(const std::filesystem::path& realExecutable, const std::filesystem::path& folder);

} // namespace datastore
