#include "store/posix.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "store/error.h"
#include "store/files.h"

namespace store::posix {

namespace fs = std::filesystem;

namespace {

Number numberFor(int error) {
    switch (error) {
    case ENOENT: return Number::fileNotFound53;
    case ENOTDIR: return Number::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS: return Number::permissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return Number::diskFull61;
    case ENODEV:
    case ENXIO: return Number::deviceUnavailable;
    case EEXIST: return Number::fileExists58;
    case EIO: return Number::deviceError;
    default: return Number::pathAccess;
    }
}

} // namespace

void fail(const fs::path& path, int error) {
    const Number number = numberFor(error);
    throw Error(number, path.string(),
                number == Number::pathAccess
                    ? "The file cannot be used: " + std::generic_category().message(error) + "."
                    : std::string());
}

Handle::~Handle() {
    if (m_handle >= 0) ::close(m_handle);
}

// The folder's own entry must reach the disk too, or a power cut could bring the old file back. File systems that
// cannot flush a folder keep their entries in order by themselves.
void flushFolder(const fs::path& folder) {
    const Handle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.ok()) ::fsync(handle.get());
}

fs::path folderOf(const fs::path& path) { return path.has_parent_path() ? path.parent_path() : fs::path("."); }

fs::path targetOf(const fs::path& path) {
    fs::path spelled = existingSpelling(path);
    std::error_code ignored;
    if (!fs::is_symlink(spelled, ignored)) return spelled;
    fs::path end = fs::weakly_canonical(spelled, ignored);
    return end.empty() ? spelled : end;
}

void removeJournals(const fs::path& database) {
    std::error_code ignored;
    for (const char* ending : {"-journal", "-wal", "-shm"})
        fs::remove(database.string() + ending, ignored);
}

} // namespace store::posix
