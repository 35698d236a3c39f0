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

/// How this program opens a database file.
enum class Opening {
    usual,
    onlyRead,  ///< writes nothing beside it either; Error 3027 where reading would need that, after a crashed writer
    temporary, ///< never waits for the disk: a power failure may destroy the file, a crash of the program does not
};

/// Has every connection to a file opened in this way during its lifetime, also by code that knows nothing of it. Of
/// several for one file the last one counts.
class OpenedAs {
public:
    OpenedAs(const std::filesystem::path& database, Opening opening);
    ~OpenedAs();
    OpenedAs(const OpenedAs&) = delete;
    OpenedAs& operator=(const OpenedAs&) = delete;

private:
    std::filesystem::path m_database;
};

Opening openingOf(const std::filesystem::path& database);

} // namespace store
