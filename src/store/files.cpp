#include "store/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <optional>
#include <system_error>
#include <vector>

#include "base/text.h"
#include "store/error.h"
#include "store/posix.h"

namespace store {

namespace fs = std::filesystem;

namespace {

using posix::fail;
using posix::flushFolder;
using posix::folderOf;
using posix::Handle;
using posix::removeJournals;
using posix::targetOf;

constexpr const char* temporaryEnding = ".XXXXXX"; // each X becomes a letter or a digit

/// A new file beside the real one. Removed at the end of its scope unless it has replaced the real one.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& target)
        : m_name((target.parent_path() / ("." + target.filename().string() + temporaryEnding)).string()),
          m_handle(::mkostemp(m_name.data(), O_CLOEXEC)), m_target(target) {
        if (!m_handle.ok()) fail(target, errno == ENOENT ? ENOTDIR : errno);
    }
    ~TemporaryFile() {
        if (!m_kept) ::unlink(m_name.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void fill(std::string_view bytes, unsigned mode) {
        while (!bytes.empty()) {
            const ssize_t count = ::write(m_handle.get(), bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) fail(m_target, errno);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        if (::fchmod(m_handle.get(), mode) != 0 || ::fsync(m_handle.get()) != 0) fail(m_target, errno);
    }
    void takePlace() {
        if (::rename(m_name.c_str(), m_target.c_str()) != 0) fail(m_target, errno);
        m_kept = true;
    }

private:
    std::string m_name;
    Handle m_handle;
    fs::path m_target;
    bool m_kept = false;
};

void removeWithJournals(const fs::path& database) {
    std::error_code ignored;
    fs::remove(database, ignored);
    removeJournals(database);
}

/// The name of the file that a temporary one was to become; nothing if its name is not of our form.
std::optional<std::string> unfinishedName(const std::string& temporary) {
    const std::size_t ending = std::strlen(temporaryEnding);
    if (!temporary.starts_with('.') || temporary.size() < ending + 2) return {};
    const std::string tail = temporary.substr(temporary.size() - ending);
    const auto isLetter = [](unsigned char c) { return std::isalnum(c) != 0; };
    if (tail[0] != '.' || !std::all_of(tail.begin() + 1, tail.end(), isLetter)) return {};
    return temporary.substr(1, temporary.size() - 1 - ending);
}

} // namespace

fs::path nativePath(std::string_view path, const fs::path& folder) {
    std::string native;
    for (const char c : path) {
        const char mapped = c == '\\' ? '/' : c;
        if (mapped == '/' && !native.empty() && native.back() == '/') continue;
        native += mapped;
    }
    const fs::path result(native);
    return result.is_absolute() || folder.empty() ? result : folder / result;
}

fs::path existingSpelling(const fs::path& path) {
    std::error_code ignored;
    const std::string wanted = path.filename().string();
    if (wanted.empty() || fs::exists(fs::symlink_status(path, ignored))) return path;
    std::optional<std::string> found;
    fs::directory_iterator entry(folderOf(path), ignored);
    for (; !ignored && entry != fs::directory_iterator(); entry.increment(ignored)) {
        std::string name = entry->path().filename().string();
        if (base::sameName(name, wanted) && (!found || name < *found)) found = std::move(name);
    }
    return found ? path.parent_path() / *found : path;
}

std::string readFile(const fs::path& path) {
    const fs::path spelled = existingSpelling(path);
    const Handle file(::open(spelled.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.ok()) fail(spelled, errno == ENOTDIR ? ENOENT : errno);
    std::string bytes;
    char part[16384];
    for (;;) {
        const ssize_t count = ::read(file.get(), part, sizeof part);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(spelled, errno);
        if (count == 0) return bytes;
        bytes.append(part, static_cast<std::size_t>(count));
    }
}

void writeFile(const fs::path& path, std::string_view bytes, unsigned mode) {
    const fs::path target = targetOf(path);
    // Renaming onto a file checks the rights on the folder only, but a file that its owner made read-only must not
    // change.
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) fail(target, errno);
    TemporaryFile beside(target);
    beside.fill(bytes, mode);
    beside.takePlace();
    flushFolder(folderOf(target));
}

FileBeside::FileBeside(const fs::path& target)
    : m_target(targetOf(target)), m_path(m_target.parent_path() / ("." + m_target.filename().string() + ".new")) {
    removeWithJournals(m_path);
}

FileBeside::~FileBeside() {
    if (!m_kept) removeWithJournals(m_path);
}

void FileBeside::settle() {
    moveIntoPlace(m_path, m_target);
    m_kept = true;
}

void FileBeside::replace() {
    removeJournals(m_target);
    if (::rename(m_path.c_str(), m_target.c_str()) != 0) fail(m_target, errno);
    m_kept = true;
    flushFolder(folderOf(m_target));
}

void removeUnfinished(const fs::path& folder, const std::function<bool(const std::string& name)>& isOurs) {
    std::error_code ignored;
    std::vector<fs::path> found;
    fs::directory_iterator entry(folder, ignored);
    for (; !ignored && entry != fs::directory_iterator(); entry.increment(ignored)) {
        const auto name = unfinishedName(entry->path().filename().string());
        if (name && isOurs(*name) && entry->symlink_status(ignored).type() == fs::file_type::regular)
            found.push_back(entry->path());
    }
    for (const fs::path& file : found)
        fs::remove(file, ignored);
}

void moveIntoPlace(const fs::path& from, const fs::path& to) {
    int failed = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    // Not every file system supports a rename that refuses to replace.
    if (failed != 0 && (errno == EINVAL || errno == ENOSYS)) {
        errno = EEXIST;
        if (!fs::exists(fs::symlink_status(to))) failed = ::rename(from.c_str(), to.c_str());
    }
    if (failed != 0) fail(to, errno);
    flushFolder(folderOf(to));
}

} // namespace store
