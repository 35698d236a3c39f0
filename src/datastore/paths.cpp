#include "datastore/paths.h"

#include "store/error.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

constexpr auto locationFile = "DataPath.txt";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Whatever keeps the file from being read counts as a file with nothing in it.
std::string readQuietly(const fs::path& path) {
    try {
        return store::readFile(path);
    } catch (const store::Error&) {
        return {};
    }
}

void writeQuietly(const fs::path& programFolder, const fs::path& dataDbPath) {
    try {
        writeDataPath(programFolder, dataDbPath);
    } catch (const store::Error&) {
        // The default path needs no file to be found again.
    }
}

fs::path findDataDb(const fs::path& programFolder) {
    if (const auto named = parseDataPath(readQuietly(programFolder / locationFile)))
        return store::existingSpelling(store::nativePath(*named, programFolder));
    fs::path usual = store::existingSpelling(programFolder / "Data.Mdb");
    writeQuietly(programFolder, usual);
    return usual;
}

} // namespace

std::optional<std::string> parseDataPath(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::string_view path = withoutBlanks(text.substr(0, text.find_first_of("\r\n")));
    if (path.starts_with('"')) {
        path.remove_prefix(1);
        path = withoutBlanks(path.substr(0, path.find('"')));
    }
    if (path.empty()) return {};
    return std::string(path);
}

void writeDataPath(const fs::path& programFolder, const fs::path& dataDbPath) {
    store::writeFile(programFolder / locationFile, "\"" + dataDbPath.string() + "\"\r\n");
}

Paths findPaths(const fs::path& programFolder) {
    const auto beside = [&](const char* name) { return store::existingSpelling(programFolder / name); };
    return {programFolder,       findDataDb(programFolder), beside("Default.Mdb"),
            beside("Print.mdb"), beside("units.mdb"),       beside("Diary.mdb")};
}

} // namespace datastore
