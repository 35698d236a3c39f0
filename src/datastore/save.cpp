#include "datastore/save.h"

#include <array>
#include <optional>

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "base/day.h"
#include "base/text.h"
#include "datastore/filetexts.h"
#include "datastore/load.h"
#include "store/error.h"

namespace datastore {

using assessment::Assessment;
using assessment::FieldTable;
using assessment::RowPlace;
using assessment::RowWriter;
using assessment::TableDescription;

namespace {

/// Saves one client in one transaction.
class ClientWriter {
public:
    ClientWriter(store::Database& database, Assessment& record)
        : m_database(database), m_record(record), m_isUpdate(record.ClientOnFile == 1),
          m_key(m_isUpdate ? record.DCLNO : newKey()) {}

    double key() const { return m_key; }
    std::uint64_t contents() const { return m_sum.value(); }

    void write() {
        writeClientRow(assessment::dataTable());
        writeClientRow(assessment::persDetailsTable());
        if (m_isUpdate) deleteLists();
        deleteRows(assessment::cgtTrustOtherTable()); // also those that a deleted client left under a new one's key
        writeItemLists();
        writeList(assessment::polsInvestsTable(), m_record.policies);
        deleteRows(assessment::cgtDetailsTable());
        writeList(assessment::cgtDetailsTable(), m_record.capitalGains.assets);
        writeSideRow(assessment::cgtDetailsOtherTable(), m_record.capitalGains);
        writeSideRow(assessment::lumpSumTaxTable(), m_record.lumpSums);
        if (m_record.capitalGains.ItemiseAdditCapGain == 1)
            writeList(assessment::cgtTrustOtherTable(), m_record.capitalGains.trustOther);
        writeFileTexts(m_record.fileTexts, m_database, m_key, &m_sum);
    }

private:
    double newKey() {
        store::Statement highest = m_database.prepare("SELECT max([DCLNO]) FROM [Data]");
        highest.step();
        return highest.number(0) + 1;
    }

    template <class Row>
    void put(const FieldTable<Row>& table, Row& row, std::optional<std::int64_t> rowid) {
        RowWriter<Row> writer(m_database, table, &m_sum);
        const RowPlace place{m_key};
        if (rowid)
            writer.overwrite(row, place, *rowid);
        else
            writer.add(row, place);
    }

    /// A client on file must still have its row, unless the table is empty.
    void writeClientRow(const FieldTable<Assessment>& table) {
        std::optional<std::int64_t> rowid;
        if (m_isUpdate) {
            rowid = assessment::firstRow(m_database, table, m_key);
            if (!rowid && assessment::firstRow(m_database, table))
                throw store::Error(store::Number::noCurrentRecord, m_database.path().string(),
                                   "The client is no longer in the table " + table.name() + ".",
                                   "Use Save As to save the client as a new one.");
        }
        put(table, m_record, rowid);
    }

    /// A client from an older file may have no row yet. A row left by a deleted client with the same key must go: the
    /// next load would read it instead of this one.
    template <class Row>
    void writeSideRow(const FieldTable<Row>& table, Row& row) {
        put(table, row, assessment::firstRow(m_database, table, m_key));
    }

    template <class Row>
    void writeList(const FieldTable<Row>& table, std::vector<Row>& rows) {
        if (rows.empty()) return;
        RowWriter<Row> writer(m_database, table, &m_sum);
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
    assessment::Checksum m_sum; ///< over the tables in the same order as in a load
};

/// "Mr P J O'Brien (born 17/03/1960)"
std::string described(const std::string& name, double born) {
    const std::string shown = base::trim(name).empty() ? "a client without a name" : base::trim(name);
    return born > base::blankDate ? shown + " (born " + base::formatDate(born) + ")" : shown;
}

/// Refuses to write over a different client, or, without the user's consent, over another program's changes.
void requireUnchanged(store::Database& database, const Assessment& record, TheirChanges theirs) {
    // Usually no other program has written to the file; then the client need not be read before each save.
    if (record.inFile.file.inode != 0 && record.inFile.file == database.state()) return;
    for (const FieldTable<Assessment>* table : {&assessment::dataTable(), &assessment::persDetailsTable()})
        if (!assessment::firstRow(database, *table, record.DCLNO)) return; // the writer throws its own error for this
    Assessment found;
    readClient(found, database, record.DCLNO);
    const assessment::ClientInFile& known = record.inFile;
    const std::string client = "Client " + std::to_string(static_cast<long long>(record.DCLNO)) + " in the file ";
    if (found.inFile.Name != known.Name || found.inFile.BirthDate != known.BirthDate)
        throw OtherClientInFile(store::Number::changedByAnother, database.path().string(),
                                client + "is now " + described(found.inFile.Name, found.inFile.BirthDate) +
                                    " and no longer " + described(known.Name, known.BirthDate) + ".",
                                "Nothing was saved. Use Save As to save the client on the screen as a new one.");
    if (theirs == TheirChanges::keep && found.inFile.contents != known.contents)
        throw ChangedInFile(store::Number::changedByAnother, database.path().string(),
                            client + "was changed by another program since it was loaded here.",
                            "Nothing was saved. Use Save As to keep both.");
}

/// Clears `SaveThenNew` however the save ends.
class ThenNewCleared {
public:
    explicit ThenNewCleared(Assessment& record) : m_record(record) {}
    ~ThenNewCleared() { m_record.SaveThenNew = 0; }
    ThenNewCleared(const ThenNewCleared&) = delete;
    ThenNewCleared& operator=(const ThenNewCleared&) = delete;

private:
    Assessment& m_record;
};

/// The state of the file after our own commit, judged by its change count; none if another program has written since.
store::FileState stateAfterCommit(const store::Database& database, const store::FileState& before) {
    const store::FileState now = database.state();
    return now.changes == before.changes + 1 ? now : store::FileState();
}

void markSaved(Assessment& record, const ClientWriter& written, const store::FileState& file) {
    double& born = record.client.BirthDate;
    if (born == base::NoDate || born == base::NoDate - 1) born = base::blankDate;
    record.changed.clearAfterSave();
    record.ClientChanged = 0;
    record.ClientOnFile = 1;
    record.DCLNO = written.key();
    record.inFile = {record.client.Name, born, written.contents(), file};
}

} // namespace

Saved Save(Assessment& record, store::Database& database, TheirChanges theirs) {
    const ThenNewCleared guard(record);
    assessment::CheckChanges(record);
    if (record.ClientOnFile == 1 && record.ClientChanged == 0) return Saved::nothing;
    store::Transaction transaction(database);
    if (record.ClientOnFile == 1) requireUnchanged(database, record, theirs);
    ClientWriter writer(database, record);
    writer.write();
    const store::FileState before = database.state();
    transaction.commit();
    markSaved(record, writer, stateAfterCommit(database, before));
    return record.SaveThenNew == 1 ? Saved::thenNew : Saved::written;
}

Saved Save(Assessment& record, const std::filesystem::path& dataDbPath, TheirChanges theirs) {
    const ThenNewCleared guard(record);
    store::Database database(dataDbPath);
    return Save(record, database, theirs);
}

} // namespace datastore
