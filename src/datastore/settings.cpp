#include "datastore/settings.h"

#include <optional>

#include "base/text.h"
#include "store/error.h"

namespace datastore {

namespace {

/// The row that was added first, since settings tables have no key.
store::Statement firstRow(store::Database& database, std::string_view table) {
    return database.prepare("SELECT rowid, * FROM " + store::bracketed(table) + " ORDER BY rowid LIMIT 1");
}

[[noreturn]] void emptyTable(const store::Database& database, std::string_view table) {
    throw store::Error(store::Number::noCurrentRecord, database.path().string(),
                       "The table \"" + std::string(table) + "\" is empty, but must have a row.");
}

/// Writes the fields into the first row; false if there is no row.
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

void SettingsRow::refuse(store::Number number, std::string_view field, const std::string& why) const {
    throw store::Error(number, m_file,
                       "The field \"" + std::string(field) + "\" of the table \"" + m_table + "\" " + why,
                       "Close Marlowbeck and copy {name} from your last backup into the folder {folder}. Without a "
                       "backup, move {name} to another folder and install Marlowbeck again: you then have its original "
                       "settings, and your clients are kept.");
}

double SettingsRow::number(std::string_view field) const {
    const store::Value& found = value(field);
    if (store::isNull(found)) refuse(store::Number::null, field, "is empty.");
    if (const auto* number = std::get_if<double>(&found)) return *number;
    refuse(store::Number::wrongType, field, "holds text instead of a number.");
}

void SettingsRow::fill(const assessment::TableDescription& table, void* record) const {
    for (const assessment::FieldLine& line : table.fields())
        assessment::setValueAt(line.at(record), number(line.name), line.kind.blank);
}

void SettingsRow::requireBetween(std::string_view field, double lowest, double highest,
                                 const std::string& words) const {
    const double found = number(field);
    if (!(found >= lowest && found <= highest))
        refuse(store::Number::wrongType, field, "is " + std::to_string(found) + " and must be " + words + ".");
}

std::string SettingsRow::text(std::string_view field) const {
    const store::Value& found = value(field);
    if (store::isNull(found)) return {};
    if (const auto* text = std::get_if<std::string>(&found)) return *text;
    refuse(store::Number::wrongType, field, "holds a number instead of text.");
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
