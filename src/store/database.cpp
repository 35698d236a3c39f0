#include "store/database.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <system_error>

#include "store/error.h"
#include "store/files.h"
#include "store/openfiles.h"
#include "store/sqlitecall.h"

namespace store {

namespace fs = std::filesystem;

namespace {

constexpr int busyMilliseconds = 1000;
constexpr std::uintmax_t headerBytes = 100;
constexpr const char* folderIsReadOnly = "The folder of the database is read-only.";

struct Cause {
    Number number;
    std::string why; ///< empty: use the standard message for the number
};

bool holds(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

/// SQLite has one error code for every fault in a statement; only its message says which fault it was.
Cause statementCause(const std::string& words) {
    if (holds(words, "no such table")) return {Number::noSuchTableInQuery, "There is " + words + "."};
    if (holds(words, "no such column") || holds(words, "no column named"))
        return {Number::noSuchField, "A field is missing in this file: " + words + "."};
    if (holds(words, "duplicate column name")) return {Number::fieldDefined, {}};
    if (holds(words, "an index named")) return {Number::indexExists, {}};
    if (holds(words, "a table named")) return {Number::tableExists, {}};
    if (holds(words, "already exists"))
        return {words.starts_with("index") ? Number::indexExists : Number::tableExists, {}};
    return {Number::reserved, "The database refused: " + words + "."};
}

Cause readOnlyCause(int extendedCode) {
    switch (extendedCode) {
    case SQLITE_READONLY_DIRECTORY: return {Number::cannotOpen, folderIsReadOnly};
    case SQLITE_READONLY_DBMOVED:
        return {Number::cannotOpen, "The database was moved or replaced while the program was using it."};
    case SQLITE_READONLY_ROLLBACK:
        return {Number::readOnly, "An interrupted save must be undone first, but the database is read-only."};
    default: return {Number::readOnly, {}};
    }
}

Cause causeFrom(int extendedCode, const std::string& words) {
    switch (extendedCode & 0xff) {
    case SQLITE_NOTADB: return {Number::notADatabase, {}};
    case SQLITE_CORRUPT: return {Number::corrupt, {}};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH: return {Number::cannotOpen, {}};
    case SQLITE_READONLY: return readOnlyCause(extendedCode);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL: return {Number::heldByAnother, {}};
    case SQLITE_FULL: return {Number::diskFull, {}};
    case SQLITE_IOERR: return {Number::deviceError, {}};
    case SQLITE_MISMATCH: return {Number::wrongType, {}};
    default: return statementCause(words);
    }
}

/// Checks what can be checked without opening the file. Opening and closing a second handle on a database would drop
/// the locks that this process holds on it through another connection.
void checkBeforeOpening(const fs::path& path) {
    std::error_code error;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, error)) {
        if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory)
            throw Error(Number::cannotOpen, path.string());
        throw Error(Number::badPath, path.string());
    }
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) throw Error(Number::fileNotFound, path.string());
    if (status.type() != fs::file_type::regular) throw Error(Number::cannotOpen, path.string());
    // SQLite would take an empty file for a new database and fill it.
    const std::uintmax_t size = fs::file_size(path, error);
    if (!error && size < headerBytes)
        throw Error(Number::notADatabase, path.string(), size == 0 ? "This file is empty." : "");
}

void configure(sqlite3* connection) {
    // Otherwise a misspelt name in double quotes would be read as a text constant.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
}

/// Bytes of the file's header, read through the connection's own handle: closing a second one would drop its locks.
template <std::size_t Count>
std::optional<std::array<unsigned char, Count>> headerAt(SQLite::Database& connection, sqlite3_int64 place) {
    std::array<unsigned char, Count> bytes{};
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (file == nullptr || file->pMethods == nullptr ||
        file->pMethods->xRead(file, bytes.data(), Count, place) != SQLITE_OK)
        return {};
    return bytes;
}

