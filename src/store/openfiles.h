#pragma once

#include <filesystem>

/// The database files that this program has open. SQLite shows no lock for a connection that is doing nothing, and a
/// file must not be replaced under a screen that still works with it.
namespace store {

/// Each connection notes its file here.
void noteOpened(const std::filesystem::path& database);
void noteClosed(const std::filesystem::path& database);

/// True if this program has the file open, under whatever spelling or link.
bool isOpenHere(const std::filesystem::path& database);

/// Marks a database as open during its lifetime, for a screen that works with it between its operations.
class OpenFile {
public:
    explicit OpenFile(const std::filesystem::path& database);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

private:
    std::filesystem::path m_database;
};

} // namespace store
