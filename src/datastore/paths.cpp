#include "datastore/paths.h"

#include "store/error.h"
#include "store/filecopy.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

constexpr auto locationFile = "DataPath.txt";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";
constexpr std::string_view lineEnds = "\r\n";

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The path in one line, with or without quotes.
std::optional<std::string> pathOfLine(std::string_view line) {
    std::string_view path = withoutBlanks(line.substr(0, line.find_first_of(lineEnds)));
    if (path.starts_with('"')) {
        path.remove_prefix(1);
        path = withoutBlanks(path.substr(0, path.find('"')));
    }
    if (path.empty()) return {};
    return std::string(path);
}

/// The program folder that the file names as the one it was written for.
std::optional<std::string> parseWrittenFor(std::string_view text) {
    const auto end = text.find('\n');
    return end == std::string_view::npos ? std::nullopt : pathOfLine(text.substr(end + 1));
}

/// The text of the file; nothing if it does not exist. A link to a missing file counts as existing: its disk may be
/// unmounted.
std::optional<std::string> readLocation(const fs::path& programFolder) {
    const fs::path file = store::existingSpelling(programFolder / locationFile);
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(file, ignored))) return {};
    try {
        return store::readFile(file);
    } catch (const store::Error& error) {
        throw store::Error(error.kind(), error.file(), "The file with the path of your clients cannot be read.",
                           "Allow {name} in the folder {folder} to be read (its properties, \"Permissions\"), or, if "
                           "your clients are in that folder, delete {name}. Then start again.");
    }
}

bool isUsable(const fs::path& path) {
    const auto read = parseDataPath("\"" + path.string() + "\"\r\n");
    return read && store::nativePath(*read) == path;
}

void writeQuietly(const fs::path& programFolder, const fs::path& dataDbPath) {
    try {
        writeDataPath(programFolder, dataDbPath);
    } catch (const store::Error&) {
        // Without the file the next start uses the default path again, so a failed write does no harm.
    }
}

fs::path ownDataDb(const fs::path& programFolder) { return store::existingSpelling(programFolder / "Data.Mdb"); }

/// The client database that `DataPath.txt` names.
std::optional<fs::path> namedDataDb(const fs::path& programFolder) {
    const auto named = parseDataPath(readLocation(programFolder).value_or(""));
    if (!named) return {};
    return store::existingSpelling(store::nativePath(*named, programFolder));
}

Paths pathsIn(const fs::path& programFolder, fs::path dataDb) {
    const auto beside = [&](const char* name) { return store::existingSpelling(programFolder / name); };
    return {programFolder,       std::move(dataDb),  beside("Default.Mdb"), printDbPath(programFolder),
            beside("units.mdb"), beside("Diary.mdb")};
}

bool isProgramFolder(const fs::path& folder) {
    return store::isThere(store::existingSpelling(folder / "Default.Mdb")) || store::isThere(printDbPath(folder));
}

bool isWrittenForAnother(const Paths& paths) {
    const std::string text = readLocation(paths.programFolder).value_or("");
    if (const auto writtenFor = parseWrittenFor(text)) return !store::isSameFile(*writtenFor, paths.programFolder);
    const fs::path folder = paths.DataDbPath.parent_path();
    return !store::isSameFile(folder, paths.programFolder) &&
           (isProgramFolder(folder) || !store::isThere(paths.DataDbPath));
}

} // namespace

std::optional<std::string> parseDataPath(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    return pathOfLine(text);
}

void requireUsableName(const fs::path& programFolder) {
    if (isUsable(programFolder / "Data.Mdb")) return;
    throw store::Error(store::Number::pathAccess, programFolder.string(),
                       "The path of the program folder contains a quotation mark, a backslash or a line break, so that "
                       "the program would not find your clients again.",
                       "Nothing was written. Rename that folder, or move the program to another one, and start again.");
}

void writeDataPath(const fs::path& programFolder, const fs::path& dataDbPath) {
    if (!isUsable(dataDbPath))
        throw store::Error(store::Number::pathAccess, dataDbPath.string(),
                           "The path of this file contains a quotation mark, a backslash or a line break, which "
                           "DataPath.txt cannot hold.",
                           "Rename the file or the folder, then try again.");
    std::string text = "\"" + dataDbPath.string() + "\"\r\n";
    if (!store::isSameFile(dataDbPath.parent_path(), programFolder)) text += "\"" + programFolder.string() + "\"\r\n";
    store::writeFile(programFolder / locationFile, text);
}

fs::path printDbPath(const fs::path& programFolder) { return store::existingSpelling(programFolder / "Print.mdb"); }

Paths lookUpPaths(const fs::path& programFolder) {
    return pathsIn(programFolder, namedDataDb(programFolder).value_or(ownDataDb(programFolder)));
}

Paths findPaths(const fs::path& programFolder) {
    std::optional<fs::path> dataDb = namedDataDb(programFolder);
    if (!dataDb) {
        requireUsableName(programFolder);
        dataDb = ownDataDb(programFolder);
        writeQuietly(programFolder, *dataDb);
    }
    return pathsIn(programFolder, std::move(*dataDb));
}

std::string copiedFolderNotice(const Paths& paths) {
    const fs::path own = ownDataDb(paths.programFolder);
    if (!store::isThere(own) || store::isSameFile(own, paths.DataDbPath) || !isWrittenForAnother(paths)) return {};
    return "The clients that you see are those of\n" + paths.DataDbPath.string() + "\nas DataPath.txt says.\n\n" +
           "This folder also has a client file of its own:\n" + own.string() +
           "\nThis folder seems to be a copy of another one. To work with its own file, close Marlowbeck, "
           "delete DataPath.txt in the folder\n" +
           paths.programFolder.string() + "\nand start again.";
}

} // namespace datastore