/// Reading a file with a write-ahead log would make files beside it.
void requireNoLog(SQLite::Database& connection, const fs::path& path) {
    constexpr sqlite3_int64 placeOfReadVersion = 19;
    constexpr unsigned char withLog = 2;
    const auto version = headerAt<1>(connection, placeOfReadVersion);
    if (version && version->front() == withLog)
        throw Error(Number::readOnly, path.string(), "Its last changes are in a log beside it.",
                    "Start Marlowbeck once, which takes them over, then try again.");
}

/// The first statement reads the header and all table definitions, so it reveals a damaged file. Another program may
/// have switched the file to a write-ahead log; with a rollback journal a copy of the one file is complete again.
const char* firstStatements(Opening opening) {
    switch (opening) {
    case Opening::onlyRead: return "SELECT 1 FROM sqlite_master";
    case Opening::temporary: return "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF";
    default: return "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL";
    }
}

} // namespace

void failWith(const fs::path& path, int extendedCode, const std::string& words) {
    const Cause cause = causeFrom(extendedCode, words);
    throw Error(cause.number, path.string(), cause.why);
}

std::unique_ptr<SQLite::Database> connect(const fs::path& path, int flags) {
    try {
        // Each connection is used for one operation on one thread. Without SQLite's own locking a list is read a tenth
        // faster.
        return std::make_unique<SQLite::Database>(path.string(), flags | SQLite::OPEN_NOMUTEX, busyMilliseconds);
    } catch (const SQLite::Exception& error) {
        failWith(path, error.getExtendedErrorCode(), error.what());
    }
}

Statement::Statement(Database& database, std::string_view sql) : m_database(&database) {
    try {
        m_statement = std::make_unique<SQLite::Statement>(*database.m_connection, std::string(sql));
    } catch (const SQLite::Exception& error) {
        failWith(database.m_path, error.getExtendedErrorCode(), error.what());
    }
}

Statement::~Statement() = default;
Statement::Statement(Statement&&) noexcept = default;

Statement& Statement::bind(int index, const Value& value) {
    try {
        if (const auto* number = std::get_if<double>(&value))
            m_statement->bind(index, *number);
        else if (const auto* text = std::get_if<std::string>(&value))
            m_statement->bind(index, *text);
        else
            m_statement->bind(index);
    } catch (const SQLite::Exception& error) {
        failWith(m_database->m_path, error.getExtendedErrorCode(), error.what());
    }
    return *this;
}

bool Statement::step() {
    if (m_statement->isDone()) return false;
    const int code = m_statement->tryExecuteStep();
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    const int extended = m_database->m_connection->getExtendedErrorCode();
    const std::string words = m_database->m_connection->getErrorMsg();
    reset(); // otherwise the statement would keep its lock on the file
    failWith(m_database->m_path, extended, words);
}

// Its return code repeats the error of the last step, which has been reported already.
void Statement::reset() { m_statement->tryReset(); }

void Statement::run() {
    while (step()) {
    }
    reset();
}

int Statement::columnCount() const { return m_statement->getColumnCount(); }
std::string Statement::columnName(int column) const { return m_statement->getColumnName(column); }

Value Statement::column(int column) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    switch (cell.getType()) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT: return cell.getDouble();
    case SQLITE_TEXT: return cell.getString();
    default: return {};
    }
}

double Statement::number(int column) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    return cell.isInteger() || cell.isFloat() ? cell.getDouble() : 0;
}

std::string Statement::text(int column) const {
    const SQLite::Column cell = m_statement->getColumn(column);
    return cell.isText() ? cell.getString() : std::string();
}

