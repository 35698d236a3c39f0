#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "store/database.h"
#include "store/value.h"

/// Rows put together field by field: what a report or a settings panel writes. A table whose row is a struct uses its
/// field table instead, see `assessment/rows.h`.
namespace datastore {

/// One field of one row, found by its name in the table without case. All number types are accepted.
struct Field {
    Field(std::string_view fieldName, store::Value fieldValue) : name(fieldName), value(std::move(fieldValue)) {}
    template <class Arithmetic>
    requires std::is_arithmetic_v<Arithmetic> Field(std::string_view fieldName, Arithmetic number)
        : Field(fieldName, store::Value(static_cast<double>(number))) {}

    std::string name;
    store::Value value;
};

using Row = std::vector<Field>;

/// The columns of a table; Error 3011 if the file has no table of that name.
std::vector<store::Column> requiredColumns(store::Database& database, std::string_view table);

/// The declaration of one column; Error 3265 if there is none of that name.
store::Declared requiredField(const store::Database& database, std::string_view table,
                              const std::vector<store::Column>& columns, std::string_view field);

/// Prepares an INSERT of these fields, or an UPDATE of them in the row whose rowid is bound last.
store::Statement insertion(store::Database& database, std::string_view table, const Row& row);
store::Statement prepareUpdate(store::Database& database, std::string_view table, const Row& row);

/// Binds the values of a row from 1 on, each converted to its column's type.
void bindRow(store::Statement& statement, const Row& row, const store::Database& database, std::string_view table,
             const std::vector<store::Column>& columns);

} // namespace datastore
