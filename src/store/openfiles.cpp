#include "store/openfiles.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "store/filecopy.h"
#include "store/files.h"

namespace store {

namespace fs = std::filesystem;

namespace {

std::vector<fs::path>& openFiles() {
    static std::vector<fs::path> files;
    return files;
}

std::vector<std::pair<fs::path, Opening>>& openings() {
    static std::vector<std::pair<fs::path, Opening>> files;
    return files;
}

} // namespace

void noteOpened(const fs::path& database) { openFiles().push_back(database); }

void noteClosed(const fs::path& database) {
    auto& files = openFiles();
    const auto found = std::ranges::find(files, database);
    if (found != files.end()) files.erase(found);
}

bool isOpenHere(const fs::path& database) {
    const fs::path spelled = existingSpelling(database);
    return std::ranges::any_of(openFiles(), [&](const fs::path& open) { return isSameFile(open, spelled); });
}

OpenFile::OpenFile(const fs::path& database) : m_database(existingSpelling(database)) { noteOpened(m_database); }
OpenFile::~OpenFile() { noteClosed(m_database); }

OpenedAs::OpenedAs(const fs::path& database, Opening opening) : m_database(existingSpelling(database)) {
    openings().emplace_back(m_database, opening);
}

OpenedAs::~OpenedAs() {
    auto& files = openings();
    const auto found =
        std::find_if(files.rbegin(), files.rend(), [this](const auto& file) { return file.first == m_database; });
    if (found != files.rend()) files.erase(std::next(found).base());
}

Opening openingOf(const fs::path& database) {
    const auto& files = openings();
    const auto found =
        std::find_if(files.rbegin(), files.rend(), [&](const auto& file) { return isSameFile(file.first, database); });
    return found == files.rend() ? Opening::usual : found->second;
}

} // namespace store
