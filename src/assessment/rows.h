#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "assessment/checksum.h"
#include "assessment/fieldtable.h"
#include "store/database.h"

/// Writes records to rows and reads them back, as their field table describes; one prepared statement serves all rows.
///
/// For tables whose row is one of our structs. For rows put together field by field, such as those of a report, use
/// `datastore/row.h`.
namespace assessment {

/// The columns of a row that are not in the record itself.
struct RowPlace {
    double key = 0; ///< of the client
    int count = 1;  ///< number of rows in the list
    int number = 1; ///< this row's number in the list, from 1
};

class RowWriterCore {
protected:
    RowWriterCore(store::Database& database, const TableDescription& table, Checksum* sum)
        : m_database(database), m_table(table), m_sum(sum) {}
    void add(void* row, const RowPlace& place);
    void overwrite(void* row, const RowPlace& place, std::int64_t rowid);

private:
    int bindFields(store::Statement& statement, void* row, const RowPlace& place) const;
    store::Database& m_database;
    const TableDescription& m_table;
    Checksum* m_sum;
    std::optional<store::Statement> m_insert;
};

/// Writes rows of one table. Error 3163 for a text longer than its field, 3421 for a number that the field can't hold,
/// 3265 for a field missing in the file. `sum` is updated with what is written; reading the same rows gives the same
/// sum.
template <class Row>
class RowWriter : RowWriterCore {
public:
    RowWriter(store::Database& database, const FieldTable<Row>& table, Checksum* sum = nullptr)
        : RowWriterCore(database, table, sum) {}
    void add(Row& row, const RowPlace& place = {}) { RowWriterCore::add(&row, place); }
    void overwrite(Row& row, const RowPlace& place, std::int64_t rowid) {
        RowWriterCore::overwrite(&row, place, rowid);
    }
};

class RowReaderCore {
protected:
    RowReaderCore(store::Database& database, const TableDescription& table, std::optional<double> key, Checksum* sum);
    bool next(void* row);

public:
    /// The number of rows in the list, as the last row read says; 0 if it does not say.
    double rowCount() const { return m_rowCount; }
    /// The client's key in the row read last.
    double key() const { return m_key; }

private:
    struct Source {
        const FieldLine* field;
        int column; ///< -1: missing in the file
    };
    store::Statement m_select;
    Checksum* m_sum;
    std::vector<Source> m_sources;
    double m_rowCount = 0;
    double m_key = 0;
};

/// Reads the rows of one client, or of the whole table, in the order in which they were added. A field missing in an
/// older file reads as its blank value. `sum` is updated with what is read.
template <class Row>
class RowReader : public RowReaderCore {
public:
    RowReader(store::Database& database, const FieldTable<Row>& table, std::optional<double> key = {},
              Checksum* sum = nullptr)
        : RowReaderCore(database, table, key, sum) {}
    /// Reads the next row into `row`. False, and `row` unchanged, if there is none.
    bool next(Row& row) { return RowReaderCore::next(&row); }
};

/// Rowid of the row added first, in the whole table or for one client.
std::optional<std::int64_t> firstRow(store::Database& database, const TableDescription& table,
                                     std::optional<double> key = {});

} // namespace assessment
