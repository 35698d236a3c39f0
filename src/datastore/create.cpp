#include "datastore/create.h"

#include <algorithm>

#include "assessment/tables.h"
#include "base/text.h"
#include "datastore/upgrade.h"
#include "store/error.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;
using store::bracketed;

namespace {

constexpr int counter = 16;
constexpr int defaultZero = 10;
constexpr int defaultEmpty = 11;
constexpr int noAttribute = 0;

/// SQLite's index names are unique in the whole file, so each starts with its table's name.
std::string indexName(std::string_view table, std::string_view index) {
    return bracketed(std::string(table) + "_" + std::string(index));
}

std::string bracketedList(std::string_view fields) {
    std::string list;
    while (!fields.empty()) {
        const auto comma = fields.find(',');
        list += (list.empty() ? "" : ",") + bracketed(base::trim(fields.substr(0, comma)));
        fields = comma == std::string_view::npos ? std::string_view() : fields.substr(comma + 1);
    }
    return list;
}

std::string declarationOf(store::Type type, int size, int attribute) {
    if (attribute == counter) return "INTEGER PRIMARY KEY AUTOINCREMENT";
    std::string text = store::declaration({type, size});
    if (attribute == defaultZero) text += " DEFAULT 0";
    if (attribute == defaultEmpty) text += " DEFAULT ''";
    return text;
}

int attributeOf(assessment::Initial initial) {
    switch (initial) {
    case assessment::Initial::zero: return defaultZero;
    case assessment::Initial::empty: return defaultEmpty;
    default: return noAttribute;
    }
}

void describe(Creator& creator, const assessment::TableDescription& table) {
    creator.CreateOrOpenTable(table.name());
    for (const assessment::FieldLine& line : table.fields()) {
        const auto& [type, size] = line.kind.declared;
        creator.AddField(line.name, type, size, attributeOf(line.kind.initial));
    }
    for (const assessment::IndexLine& index : table.indexes())
        creator.AddIndex(index.fields, index.name, false, false);
}

void describeAll(Creator& creator) {
    for (const assessment::TableDescription* table : assessment::clientTables())
        describe(creator, *table);
}

void addFirstRows(store::Database& database) {
    UpgradeHeadFoot(database);
    database.execute("INSERT INTO [DataSetup] ([UpDateDB]) SELECT 1 WHERE NOT EXISTS (SELECT 1 FROM [DataSetup])");
}

} // namespace

Creator::Creator(Notice notice) : m_notice(std::move(notice)) {}
Creator::Creator(store::Database& database) : m_database(&database) {}

Creator::~Creator() {
    m_transaction.reset();
    m_own.reset(); // before the file beside it is removed
}

void Creator::CreateOrOpenDb(const fs::path& path) {
    m_path = store::existingSpelling(path);
    try {
        std::error_code ignored;
        if (!fs::exists(fs::symlink_status(m_path, ignored))) {
            m_beside.emplace(m_path);
            store::Database::create(m_beside->path());
        }
        m_own.emplace(m_beside ? m_beside->path() : m_path);
        m_transaction.emplace(*m_own);
        m_database = &*m_own;
    } catch (const store::Error& error) {
        m_failure.emplace(error.kind(), m_path.string(), error.why());
        if (m_notice)
            m_notice("Operation Unsuccessful",
                     "Cannot Update " + m_path.string() + " at this stage.Please try again later");
    }
}

void Creator::CreateOrOpenTable(std::string_view name) {
    if (!hasDatabase()) return;
    flushTable();
    m_table = name;
    m_existing = m_database->columns(m_table);
}

void Creator::AddField(std::string_view name, store::Type type, int size, int attribute) {
    if (!hasDatabase() || m_table.empty() || name.empty()) return;
    const auto isIt = [&](const auto& field) { return base::sameName(field.name, name); };
    if (std::any_of(m_existing.begin(), m_existing.end(), isIt) || std::any_of(m_new.begin(), m_new.end(), isIt))
        return;
    // A counter can only be created together with its table.
    if (attribute == counter && !m_existing.empty()) return;
    m_new.push_back({std::string(name), declarationOf(type, size, attribute),
                     attribute == defaultZero || attribute == defaultEmpty});
}

void Creator::AddIndex(std::string_view fields, std::string_view name, bool primary, bool unique) {
    if (!hasDatabase() || m_table.empty()) return;
    flushTable();
    const std::string index = indexName(m_table, name);
    m_database->execute("DROP INDEX IF EXISTS " + index);
    try {
        m_database->execute(std::string("CREATE ") + (primary || unique ? "UNIQUE " : "") + "INDEX " + index + " ON " +
                            bracketed(m_table) + " (" + bracketedList(fields) + ")");
    } catch (const store::Error& error) {
        if (!error.is(store::Number::noSuchTableInQuery) && !error.is(store::Number::noSuchField)) throw;
    }
}

void Creator::flushTable() {
    if (m_table.empty()) return;
    if (m_existing.empty())
        createTable();
    else if (!m_new.empty())
        alterTable();
    m_new.clear();
    m_existing = m_database->columns(m_table);
}

void Creator::createTable() {
    std::string sql = "CREATE TABLE " + bracketed(m_table) + " ([In Use] BOOLEAN DEFAULT 0";
    for (const NewField& field : m_new)
        sql += ", " + bracketed(field.name) + " " + field.declaration;
    m_database->execute(sql + ")");
}

// Existing rows would get the default too. They must hold Null instead, so that the steps of an upgrade can see that
// they are older than the field.
void Creator::alterTable() {
    std::string blanks;
    for (const NewField& field : m_new) {
        m_database->execute("ALTER TABLE " + bracketed(m_table) + " ADD COLUMN " + bracketed(field.name) + " " +
                            field.declaration);
        if (field.hasDefault) blanks += (blanks.empty() ? "" : ", ") + bracketed(field.name) + "=NULL";
    }
    if (!blanks.empty()) m_database->execute("UPDATE " + bracketed(m_table) + " SET " + blanks);
}

void Creator::finish(const std::function<void(store::Database&)>& lastly) {
    if (!hasDatabase()) return;
    flushTable();
    if (lastly) lastly(*m_database);
    m_database = nullptr;
    if (!m_own) return;
    m_transaction->commit();
    m_transaction.reset();
    m_own.reset();
    if (m_beside) m_beside->settle();
}

bool MakeNewDb(const fs::path& path, const Notice& notice) {
    Creator creator(notice);
    creator.CreateOrOpenDb(path);
    if (!creator.hasDatabase()) return false;
    describeAll(creator);
    creator.finish();
    return true;
}

void MakeNewDb(store::Database& database) {
    Creator creator(database);
    describeAll(creator);
    creator.finish();
}

void completeTable(store::Database& database, const assessment::TableDescription& table) {
    const std::vector<store::Column> columns = database.columns(table.name());
    const auto isThere = [&](const assessment::FieldLine& line) {
        return std::ranges::any_of(columns, [&](const auto& column) { return base::sameName(column.name, line.name); });
    };
    if (std::ranges::all_of(table.fields(), isThere)) return;
    Creator creator(database);
    describe(creator, table);
    creator.finish();
}

void createClientDb(const fs::path& path, const Notice& notice) {
    Creator creator(notice);
    creator.CreateOrOpenDb(path);
    if (creator.failure()) throw store::Error(*creator.failure());
    try {
        describeAll(creator);
        creator.finish(addFirstRows);
    } catch (const store::Error& error) {
        throw store::Error(error.kind(), path.string(), error.why()); // the user does not know the temporary file
    }
}

} // namespace datastore
