#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/filestate.h"
#include "store/value.h"

namespace SQLite {
class Database;
class Statement;
} // namespace SQLite

namespace store {

class Database;

/// One prepared statement. Values are bound in order, from 1.
class Statement {
public:
    Statement(Database& database, std::string_view sql);
    ~Statement();
    Statement(Statement&&) noexcept;
    Statement& operator=(Statement&&) = delete;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& bind(int index, const Value& value);
    /// To the next row; false when there is none. Every failure is a store::Error.
    bool step();
    /// Makes it ready to run again, with the old values still bound.
    void reset();
    /// Runs it to its end and resets it.
    void run();

    int columnCount() const;
    std::string columnName(int column) const; ///< columns count from 0
    Value column(int column) const;
    double number(int column) const;    ///< 0 if it is not a number
    std::string text(int column) const; ///< empty if it is not text

private:
    Database* m_database;
    std::unique_ptr<SQLite::Statement> m_statement;
};

/// A column as the file declares it.
struct Column {
    std::string name;
    Declared declared;
};

/// Asks for a database in memory only, which is gone when its object is.
struct InMemory {};

/// One connection to one database file, open for one operation and closed with the object. Destroy its statements and
/// transactions first. The file name is matched without case.
///
/// Opening never creates a file and never changes one that it refuses: a missing file is Error 3024, a missing folder
/// 3044, an empty file or one that is no database 3343, a damaged one 3049. Rollback journal, synchronous=FULL. Waits
/// up to a second for a busy file, then throws Error 3356. `OpenedAs` has a file opened in another way.
class Database {
public:
    explicit Database(const std::filesystem::path& path);
    explicit Database(InMemory);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Creates an empty file that only its owner can read. Error 3204 if the file exists.
    static void create(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return m_path; }

    bool hasTable(std::string_view table);
    /// Columns in the file's order; empty if there is no such table.
    std::vector<Column> columns(std::string_view table);
    void execute(std::string_view sql);
    Statement prepare(std::string_view sql) { return {*this, sql}; }
    /// The file's state; reliable only while a transaction is open. A default one if the file can't be examined.
    FileState state() const;
    /// Rowid of the row inserted last.
    std::int64_t lastRow() const;

private:
    friend class Statement;
    friend class Transaction;
    [[noreturn]] void fail() const; ///< the connection's last error as a store::Error
    std::filesystem::path m_path;
    std::unique_ptr<SQLite::Database> m_connection;
};

/// What a transaction is for. `read` gives one unchanging view of several tables, and works on a read-only file.
/// `write` takes the file's write lock at once, so that Error 3027 or 3356 comes before any work is done.
enum class Access { write, read };

/// Rolled back unless committed: a crash, an error or an early return leaves the file as it was.
class Transaction {
public:
    explicit Transaction(Database& database, Access access = Access::write);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    Database& m_database;
    bool m_open = true;
};

/// A name in brackets, as every statement writes it: SQLite would read a misspelt name in quotes as a text constant.
std::string bracketed(std::string_view name);

} // namespace store
