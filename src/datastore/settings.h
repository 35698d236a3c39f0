#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "assessment/fieldtable.h"
#include "datastore/row.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

/// The one row of a settings table, as read. Fields are found without case; Error 3265 for one that does not exist.
class SettingsRow {
public:
    SettingsRow(std::string file, std::string table, Row row)
        : m_file(std::move(file)), m_table(std::move(table)), m_row(std::move(row)) {}

    const store::Value& value(std::string_view field) const;
    double number(std::string_view field) const;    ///< Error 94 if it is empty, 3421 if it is text
    std::string text(std::string_view field) const; ///< empty if it is Null; Error 3421 if it is a number
    const Row& row() const { return m_row; }

    /// Reads the numbers of a described row into the struct that it describes. Errors as for `number`.
    void fill(const assessment::TableDescription& table, void* record) const;
    /// Error 3421 for a number outside its range; words: what it must be, "a percentage from 0 to 100".
    void requireBetween(std::string_view field, double lowest, double highest, const std::string& words) const;

private:
    /// Throws an error about one field. Its advice is to repair the file, since the screen for the field can't open.
    [[noreturn]] void refuse(store::Number number, std::string_view field, const std::string& why) const;

    std::string m_file;
    std::string m_table;
    Row m_row;
};

/// Reads the first row of a table. Error 3011 if the table is missing, 3021 if it is empty: settings are never made up.
SettingsRow readSettings(store::Database& database, std::string_view table);
SettingsRow readSettings(const std::filesystem::path& path, std::string_view table);

/// The values of a struct under the field names of its table.
template <class Record>
Row rowOf(const assessment::FieldTable<Record>& table, Record record) {
    Row row;
    for (const assessment::FieldLine& line : table.fields())
        if (line.at != nullptr) row.emplace_back(line.name, assessment::valueAt(line.at(&record)));
    return row;
}

/// Writes the named fields into the first row of a table; its other fields and rows are unchanged. Errors as for
/// reading, and 3265 for an unknown field.
void writeSettings(store::Database& database, std::string_view table, const Row& fields);
/// The same in a transaction of its own.
void writeSettings(const std::filesystem::path& path, std::string_view table, const Row& fields);

/// Writes the named fields into the first row of a table, and adds that row if the table is empty.
void editOrAddRow(store::Database& database, std::string_view table, const Row& fields);

} // namespace datastore
