#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Where the databases lie.
namespace datastore {

/// Full paths, worked out at start-up. An existing file keeps its own spelling. Only the client database changes while
/// the program runs: see `useClientDb`.
struct Paths {
    std::filesystem::path programFolder;
    std::filesystem::path DataDbPath;    ///< the client database; the only one that may lie elsewhere
    std::filesystem::path DefaultDbPath; ///< settings
    std::filesystem::path PrintDbPath;   ///< report feed
    std::filesystem::path UnitsDbPath;   ///< unit trusts
    std::filesystem::path DiaryDbPath;   ///< the diary
    double UpDateDBValue = 0;            ///< version of the client database as it stands since it was opened
};

/// The paths as a start of the program finds them: reads `DataPath.txt`, and writes it with the default path if it is
/// missing or blank. A folder that can't be written keeps the default path without a word.
///
/// Throws store::Error for a `DataPath.txt` that is there and can't be read, since the clients may lie elsewhere, and
/// as `writeDataPath` for a folder whose path the file can't hold.
Paths findPaths(const std::filesystem::path& programFolder);

/// The report feed of a program folder, which a report may need before the start has found the other paths.
std::filesystem::path printDbPath(const std::filesystem::path& programFolder);

/// The path in the text of a `DataPath.txt`: its first line, quoted or bare, without blanks around. Nothing if blank.
std::optional<std::string> parseDataPath(std::string_view text);

/// Writes `DataPath.txt` with this path of the client database; for a database outside of the program folder a second
/// line names that folder, by which a copy of the folder is told from the folder itself. Throws Error 61, 70, 75 or 76;
/// 75 also for a path that can't be read back from there, with a quotation mark, a backslash or a line break in it.
void writeDataPath(const std::filesystem::path& programFolder, const std::filesystem::path& dataDbPath);

/// Throws that Error 75 for a program folder of such a name, before anything is written there.
void requireUsableName(const std::filesystem::path& programFolder);

/// What the user must know where the program folder has a client database of its own while its `DataPath.txt`, written
/// for another folder, names a different one: most often the folder is a copy. Empty where nothing is to be told.
///
/// A file of one line counts as written for the folder of the database that it names if that is a program folder, or if
/// there is no such database; else it was set by hand, for the folder that it lies in.
std::string copiedFolderNotice(const Paths& paths);

} // namespace datastore
