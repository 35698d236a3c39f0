#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace store {

/// An absolute path: `\` and `/` both separate folders, and a relative path starts from `folder`.
std::filesystem::path nativePath(std::string_view path, const std::filesystem::path& folder = {});

/// The existing file that a path means. Its last component is matched without case: the exact name first, else the
/// first match in byte order. A path without a match is returned unchanged, to keep the spelling of a new file.
std::filesystem::path existingSpelling(const std::filesystem::path& path);

/// The whole content of a file, its name matched without case. Throws Error 53, 70, 57 or 75. Not for a database in
/// use: closing a second handle on it would drop the locks of this program's own connections.
std::string readFile(const std::filesystem::path& path);

/// Writes a file completely or not at all: to a temporary file beside it, flushed to the disk, then renamed over it. An
/// existing file keeps its spelling, a link stays a link. Readable by the owner alone unless `mode` says otherwise.
/// Throws Error 57, 61, 70, 75 or 76 and leaves the old file as it was.
void writeFile(const std::filesystem::path& path, std::string_view bytes, unsigned mode = 0600);

/// A file built beside its final place as `.NAME.new`, and removed at the end of its scope unless moved into that
/// place. Remains of an earlier attempt by a killed program, with their journals, are removed first.
class FileBeside {
public:
    explicit FileBeside(const std::filesystem::path& target);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Moves it into its place. Error 58, with nothing done, if a file of that name exists by now.
    void settle();
    /// Replaces the existing file in one step. The old file's journal is deleted first: applied to the new database it
    /// would corrupt it.
    void replace();

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    bool m_kept = false;
};

/// Removes what killed `writeFile` calls left in a folder: `.NAME.` and six letters, for the files that are ours. Only
/// safe while no other program writes to that folder. Files that can't be removed are silently left.
void removeUnfinished(const std::filesystem::path& folder, const std::function<bool(const std::string& name)>& isOurs);

/// Renames a finished new file and flushes the folder. Throws Error 58 and leaves both as they are if a file of that
/// name exists by now.
void moveIntoPlace(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace store