Database::Database(const fs::path& path) : m_path(existingSpelling(path)) {
    checkBeforeOpening(m_path);
    const Opening opening = openingOf(m_path);
    m_connection = connect(m_path, opening == Opening::onlyRead ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE);
    configure(m_connection->getHandle());
    if (opening == Opening::onlyRead) requireNoLog(*m_connection, m_path);
    execute(firstStatements(opening));
    // SQLite counts a truncated last page as a whole one.
    Statement pageSize = prepare("PRAGMA page_size");
    std::error_code error;
    if (pageSize.step() && fs::file_size(m_path, error) % static_cast<std::uintmax_t>(pageSize.number(0)) != 0 &&
        !error)
        throw Error(Number::corrupt, m_path.string());
    noteOpened(m_path); // last: the destructor does not run if the constructor throws
}

Database::Database(InMemory) : m_connection(connect(":memory:", SQLite::OPEN_READWRITE)) {
    configure(m_connection->getHandle());
}

Database::~Database() {
    if (!m_path.empty()) noteClosed(m_path);
}

void Database::create(const fs::path& path) {
    if (fs::exists(fs::symlink_status(existingSpelling(path)))) throw Error(Number::databaseExists, path.string());
    std::error_code error;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, error)) throw Error(Number::badPath, path.string());
    if (::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) != 0)
        throw Error(Number::cannotOpen, path.string(), folderIsReadOnly);
    const auto connection = connect(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    // Set while the file is empty; its journals get the same permissions.
    ::chmod(path.c_str(), S_IRUSR | S_IWUSR);
    // An empty transaction writes the header, which distinguishes a new file from one that was emptied by accident.
    const int code = connection->tryExec(firstStatements(openingOf(path)) + std::string("; BEGIN IMMEDIATE; COMMIT"));
    if (code != SQLITE_OK) failWith(path, connection->getExtendedErrorCode(), connection->getErrorMsg());
}

bool Database::hasTable(std::string_view table) { return !columns(table).empty(); }

std::vector<Column> Database::columns(std::string_view table) {
    std::vector<Column> found;
    Statement info = prepare("PRAGMA table_info(" + bracketed(table) + ")");
    while (info.step())
        found.push_back({info.text(1), declaredFrom(info.text(2))});
    return found;
}

void Database::execute(std::string_view sql) {
    if (m_connection->tryExec(std::string(sql)) != SQLITE_OK) fail();
}

std::int64_t Database::lastRow() const { return m_connection->getLastInsertRowid(); }

FileState Database::state() const {
    constexpr sqlite3_int64 placeOfCount = 24;
    const auto count = headerAt<4>(*m_connection, placeOfCount);
    struct stat info {};
    if (!count || ::stat(m_path.c_str(), &info) != 0) return {};
    const auto [first, second, third, last] = *count;
    const std::uint32_t changes =
        std::uint32_t{first} << 24 | std::uint32_t{second} << 16 | std::uint32_t{third} << 8 | std::uint32_t{last};
    return {info.st_dev, info.st_ino, info.st_ctim.tv_sec, info.st_ctim.tv_nsec, info.st_size, changes};
}

void Database::fail() const { failWith(m_path, m_connection->getExtendedErrorCode(), m_connection->getErrorMsg()); }

Transaction::Transaction(Database& database, Access access) : m_database(database) {
    // SQLite would open a read-only file without complaint and refuse only the first write.
    if (access == Access::write && sqlite3_db_readonly(m_database.m_connection->getHandle(), "main") == 1)
        throw Error(Number::readOnly, m_database.m_path.string());
    m_database.execute(access == Access::write ? "BEGIN IMMEDIATE" : "BEGIN");
}

// After an error such as a full disk SQLite may have rolled back already; a failure of this second one does not matter.
Transaction::~Transaction() {
    if (m_open) m_database.m_connection->tryExec("ROLLBACK");
}

void Transaction::commit() {
    m_database.execute("COMMIT");
    m_open = false;
}

std::string bracketed(std::string_view name) {
    if (!holds(name, "]")) return "[" + std::string(name) + "]";
    // A bracket inside brackets can't be escaped, so such a name is quoted.
    std::string quoted = "\"";
    for (const char c : name)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

} // namespace store
