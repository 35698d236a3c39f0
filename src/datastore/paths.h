#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Where the databases are.
namespace datastore {

/// Full paths, determined at start-up. An existing file keeps its own spelling. Only the client database can change
/// while the program runs: see `useClientDb`.
struct Paths {
    std::filesystem::path programFolder;
    std::filesystem::path DataDbPath;    ///< the client database; the only one that may be in another folder
    std::filesystem::path DefaultDbPath; ///< settings
    std::filesystem::path PrintDbPath;   ///< report feed
    std::filesystem::path UnitsDbPath;   ///< unit trusts
    std::filesystem::path DiaryDbPath;   ///< the diary
    double UpDateDBValue = 0;            ///< version of the client database that is open
};

/// Finds the paths at start-up: reads `DataPath.txt`, and writes it with the default path if it is missing or blank. If
/// the folder can't be written, the default path is used silently.
///
/// Throws store::Error if `DataPath.txt` exists and can't be read, since the clients may be elsewhere, and, like
/// `writeDataPath`, for a folder whose path the file can't hold.
Paths findPaths(const std::filesystem::path& programFolder);

/// The same without writing anything.
Paths lookUpPaths(const std::filesystem::path& programFolder);

/// The path of Print.mdb in a program folder, for a report that runs before start-up has found the other paths.
std::filesystem::path printDbPath(const std::filesystem::path& programFolder);

/// The path in the text of a `DataPath.txt`: its first line, with or without quotes, trimmed. Nothing if blank.
std::optional<std::string> parseDataPath(std::string_view text);

/// Writes `DataPath.txt` with this path of the client database. If the database is outside the program folder, a second
/// line names that folder, so that a copy of the folder can be recognised. Throws Error 61, 70, 75 or 76; also 75 for a
/// path with a quotation mark, a backslash or a line break, which could not be read back.
void writeDataPath(const std::filesystem::path& programFolder, const std::filesystem::path& dataDbPath);

/// Throws that Error 75 for a program folder with such a name, before anything is written there.
void requireUsableName(const std::filesystem::path& programFolder);

/// A message for the user if the program folder contains a client database but its `DataPath.txt`, written for another
/// folder, names a different one: most often the folder is a copy. Otherwise empty.
///
/// A file of one line was written for the folder of the database that it names, if that is a program folder or the
/// database does not exist. Otherwise someone wrote it by hand, for the folder that it is in.
std::string copiedFolderNotice(const Paths& paths);

} // namespace datastore
