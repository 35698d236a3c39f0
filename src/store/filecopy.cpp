#include "store/filecopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <tuple>
#include <vector>

#include "store/error.h"
#include "store/files.h"
#include "store/posix.h"

namespace store {

namespace fs = std::filesystem;
using posix::fail;
using posix::Handle;

namespace {

/// Removes an unfinished file at the end of its scope.
class Unfinished {
public:
    explicit Unfinished(fs::path path) : m_path(std::move(path)) {}
    ~Unfinished() {
        if (!m_finished) ::unlink(m_path.c_str());
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;
    void finish() { m_finished = true; }

private:
    fs::path m_path;
    bool m_finished = false;
};

void writeAll(const Handle& file, const fs::path& path, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t count = ::write(file.get(), bytes, size);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(path, errno);
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
}

/// What changes when a file is written to.
auto stampOf(const fs::path& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) fail(path, errno);
    return std::tuple(info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec);
}

void renameOver(const fs::path& from, const fs::path& to) {
    posix::removeJournals(to); // applied to the new file they would corrupt it
    if (::rename(from.c_str(), to.c_str()) != 0) fail(to, errno);
}

/// Gives the old file its second name. File systems without hard links get a copy.
void keep(const fs::path& target, const fs::path& kept) {
    const fs::path place = posix::targetOf(kept);
    const fs::path beside = posix::folderOf(place) / ("." + place.filename().string() + ".new");
    ::unlink(beside.c_str());
    Unfinished guard(beside); // also if both names mean the same file already: then the rename does nothing
    if (::link(target.c_str(), beside.c_str()) != 0) copyFile(target, beside);
    renameOver(beside, place);
}

} // namespace

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

bool isSameFile(const fs::path& one, const fs::path& other) {
    std::error_code failed;
    return one == other || (fs::equivalent(one, other, failed) && !failed);
}

void copyFile(const fs::path& from, const fs::path& to, const Progress& progress) {
    const Handle source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.ok()) fail(from, errno == ENOTDIR ? ENOENT : errno);
    const Handle copy(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!copy.ok()) fail(to, errno == ENOENT ? ENOTDIR : errno);
    Unfinished guard(to);
    struct stat info {};
    if (::fstat(source.get(), &info) != 0) fail(from, errno);
    std::vector<char> part(std::size_t{1} << 20);
    for (double copied = 0;;) {
        const ssize_t count = ::read(source.get(), part.data(), part.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(from, errno);
        if (count == 0) break;
        writeAll(copy, to, part.data(), static_cast<std::size_t>(count));
        copied += static_cast<double>(count);
        tell(progress, info.st_size > 0 ? std::min(1.0, copied / static_cast<double>(info.st_size)) : 1);
    }
    if (::fsync(copy.get()) != 0) fail(to, errno);
    guard.finish();
}

void copyDatabase(const fs::path& from, const fs::path& to, const Progress& progress) {
    const fs::path source = existingSpelling(from);
    const auto before = stampOf(source);
    try {
        copyFile(source, to, progress);
        std::error_code ignored;
        for (const char* ending : {"-journal", "-wal"})
            if (fs::exists(source.string() + ending, ignored)) copyFile(source.string() + ending, to.string() + ending);
        if (stampOf(source) != before)
            throw Error(Number::deviceError, source.string(), "The file was changed while it was copied.");
    } catch (...) {
        removeDatabase(to);
        throw;
    }
}

void takeOverRights(const fs::path& finished, const fs::path& existing) {
    struct stat info {};
    if (::stat(existing.c_str(), &info) != 0) fail(existing, errno);
    if (::faccessat(AT_FDCWD, existing.c_str(), W_OK, AT_EACCESS) != 0) fail(existing, errno);
    // Sticks without permissions refuse this and need none.
    static_cast<void>(::chmod(finished.c_str(), info.st_mode & 0777U));
}

void replaceKeepingOld(const fs::path& finished, const fs::path& target, const fs::path& kept) {
    const fs::path place = posix::targetOf(target);
    takeOverRights(finished, place);
    keep(place, kept);
    if (isSameFile(posix::folderOf(finished), posix::folderOf(place))) {
        renameOver(finished, place);
    } else { // a link into another folder, perhaps on another disk
        FileBeside beside(place);
        copyFile(finished, beside.path());
        takeOverRights(beside.path(), place);
        beside.replace();
        fs::remove(finished);
    }
    posix::flushFolder(posix::folderOf(place));
    posix::flushFolder(posix::folderOf(kept));
}

void removeDatabase(const fs::path& database) {
    std::error_code ignored;
    fs::remove(database, ignored);
    posix::removeJournals(database);
}

} // namespace store
