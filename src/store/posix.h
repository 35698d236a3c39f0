#pragma once

#include <filesystem>

/// The system calls that the files of `store/` share. Not for other folders.
namespace store::posix {

/// Throws the store::Error for an errno.
[[noreturn]] void fail(const std::filesystem::path& path, int error);

/// Closes an open file at the end of its scope.
class Handle {
public:
    explicit Handle(int handle) : m_handle(handle) {}
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    int get() const { return m_handle; }
    bool ok() const { return m_handle >= 0; }

private:
    int m_handle;
};

std::filesystem::path folderOf(const std::filesystem::path& path);

/// The file that is really written: an existing file in its own spelling, or what a link points to.
std::filesystem::path targetOf(const std::filesystem::path& path);

/// Has the names in a folder reach the disk.
void flushFolder(const std::filesystem::path& folder);

/// Removes the journals beside a database.
void removeJournals(const std::filesystem::path& database);

} // namespace store::posix
