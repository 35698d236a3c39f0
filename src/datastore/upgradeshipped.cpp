#include <algorithm>

#include "base/text.h"
#include "datastore/create.h"
#include "datastore/headfoot.h"
#include "datastore/settings.h"
#include "datastore/shipped.h"
#include "store/error.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view tableHead = "CREATE TABLE ";

std::ptrdiff_t tablesOf(std::string_view source) {
    std::ptrdiff_t count = 0;
    for (auto at = source.find(tableHead); at != std::string_view::npos; at = source.find(tableHead, at + 1))
        ++count;
    return count;
}

/// True if a database has exactly the tables of its source. SQLite keeps each definition letter for letter, so it can
/// be looked up in the source; an added or dropped column changes its text.
bool matchesSource(store::Database& database, std::string_view source) {
    store::Statement tables = database.prepare("SELECT sql FROM sqlite_master WHERE type='table'");
    std::ptrdiff_t count = 0;
    for (; tables.step(); ++count)
        if (source.find(tables.text(0)) == std::string_view::npos) return false;
    return count == tablesOf(source);
}

bool isUpToDate(const fs::path& printDbPath) {
    try {
        store::Database print(printDbPath);
        return matchesSource(print, printSource());
    } catch (const store::Error& error) {
        if (error.is(store::Number::fileNotFound)) return true;
        if (error.is(store::Number::notADatabase) || error.is(store::Number::corrupt)) return false;
        throw;
    }
}

/// None for an old client database without these lines; its upgrade will add and copy them.
std::optional<assessment::HeadFootLines> linesOf(store::Database& clients) {
    try {
        return readHeadFoot(clients);
    } catch (const store::Error&) {
        return {};
    }
}

std::vector<std::string> tableNames(store::Database& database) {
    std::vector<std::string> names;
    store::Statement tables = database.prepare("SELECT name FROM sqlite_master WHERE type='table' ORDER BY rowid");
    while (tables.step())
        names.push_back(tables.text(0));
    return names;
}

bool has(const std::vector<store::Column>& columns, std::string_view name) {
    return std::any_of(columns.begin(), columns.end(),
                       [&](const store::Column& column) { return base::sameName(column.name, name); });
}

/// The shipped values of the fields that the user's table lacks.
Row lackingFields(const Row& shipped, const std::vector<store::Column>& present) {
    Row lacking;
    for (const Field& field : shipped)
        if (!has(present, field.name)) lacking.push_back(field);
    return lacking;
}

bool hasRow(store::Database& database, const std::string& table) {
    return database.prepare("SELECT 1 FROM " + store::bracketed(table)).step();
}

void addFields(store::Database& settings, store::Database& shipped, const std::string& table) {
    Creator creator(settings);
    creator.CreateOrOpenTable(table);
    for (const store::Column& column : shipped.columns(table))
        creator.AddField(column.name, column.declared.type, column.declared.size, 0);
    creator.finish();
}

void completeTable(store::Database& settings, store::Database& shipped, const std::string& table) {
    const std::vector<store::Column> before = settings.columns(table);
    const Row lacking = lackingFields(readSettings(shipped, table).row(), before);
    if (lacking.empty()) return;
    addFields(settings, shipped, table);
    if (before.empty() || hasRow(settings, table)) editOrAddRow(settings, table, lacking);
}

} // namespace

void renewPrintDb(store::Database& clients, const fs::path& printDbPath) {
    if (isUpToDate(printDbPath)) return;
    try {
        store::FileBeside beside(printDbPath);
        createPrintDb(beside.path(), linesOf(clients));
        beside.replace();
    } catch (const store::Error& error) {
        // The user does not know the temporary file's name.
        throw store::Error(error.kind(), printDbPath.string(), error.why());
    }
}

void createPrintDb(const fs::path& printDbPath, std::optional<assessment::HeadFootLines> lines) {
    store::Database::create(printDbPath);
    store::Database print(printDbPath);
    store::Transaction transaction(print);
    print.execute(printSource());
    if (lines) writeHeadFoot(print, *lines);
    transaction.commit();
}

bool hasAllSettings(store::Database& settings) {
    if (matchesSource(settings, defaultSource())) return true;
    store::Database shipped{store::InMemory()};
    shipped.execute(defaultSource());
    return std::ranges::all_of(tableNames(shipped), [&](const std::string& table) {
        return lackingFields(readSettings(shipped, table).row(), settings.columns(table)).empty();
    });
}

void completeSettings(store::Database& settings) {
    if (hasAllSettings(settings)) return;
    store::Database shipped{store::InMemory()};
    shipped.execute(defaultSource());
    store::Transaction transaction(settings);
    for (const std::string& table : tableNames(shipped))
        completeTable(settings, shipped, table);
    transaction.commit();
}

} // namespace datastore
