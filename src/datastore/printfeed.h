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

/// Hands a screen's figures to its report: rows for the tables of Print.mdb, all of them or none.
///
///     PrintFeed feed(printPath, record.client.Name);
///     feed.replace("Loans", {{"Heading", loans.Heading}, {"Num1", loans.Num1}});
///     feed.replace("Amort", rows);
///     feed.commit();
///
/// A table never holds rows of an earlier printout beside new ones. Fields that are not named are empty. Error 3011 for
/// an unknown table, 3265 for an unknown field, 3163 or 3421 for a value that does not fit; nothing is changed then.
class PrintFeed {
public:
    /// client: whose printout it is, which stands on each page; empty if nobody's.
    PrintFeed(const std::filesystem::path& printDatabase, std::string_view client);

    /// One row in place of all that the table held.
    void replace(std::string_view table, std::initializer_list<Field> row);
    void replace(std::string_view table, const Row& row);
    /// These rows, in this order, in place of all that the table held.
    void replace(std::string_view table, const std::vector<Row>& rows);

    /// The fields of a row that the table has a place for: of a client's table a report shows what Print.mdb has.
    Row printedOf(std::string_view table, Row row);

    void clear(std::string_view table);
    void add(std::string_view table, const Row& row);

    /// Without it everything is undone when the feed goes.
    void commit();

private:
    void turnTo(std::string_view table);
    void prepare(std::string_view table, const Row& row);

    store::Database m_database;
    store::Transaction m_transaction;
    // The last row's shape: the next one most often has the same.
    std::string m_table;
    std::vector<store::Column> m_columns;
    std::vector<std::string> m_names;
    std::optional<store::Statement> m_insertion;
};

} // namespace datastore
