#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace store {

/// A path with `\` and `/` taken alike, made absolute from `folder` where it is relative.
std::filesystem::path nativePath(std::string_view path, const std::filesystem::path& folder = {});

/// The file that a path means: its last component is matched without case, the exact name first, else the first match
/// in byte order. A path that matches nothing comes back as it is, so that a new file gets the spelling asked for.
std::filesystem::path existingSpelling(const std::filesystem::path& path);

/// The whole of a file, its name matched without case. Throws Error 53, 70, 57 or 75. Not for a database in use:
/// closing a second handle on it would drop the locks of this program's own connections.
std::string readFile(const std::filesystem::path& path);

/// Writes a file whole or not at all: beside it first, flushed to the disk, then renamed over it. An existing file
/// keeps its spelling, a link stays a link. Readable by the owner alone unless `mode` says otherwise. Throws Error 57,
/// 61, 70, 75 or 76 and leaves the old file as it was.
void writeFile(const std::filesystem::path& path, std::string_view bytes, unsigned mode = 0600);

/// A file that is built beside its place, as `.NAME.new`, and gone with its scope unless it has taken that place. What
/// a killed program left of an earlier attempt is removed first, its journals too.
class FileBeside {
public:
    explicit FileBeside(const std::filesystem::path& target);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Takes a place that is free; Error 58 and nothing done if there is a file of that name by now.
    void settle();
    /// Takes the place of the file that is there, in one step; a journal of that file goes first, or the database that
    /// takes its place would be spoilt by it.
    void replace();

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    bool m_kept = false;
};

/// Removes what a killed `writeFile` has left in a folder of the files that are ours: `.NAME.` and six letters. Only
/// for a folder in which no other program is writing just then. What can't be removed stays, without a word.
void removeUnfinished(const std::filesystem::path& folder, const std::function<bool(const std::string& name)>& isOurs);

/// Gives a finished new file its name and flushes the folder. Throws Error 58 and leaves both as they are if there is a
/// file of that name by now.
void moveIntoPlace(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace store
