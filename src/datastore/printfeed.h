#pragma once

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/row.h"
#include "store/database.h"

namespace datastore {

/// The report definition that a printout uses, as the report engine takes it, and the title of its window.
struct Printout {
    std::string definition;
    std::string title;
};

/// Passes a screen's figures to its report: rows for the tables of Print.mdb, all of them or none.
///
///     PrintFeed feed(printPath, record.client.Name);
///     feed.replace("Loans", {{"Heading", loans.Heading}, {"Num1", loans.Num1}});
///     feed.replace("Amort", rows);
///     feed.commit();
///
/// A replaced table keeps no rows of an earlier printout. Fields not named are empty. Error 3011 for an unknown table,
/// 3265 for an unknown field, 3163 or 3421 for a value that does not fit; nothing is changed then.
class PrintFeed {
public:
    /// client: the client's name, printed on each page; empty for a report without a client.
    PrintFeed(const std::filesystem::path& printDatabase, std::string_view client);

    /// Replaces all rows of the table by this one.
    void replace(std::string_view table, std::initializer_list<Field> row);
    void replace(std::string_view table, const Row& row);
    /// Replaces all rows of the table by these, in this order.
    void replace(std::string_view table, const std::vector<Row>& rows);

    /// The fields of a row that the table has: of a client's table Print.mdb has only what its report shows.
    Row printedOf(std::string_view table, Row row);

    void clear(std::string_view table);
    void add(std::string_view table, const Row& row);

    /// Makes the changes take effect. A feed that is destroyed without it changes nothing.
    void commit();

private:
    void turnTo(std::string_view table);
    void prepare(std::string_view table, const Row& row);

    store::Database m_database;
    store::Transaction m_transaction;
    // The statement of the last row: the next row mostly has the same fields.
    std::string m_table;
    std::vector<store::Column> m_columns;
    std::vector<std::string> m_names;
    std::optional<store::Statement> m_insertion;
};

} // namespace datastore
