#include "datastore/row.h"

#include "base/text.h"
#include "store/error.h"

namespace datastore {

std::vector<store::Column> requiredColumns(store::Database& database, std::string_view table) {
    std::vector<store::Column> columns = database.columns(table);
    if (columns.empty())
        throw store::Error(store::Number::noSuchTable, database.path().string(),
                           "The table \"" + std::string(table) + "\" is missing in this file.");
    return columns;
}

store::Declared requiredField(const store::Database& database, std::string_view table,
                              const std::vector<store::Column>& columns, std::string_view field) {
    for (const store::Column& column : columns)
        if (base::sameName(column.name, field)) return column.declared;
    throw store::Error(store::Number::noSuchField, database.path().string(),
                       "The table \"" + std::string(table) + "\" has no field \"" + std::string(field) + "\".");
}

store::Statement insertion(store::Database& database, std::string_view table, const Row& row) {
    std::string names;
    std::string places;
    for (const Field& field : row) {
        names += (names.empty() ? "" : ", ") + store::bracketed(field.name);
        places += places.empty() ? "?" : ", ?";
    }
    const std::string into = "INSERT INTO " + store::bracketed(table);
    return database.prepare(row.empty() ? into + " DEFAULT VALUES" : into + " (" + names + ") VALUES (" + places + ")");
}

store::Statement prepareUpdate(store::Database& database, std::string_view table, const Row& row) {
    std::string settings;
    for (const Field& field : row)
        settings += (settings.empty() ? "" : ", ") + store::bracketed(field.name) + " = ?";
    return database.prepare("UPDATE " + store::bracketed(table) + " SET " + settings + " WHERE rowid = ?");
}

void bindRow(store::Statement& statement, const Row& row, const store::Database& database, std::string_view table,
             const std::vector<store::Column>& columns) {
    const std::string file = database.path().string();
    int place = 0;
    for (const Field& field : row) {
        const store::Declared declared = requiredField(database, table, columns, field.name);
        statement.bind(++place, store::toStored(field.value, declared, file, field.name));
    }
}

} // namespace datastore
