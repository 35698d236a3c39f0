#include "store/openfiles.h"

#include <algorithm>
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

} // namespace store
