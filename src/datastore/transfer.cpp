#include "datastore/transfer.h"

#include <algorithm>
#include <deque>
#include <string>

#include "assessment/tables.h"
#include "base/text.h"
#include "datastore/backup.h"
#include "datastore/create.h"
#include "datastore/filetexts.h"
#include "datastore/upgrade.h"
#include "datastore/workfiles.h"
#include "store/database.h"
#include "store/error.h"
#include "store/filecopy.h"
#include "store/files.h"
#include "store/upkeep.h"

namespace datastore {

namespace fs = std::filesystem;
using assessment::FieldLine;
using assessment::TableDescription;
using store::Progress;

namespace {

/// What travels of a client.
std::vector<const TableDescription*> travellingTables() {
    std::vector<const TableDescription*> tables{&assessment::persDetailsTable(), &assessment::dataTable()};
    for (const assessment::ItemTable& line : assessment::itemTables())
        if (line.table != nullptr) tables.push_back(line.table);
    tables.push_back(&assessment::polsInvestsTable());
    return tables;
}

/// The tables of which a deletion leaves rows behind.
std::vector<const TableDescription*> tablesOfOrphans() {
    return {&assessment::cgtDetailsTable(), &assessment::cgtDetailsOtherTable(), &assessment::cgtTrustOtherTable(),
            &assessment::lumpSumTaxTable()};
}

/// Copies the rows of one client of one table under another key; one pair of statements serves all clients.
class RowCopier {
public:
    RowCopier(store::Database& from, store::Database& to, const TableDescription& table)
        : m_file(from.path().string()), m_fields(sourcesOf(from, table)), m_select(from.prepare(selection(table))),
          m_insert(to.prepare(insertion(table))) {}

    /// The number of rows copied.
    int copy(double fromKey, double toKey) {
        int rows = 0;
        for (m_select.bind(1, fromKey); m_select.step(); ++rows) {
            int place = 0;
            for (const Source& field : m_fields)
                m_insert.bind(++place, field.line->rule == assessment::Rule::key ? store::Value(toKey) : value(field));
            m_insert.run();
        }
        m_select.reset();
        return rows;
    }

private:
    struct Source {
        const FieldLine* line;
        int column; ///< in the selection; -1: the file lacks it
    };

    static std::vector<Source> sourcesOf(store::Database& from, const TableDescription& table) {
        const std::vector<store::Column> columns = from.columns(table.name());
        std::vector<Source> fields;
        int selected = 0;
        for (const FieldLine& line : table.fields()) {
            const bool isThere = std::ranges::any_of(
                columns, [&](const store::Column& column) { return base::sameName(column.name, line.name); });
            fields.push_back({&line, isThere ? selected++ : -1});
        }
        return fields;
    }
    std::string selection(const TableDescription& table) const {
        std::string list;
        for (const Source& field : m_fields)
            if (field.column >= 0) list += (list.empty() ? "" : ",") + store::bracketed(field.line->name);
        return "SELECT " + list + " FROM " + store::bracketed(table.name()) + " WHERE [DCLNO]=? ORDER BY rowid";
    }
    std::string insertion(const TableDescription& table) const {
        std::string list, marks;
        for (const Source& field : m_fields) {
            list += (list.empty() ? "" : ",") + store::bracketed(field.line->name);
            marks += marks.empty() ? "?" : ",?";
        }
        return "INSERT INTO " + store::bracketed(table.name()) + " (" + list + ") VALUES (" + marks + ")";
    }
    /// A foreign file may hold texts for which the field has no room; SQLite itself would not mind.
    store::Value value(const Source& field) const {
        if (field.column < 0) return {};
        store::Value found = m_select.column(field.column);
        if (!std::holds_alternative<std::string>(found) || field.line->kind.declared.type != store::Type::Text)
            return found;
        return store::toStored(found, field.line->kind.declared, m_file, field.line->name);
    }

    std::string m_file;
    std::vector<Source> m_fields;
    store::Statement m_select;
    store::Statement m_insert;
};

/// Copies whole clients from one file to another.
class ClientCopier {
public:
    ClientCopier(store::Database& from, store::Database& to)
        : m_from(from), m_to(to), m_version(readVersion(from)),
          m_addVersion(to.prepare("INSERT INTO [DataSetup] ([UpDateDB]) VALUES (?)")) {
        for (const TableDescription* table : travellingTables())
            if (from.hasTable(table->name())) m_tables.emplace_back(from, to, *table);
    }

