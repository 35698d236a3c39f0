#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "assessment/checksum.h"
#include "assessment/fieldtable.h"
#include "store/database.h"

/// Records to rows and back, by their field table; one prepared statement serves all rows of a table.
///
/// For tables whose rows are a struct of ours. Rows that are put together field by field where they are needed, such as
/// those of a report, go by `datastore/row.h`.
namespace assessment {

/// What of a row is not in the record itself.
struct RowPlace {
    double key = 0; ///< the client's
    int count = 1;  ///< rows of the list
    int number = 1; ///< this row's place in it, from 1
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

/// Writes rows of one table. Error 3163 for a text past its field's size, 3421 for a number that the field can't hold,
/// 3265 for a field that the file lacks. What is written is added to `sum`, in such a way that a reader of the same
/// rows comes to the same sum.
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
    /// The list's row count as the row read last tells it; 0 where it does not.
    double rowCount() const { return m_rowCount; }
    /// The client's key in the row read last.
    double key() const { return m_key; }

private:
    struct Source {
        const FieldLine* field;
        int column; ///< -1: the file lacks it
    };
    store::Statement m_select;
    Checksum* m_sum;
    std::vector<Source> m_sources;
    double m_rowCount = 0;
    double m_key = 0;
};

/// Reads the rows of one client, or of the whole table, in the order in which they were added. A field
/// that an older file lacks reads as its blank. What is read is added to `sum`.
template <class Row>
class RowReader : public RowReaderCore {
public:
    RowReader(store::Database& database, const FieldTable<Row>& table, std::optional<double> key = {},
              Checksum* sum = nullptr)
        : RowReaderCore(database, table, key, sum) {}
    /// The next row's fields into `row`; false, and `row` untouched, when there is none.
    bool next(Row& row) { return RowReaderCore::next(&row); }
};

/// Rowid of the first row in the order of adding, of all or of one client.
std::optional<std::int64_t> firstRow(store::Database& database, const TableDescription& table,
                                     std::optional<double> key = {});

} // namespace assessment
