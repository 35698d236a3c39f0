#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Where the databases lie.
namespace datastore {

/// Full paths, worked out once at start-up. An existing file keeps its own spelling.
struct Paths {
    std::filesystem::path programFolder;
    std::filesystem::path DataDbPath;    ///< the client database; the only one that may lie elsewhere
    std::filesystem::path DefaultDbPath; ///< settings
    std::filesystem::path PrintDbPath;   ///< report feed
    std::filesystem::path UnitsDbPath;   ///< unit trusts
    std::filesystem::path DiaryDbPath;   ///< the diary
};

/// The paths as a start of the program finds them: reads `DataPath.txt`, and writes it with the default path if it is
/// missing, unreadable or blank. Never throws for that file: a folder that can't be written keeps the default path.
Paths findPaths(const std::filesystem::path& programFolder);

/// The path in the text of a `DataPath.txt`: its first line, quoted or bare, without blanks around. Nothing if blank.
std::optional<std::string> parseDataPath(std::string_view text);

/// Writes `DataPath.txt` with this path of the client database. Throws Error 61, 70, 75 or 76.
void writeDataPath(const std::filesystem::path& programFolder, const std::filesystem::path& dataDbPath);

} // namespace datastore
