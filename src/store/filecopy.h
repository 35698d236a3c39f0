#pragma once

#include <filesystem>
#include <utility>

#include "store/progress.h"

namespace store {

/// True if something has this name; false also where that can't be found out.
bool isThere(const std::filesystem::path& path);

/// True if both paths mean one existing file, or are equal.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// Copies a file's bytes into a new file that only its owner can read, and flushes it to the disk. The source is only
/// read. Throws Error 53, 57, 61, 70, 75 or 76, or Cancelled; nothing of the new file stays then.
void copyFile(const std::filesystem::path& from, const std::filesystem::path& to, const Progress& progress = {});

/// The same of a database together with its journals: opening the copy completes or undoes what the source's last
/// writer left unfinished. Error 57 if the source changes meanwhile. No connection of this program may be open on it.
void copyDatabase(const std::filesystem::path& from, const std::filesystem::path& to, const Progress& progress = {});

/// Before a finished new file replaces an existing one: gives it the old one's permissions, as far as the disk has any.
/// Error 70 if the old file may not be written: a rename would not ask.
void takeOverRights(const std::filesystem::path& finished, const std::filesystem::path& existing);

/// Replaces a database by a finished new one, and keeps the old one as `kept`. `target` exists at every moment, as the
/// old file or the new one. It keeps its permissions, and a link stays a link. The caller holds the target locked, or
/// nobody uses it. Throws Error 57, 61, 70, 75 or 76 and leaves the target as it was.
void replaceKeepingOld(const std::filesystem::path& finished, const std::filesystem::path& target,
                       const std::filesystem::path& kept);

/// Removes a database and its journals, if they exist.
void removeDatabase(const std::filesystem::path& database);

/// Removes a working copy of a database at the end of its scope, unless it has found its place.
class WorkingCopy {
public:
    explicit WorkingCopy(std::filesystem::path path) : m_path(std::move(path)) {}
    ~WorkingCopy() {
        if (!m_kept) removeDatabase(m_path);
    }
    WorkingCopy(const WorkingCopy&) = delete;
    WorkingCopy& operator=(const WorkingCopy&) = delete;
    void keep() { m_kept = true; }

private:
    std::filesystem::path m_path;
    bool m_kept = false;
};

} // namespace store
