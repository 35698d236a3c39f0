#include "datastore/load.h"

#include <algorithm>

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "datastore/filetexts.h"
#include "datastore/reset.h"
#include "store/error.h"

namespace datastore {

using assessment::Assessment;
using assessment::FieldTable;
using assessment::RowReader;

namespace {

/// Loads one client from one unchanging view of the file.
class ClientReader {
public:
    ClientReader(store::Database& database, double key) : m_database(database), m_key(key) {}

    void read(Assessment& record) {
        record.DCLNO = readClientRow(assessment::dataTable(), record);
        readClientRow(assessment::persDetailsTable(), record);
        record.inFile.Name = record.client.Name;
        record.inFile.BirthDate = record.client.BirthDate;
        readItemLists(record.itemised);
        constexpr double fewestPolicies = 1;
        const auto policies = readList(assessment::polsInvestsTable(), fewestPolicies);
        if (!policies.empty()) record.policies = policies;
        assessment::CapitalGains& gains = record.capitalGains;
        gains.assets = readList(assessment::cgtDetailsTable());
        RowReader(m_database, assessment::cgtDetailsOtherTable(), m_key, &m_sum).next(gains);
        RowReader(m_database, assessment::lumpSumTaxTable(), m_key, &m_sum).next(record.lumpSums);
        if (gains.ItemiseAdditCapGain == 1) gains.trustOther = readList(assessment::cgtTrustOtherTable());
        readFileTexts(record.fileTexts, m_database, m_key, &m_sum);
        record.inFile.contents = m_sum.value();
        record.inFile.file = m_database.state();
    }

private:
    double readClientRow(const FieldTable<Assessment>& table, Assessment& record) {
        RowReader reader(m_database, table, m_key, &m_sum);
        if (!reader.next(record))
            throw store::Error(store::Number::noCurrentRecord, m_database.path().string(),
                               "The client is no longer in the table " + table.name() + ".", "Choose another client.");
        return reader.key();
    }

    /// The rows in the order of adding: as many as the first row says, or fewer if there are fewer.
    template <class Row>
    std::vector<Row> readList(const FieldTable<Row>& table, double atLeast = 0) {
        std::vector<Row> rows;
        RowReader reader(m_database, table, m_key, &m_sum);
        double count = 0;
        for (Row row; reader.next(row); row = Row()) {
            if (rows.empty()) count = std::max(reader.rowCount(), atLeast);
            if (static_cast<double>(rows.size()) >= count) break;
            rows.push_back(std::move(row));
        }
        return rows;
    }

    void readItemLists(assessment::Itemised& itemised) {
        for (const assessment::ItemTable& line : assessment::itemTables()) {
            if (line.table == nullptr || !line.isKept) continue;
            assessment::ItemList& list = line.list(itemised);
            if (list.flag == 1) list.rows = readList(*line.table);
        }
    }

    store::Database& m_database;
    double m_key;
    assessment::Checksum m_sum; ///< over the tables in the same order as in the save
};

} // namespace

void readClient(Assessment& record, store::Database& database, double key) { ClientReader(database, key).read(record); }

void load(Assessment& record, const Paths& paths, double key) {
    Assessment blank = blankRecord(paths.DefaultDbPath);
    store::Database database(paths.DataDbPath);
    const store::Transaction oneView(database, store::Access::read);
    readCPI(blank, database);
    blank.unstoredRates = record.unstoredRates;
    Assessment loaded = blank;
    try {
        readClient(loaded, database, key);
    } catch (const store::Error& error) {
        if (error.is(store::Number::noCurrentRecord)) record = std::move(blank);
        throw;
    }
    loaded.ClientOnFile = 1;
    record = std::move(loaded);
}

} // namespace datastore
