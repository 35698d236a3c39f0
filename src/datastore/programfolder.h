#pragma once

#include <filesystem>

namespace datastore {

/// The program folder: where the databases, `DataPath.txt` and the report definitions of this user lie.
///
/// It is the folder of the real executable. Only where the marker file `installed-for-all-users` lies beside the
/// executable is it the user's own data folder, since an ordinary user cannot write among installed files:
/// `$XDG_DATA_HOME/marlowbeck`, or `~/.local/share/marlowbeck` where that variable is not set to an absolute path.
///
/// realExecutable: absolute, its links resolved. Touches no file. Throws store::Error 76 for a user with no home.
std::filesystem::path programFolder(const std::filesystem::path& realExecutable);

/// Fills a user's own program folder from the installed files; does nothing where no marker lies beside the executable.
///
/// On first start the folder is made for its owner alone (0700, files 0600), and each database that is missing is
/// copied. A database that is there already holds the user's own settings and is never touched, by an upgrade either.
/// Report definitions and the help pages are the package's: one that differs from the installed one is replaced, so
/// that an upgraded program never meets an old definition.
///
/// It writes, so call it after a second instance has been refused. Throws store::Error: 53 naming the installed file
/// that is missing, 70, 75 or 76 for a folder that cannot be made or written, 61 for a full disk. What was copied by
/// then stays whole, and the next start goes on from there.
void seedProgramFolder(const std::filesystem::path& realExecutable, const std::filesystem::path& folder);

} // namespace datastore
