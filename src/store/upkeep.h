#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "store/progress.h"

namespace SQLite {
class Database;
}

namespace store {

enum class Lock {
    none,
    exclusive, ///< until its end nobody else can read or write the file; Error 3356 if anybody has it open
};

/// A database open for its upkeep, not for its rows. What an interrupted writer left is undone first. The progress is
/// told during the work, which it may cancel.
class UpkeepDatabase {
public:
    /// Errors as for Database.
    UpkeepDatabase(const std::filesystem::path& path, Lock lock, Progress progress = {});
    ~UpkeepDatabase();
    UpkeepDatabase(const UpkeepDatabase&) = delete;
    UpkeepDatabase& operator=(const UpkeepDatabase&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Reads every page and index; Error 3049 if any is damaged.
    void checkIntegrity();
    /// The number that a query gives; 0 if it gives none.
    double figure(const std::string& sql);
    /// Writes all contents, without unused space, into a new file that only its owner can read, flushed to the disk.
    /// An older file of that name and its journals are removed first. On failure nothing of the new file stays.
    void compactInto(const std::filesystem::path& target);

private:
    std::filesystem::path m_path;
    Progress m_progress;
    std::filesystem::path m_growing; ///< the file under construction, whose size shows the progress
    std::unique_ptr<SQLite::Database> m_connection;
    void run(const std::filesystem::path& blamed, const std::function<void()>& work);
    double partDone() const;
};

} // namespace store
