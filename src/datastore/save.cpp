#include "datastore/save.h"

#include <array>
#include <optional>

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "store/error.h"

namespace datastore {

using assessment::Assessment;
using assessment::FieldTable;
using assessment::RowPlace;
using assessment::RowWriter;
using assessment::TableDescription;

namespace {

/// One save within one transaction.
class ClientWriter {
public:
    ClientWriter(store::Database& database, Assessment& record)
        : m_database(database), m_record(record), m_isUpdate(record.ClientOnFile == 1),
          m_key(m_isUpdate ? record.DCLNO : newKey()) {}

    double key() const { return m_key; }

    void write() {
        writeClientRow(assessment::dataTable());
        writeClientRow(assessment::persDetailsTable());
        if (m_isUpdate) deleteLists();
        writeItemLists();
        writeList(assessment::polsInvestsTable(), m_record.policies);
        deleteRows(assessment::cgtDetailsTable());
        writeList(assessment::cgtDetailsTable(), m_record.capitalGains.assets);
        writeSideRow(assessment::cgtDetailsOtherTable(), m_record.capitalGains);
        writeSideRow(assessment::lumpSumTaxTable(), m_record.lumpSums);
        if (m_record.capitalGains.ItemiseAdditCapGain == 1)
            writeList(assessment::cgtTrustOtherTable(), m_record.capitalGains.trustOther);
    }

private:
    double newKey() {
        store::Statement highest = m_database.prepare("SELECT max([DCLNO]) FROM [Data]");
        highest.step();
        return highest.number(0) + 1;
    }

    template <class Row>
    void put(const FieldTable<Row>& table, Row& row, std::optional<std::int64_t> rowid) {
        RowWriter<Row> writer(m_database, table);
        const RowPlace place{m_key};
        if (rowid)
            writer.overwrite(row, place, *rowid);
        else
            writer.add(row, place);
    }

    /// A client on file must be found again, unless the table is empty.
    void writeClientRow(const FieldTable<Assessment>& table) {
        std::optional<std::int64_t> rowid;
        if (m_isUpdate) {
            rowid = assessment::firstRow(m_database, table, m_key);
            if (!rowid && assessment::firstRow(m_database, table))
                throw store::Error(store::Number::noCurrentRecord, m_database.path().string(),
                                   "The client is no longer in the table " + table.name() + ".",
                                   "Use Save As to save the client anew.");
        }
        put(table, m_record, rowid);
    }

    /// A client from an older file may have no row yet; a row that a deleted client of the same key left behind would
    /// be read in place of what is saved now.
    template <class Row>
    void writeSideRow(const FieldTable<Row>& table, Row& row) {
        put(table, row, assessment::firstRow(m_database, table, m_key));
    }

    template <class Row>
    void writeList(const FieldTable<Row>& table, std::vector<Row>& rows) {
        if (rows.empty()) return;
        RowWriter<Row> writer(m_database, table);
        RowPlace place{m_key, static_cast<int>(rows.size())};
        for (Row& row : rows) {
            writer.add(row, place);
            ++place.number;
        }
    }

    void deleteRows(const TableDescription& table) {
        m_database.prepare("DELETE FROM " + store::bracketed(table.name()) + " WHERE [DCLNO]=?").bind(1, m_key).run();
    }

    void deleteLists() {
        for (const assessment::ItemTable& line : assessment::itemTables())
            if (line.table != nullptr) deleteRows(*line.table);
        deleteRows(assessment::polsInvestsTable());
        deleteRows(assessment::cgtTrustOtherTable());
    }

    void writeItemLists() {
        for (const assessment::ItemTable& line : assessment::itemTables()) {
            if (line.table == nullptr || !line.isKept) continue;
            assessment::ItemList& list = line.list(m_record.itemised);
            if (list.flag == 1) writeList(*line.table, list.rows);
        }
    }

    store::Database& m_database;
    Assessment& m_record;
    bool m_isUpdate;
    double m_key;
};

/// However a save ends, the next one is a plain one again.
class ThenNewCleared {
public:
    explicit ThenNewCleared(Assessment& record) : m_record(record) {}
    ~ThenNewCleared() { m_record.SaveThenNew = 0; }
    ThenNewCleared(const ThenNewCleared&) = delete;
    ThenNewCleared& operator=(const ThenNewCleared&) = delete;

private:
    Assessment& m_record;
};

void markSaved(Assessment& record, double key) {
    double& born = record.client.BirthDate;
    if (born == base::NoDate || born == base::NoDate - 1) born = base::blankDate;
    record.changed.clearAfterSave();
    record.ClientChanged = 0;
    record.ClientOnFile = 1;
    record.DCLNO = key;
}

} // namespace

Saved Save(Assessment& record, store::Database& database) {
    const ThenNewCleared guard(record);
    assessment::CheckChanges(record);
    if (record.ClientOnFile == 1 && record.ClientChanged == 0) return Saved::nothing;
    store::Transaction transaction(database);
    ClientWriter writer(database, record);
    writer.write();
    transaction.commit();
    markSaved(record, writer.key());
    return record.SaveThenNew == 1 ? Saved::thenNew : Saved::written;
}

Saved Save(Assessment& record, const std::filesystem::path& dataDbPath) {
    const ThenNewCleared guard(record);
    store::Database database(dataDbPath);
    return Save(record, database);
}

} // namespace datastore
