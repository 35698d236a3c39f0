#include "datastore/printfeed.h"

#include <algorithm>

#include "base/text.h"

namespace datastore {

PrintFeed::PrintFeed(const std::filesystem::path& printDatabase, std::string_view client)
    : m_database(printDatabase), m_transaction(m_database) {
    replace("Printout", {{"Client", std::string(client)}});
}

void PrintFeed::replace(std::string_view table, std::initializer_list<Field> row) { replace(table, Row(row)); }

void PrintFeed::replace(std::string_view table, const Row& row) {
    clear(table);
    add(table, row);
}

void PrintFeed::replace(std::string_view table, const std::vector<Row>& rows) {
    clear(table);
    for (const Row& row : rows)
        add(table, row);
}

Row PrintFeed::printedOf(std::string_view table, Row row) {
    turnTo(table);
    std::erase_if(row, [&](const Field& field) {
        return std::none_of(m_columns.begin(), m_columns.end(),
                            [&](const store::Column& column) { return base::sameName(column.name, field.name); });
    });
    return row;
}

void PrintFeed::clear(std::string_view table) {
    requiredColumns(m_database, table);
    m_database.execute("DELETE FROM " + store::bracketed(table));
}

void PrintFeed::add(std::string_view table, const Row& row) {
    prepare(table, row);
    bindRow(*m_insertion, row, m_database, table, m_columns);
    m_insertion->run();
}

void PrintFeed::commit() {
    m_insertion.reset();
    m_transaction.commit();
}

void PrintFeed::turnTo(std::string_view table) {
    if (m_table == table) return;
    m_insertion.reset();
    m_columns = requiredColumns(m_database, table);
    m_table = table;
}

void PrintFeed::prepare(std::string_view table, const Row& row) {
    const auto sameField = [](const Field& field, const std::string& name) { return field.name == name; };
    turnTo(table);
    if (m_insertion && std::equal(row.begin(), row.end(), m_names.begin(), m_names.end(), sameField)) return;
    m_insertion.reset();
    m_names.clear();
    for (const Field& field : row) {
        requiredField(m_database, table, m_columns, field.name);
        m_names.push_back(field.name);
    }
    m_insertion.emplace(insertion(m_database, table, row));
}

} // namespace datastore