    /// The personal details come first: without them there is no client.
    void copy(double fromKey, double toKey) {
        for (RowCopier& table : m_tables)
            if (table.copy(fromKey, toKey) == 0 && &table == &m_tables.front())
                throw store::Error(store::Number::noCurrentRecord, m_from.path().string(),
                                   "A chosen client is no longer in the file.",
                                   "Nothing was copied. Choose the clients again.");
        assessment::FileTexts texts;
        readFileTexts(texts, m_from, fromKey);
        if (!texts.isEmpty()) writeFileTexts(texts, m_to, toKey);
        m_addVersion.bind(1, m_version).run();
    }

private:
    store::Database& m_from;
    store::Database& m_to;
    double m_version;
    store::Statement m_addVersion;
    std::deque<RowCopier> m_tables;
};

void fillTransferFile(const Paths& paths, const fs::path& transferFile, const std::vector<double>& keys,
                      const Progress& progress) {
    store::Database::create(transferFile);
    store::Database transfer(transferFile);
    store::Transaction writing(transfer);
    MakeNewDb(transfer);
    store::Database clients(paths.DataDbPath);
    const store::Transaction oneView(clients, store::Access::read);
    ClientCopier copier(clients, transfer);
    double key = transferKeyBase;
    for (const double chosen : keys) {
        copier.copy(chosen, ++key);
        store::tell(progress, (key - transferKeyBase) / static_cast<double>(keys.size()));
    }
    writing.commit();
}

/// Counts the clients, which must be numbered from 20001 without a gap: a file made otherwise would be read in part.
int countNumbered(store::Database& transfer) {
    store::Statement rows = transfer.prepare("SELECT [DCLNO] FROM [PersDetails] ORDER BY [DCLNO]");
    int count = 0;
    while (rows.step())
        if (rows.number(0) != transferKeyBase + ++count)
            throw store::Error(store::Number::invalidFileFormat, transfer.path().string(),
                               "The clients in this file are not numbered as in a file that was copied for transfer.",
                               "Nothing was read. On the other computer choose File, Save TO Remote Media, and read "
                               "the file that it makes.");
    if (count == 0)
        throw store::Error(store::Number::noCurrentRecord, transfer.path().string(),
                           "There are no clients in this "
                           "file.");
    return count;
}

double highestKey(store::Database& clients) {
    double highest = 0;
    for (const char* table : {"[PersDetails]", "[Data]"}) {
        store::Statement row = clients.prepare(std::string("SELECT max([DCLNO]) FROM ") + table);
        if (row.step()) highest = std::max(highest, row.number(0));
    }
    return highest;
}

/// A deleted client's capital gains, lump sums and texts would become the new client's.
void removeOrphans(store::Database& clients, double firstKey, double lastKey) {
    for (const TableDescription* table : tablesOfOrphans())
        clients.prepare("DELETE FROM " + store::bracketed(table->name()) + " WHERE [DCLNO] BETWEEN ? AND ?")
            .bind(1, firstKey)
            .bind(2, lastKey)
            .run();
    deleteFileTexts(clients, firstKey, lastKey);
}

} // namespace

void MakeCopyDb(const Paths& paths) {
    try {
        if (!isWorkingCopy(paths, paths.DataDbPath)) MakeNewDb(WorkFiles(paths.programFolder).transfer);
    } catch (const store::Error&) {
        // The copying makes the file anew, and then tells why it can't.
    }
}

void removeTransferFile(const Paths& paths) {
    requireSafePlace(paths);
    store::removeDatabase(WorkFiles(paths.programFolder).transfer);
}

void copyClients(const Paths& paths, const std::vector<double>& keys, const Progress& progress) {
    requireSafePlace(paths);
    const WorkFiles files(paths.programFolder);
    store::FileBeside beside(files.transfer);
    fillTransferFile(paths, beside.path(), keys, progress);
    try {
        store::UpkeepDatabase(beside.path(), store::Lock::none, progress).compactInto(files.compactedTransfer);
        checkCopy(files.compactedTransfer, static_cast<double>(keys.size()), progress);
        store::tell(progress, 1);
        beside.replace();
        store::replaceKeepingOld(files.compactedTransfer, files.transfer, files.kept);
    } catch (...) {
        store::removeDatabase(files.compactedTransfer);
        throw;
    }
}

void fetchTransferFile(const Paths& paths, const fs::path& chosen, const Progress& progress) {
    requireSafePlace(paths);
    store::FileBeside beside(WorkFiles(paths.programFolder).transfer);
    store::copyDatabase(chosen, beside.path(), progress);
    store::UpkeepDatabase(beside.path(), store::Lock::none, progress).checkIntegrity();
    beside.replace();
}

double transferVersion(const Paths& paths) {
    store::Database transfer(WorkFiles(paths.programFolder).transfer);
    return readVersion(transfer);
}

int readClients(const Paths& paths, const Progress& progress) {
    requireSafePlace(paths);
    store::Database transfer(WorkFiles(paths.programFolder).transfer);
    const store::Transaction oneView(transfer, store::Access::read);
    store::Database clients(paths.DataDbPath);
    store::Transaction writing(clients);
    ClientCopier copier(transfer, clients);
    const int count = countNumbered(transfer);
    const double before = highestKey(clients);
    removeOrphans(clients, before + 1, before + count);
    for (int number = 1; number <= count; ++number) {
        copier.copy(transferKeyBase + number, before + number);
        store::tell(progress, static_cast<double>(number) / count);
    }
    writing.commit();
    return count;
}

} // namespace datastore
