#include "datastore/settings.h"

#include <optional>

#include "base/text.h"
#include "store/error.h"

namespace datastore {

namespace {

/// The row that was put in first, since settings tables have no key.
store::Statement firstRow(store::Database& database, std::string_view table) {
    return database.prepare("SELECT rowid, * FROM " + store::bracketed(table) + " ORDER BY rowid LIMIT 1");
}

[[noreturn]] void emptyTable(const store::Database& database, std::string_view table) {
    throw store::Error(store::Number::noCurrentRecord, database.path().string(),
                       "The table \"" + std::string(table) + "\" must have a row and is empty.");
}

/// False if there is no row to edit.
bool editFirstRow(store::Database& database, std::string_view table, const Row& fields,
                  const std::vector<store::Column>& columns) {
    std::optional<double> rowid;
    if (store::Statement first = firstRow(database, table); first.step()) rowid = first.number(0);
    if (!rowid) return false;
    if (fields.empty()) return true;
    for (const Field& field : fields)
        requiredField(database, table, columns, field.name);
    store::Statement edit = prepareUpdate(database, table, fields);
    bindRow(edit, fields, database, table, columns);
    edit.bind(static_cast<int>(fields.size()) + 1, *rowid).run();
    return true;
}

} // namespace

const store::Value& SettingsRow::value(std::string_view field) const {
    for (const Field& candidate : m_row)
        if (base::sameName(candidate.name, field)) return candidate.value;
    throw store::Error(store::Number::noSuchField, m_file,
                       "The table \"" + m_table + "\" has no field \"" + std::string(field) + "\".");
}

double SettingsRow::number(std::string_view field) const {
    const store::Value& found = value(field);
    const std::string name = "The field \"" + std::string(field) + "\" of the table \"" + m_table + "\" ";
    if (store::isNull(found)) throw store::Error(store::Number::null, m_file, name + "is empty.");
    if (const auto* number = std::get_if<double>(&found)) return *number;
    throw store::Error(store::Number::wrongType, m_file, name + "holds text instead of a number.");
}

std::string SettingsRow::text(std::string_view field) const {
    const store::Value& found = value(field);
    if (store::isNull(found)) return {};
    if (const auto* text = std::get_if<std::string>(&found)) return *text;
    throw store::Error(store::Number::wrongType, m_file,
                       "The field \"" + std::string(field) + "\" of the table \"" + m_table +
                           "\" holds a number instead of text.");
}

SettingsRow readSettings(store::Database& database, std::string_view table) {
    requiredColumns(database, table);
    store::Statement first = firstRow(database, table);
    if (!first.step()) emptyTable(database, table);
    Row row;
    for (int i = 1; i < first.columnCount(); ++i)
        row.emplace_back(first.columnName(i), first.column(i));
    return {database.path().string(), std::string(table), std::move(row)};
}

SettingsRow readSettings(const std::filesystem::path& path, std::string_view table) {
    store::Database database(path);
    return readSettings(database, table);
}

void writeSettings(store::Database& database, std::string_view table, const Row& fields) {
    if (!editFirstRow(database, table, fields, requiredColumns(database, table))) emptyTable(database, table);
}

void writeSettings(const std::filesystem::path& path, std::string_view table, const Row& fields) {
    store::Database database(path);
    store::Transaction transaction(database);
    writeSettings(database, table, fields);
    transaction.commit();
}

void editOrAddRow(store::Database& database, std::string_view table, const Row& fields) {
    const auto columns = requiredColumns(database, table);
    if (editFirstRow(database, table, fields, columns)) return;
    for (const Field& field : fields)
        requiredField(database, table, columns, field.name);
    store::Statement insert = insertion(database, table, fields);
    bindRow(insert, fields, database, table, columns);
    insert.run();
}

} // namespace datastore
