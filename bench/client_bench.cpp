#include "bench.h"

#include "bare_client.h"

#include <memory>
#include <stdexcept>

#include "assessment/tables.h"
#include "datastore/create.h"
#include "datastore/load.h"
#include "datastore/reset.h"
#include "datastore/save.h"

namespace {

namespace fs = std::filesystem;
using assessment::Assessment;

constexpr int clients = 20; ///< in the file
constexpr int policies = 10;
constexpr int listRows = 5;

/// Fills every field of a row: texts of up to 30 characters, amounts with cents.
void fill(const assessment::TableDescription& table, void* row, int seed) {
    int number = seed;
    for (const assessment::FieldLine& line : table.fields()) {
        if (line.at == nullptr) continue;
        ++number;
        const bool text = line.kind.declared.type == store::Type::Text || line.kind.declared.type == store::Type::Memo;
        const auto size = static_cast<std::size_t>(line.kind.declared.size);
        store::Value value = number % 97 + 0.25;
        if (text) value = (line.name + " of client " + std::to_string(seed)).substr(0, std::min<std::size_t>(size, 30));
        assessment::setValueAt(line.at(row), std::move(value), line.kind.blank);
    }
}

template <class Row>
void fillRows(const assessment::FieldTable<Row>& table, std::vector<Row>& rows, int count, int seed) {
    rows.assign(static_cast<std::size_t>(count), Row());
    for (Row& row : rows)
        fill(table, &row, ++seed);
}

Assessment fullClient(int seed) {
    Assessment record;
    fill(assessment::dataTable(), &record, seed);
    fill(assessment::persDetailsTable(), &record, seed);
    for (const assessment::ItemTable& line : assessment::itemTables()) {
        if (line.table == nullptr) continue;
        assessment::ItemList& list = line.list(record.itemised);
        list.flag = 1;
        fillRows(*line.table, list.rows, listRows, seed);
    }
    fillRows(assessment::polsInvestsTable(), record.policies, policies, seed);
    fill(assessment::cgtDetailsOtherTable(), &record.capitalGains, seed);
    fillRows(assessment::cgtDetailsTable(), record.capitalGains.assets, listRows, seed);
    record.capitalGains.ItemiseAdditCapGain = 1;
    fillRows(assessment::cgtTrustOtherTable(), record.capitalGains.trustOther, listRows, seed);
    fill(assessment::lumpSumTaxTable(), &record.lumpSums, seed);
    return record;
}

/// A client database of full clients, one of which is saved and loaded repeatedly.
class ClientFile {
public:
    ClientFile() {
        const fs::path folder = bench::emptyFolder("client");
        m_paths.DataDbPath = folder / "Data.Mdb";
        m_paths.DefaultDbPath = folder / "Default.Mdb";
        fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / "Default.Mdb", m_paths.DefaultDbPath);
        datastore::createClientDb(m_paths.DataDbPath, {});
        for (int i = 1; i <= clients; ++i) {
            m_record = fullClient(i);
            datastore::Save(m_record, m_paths.DataDbPath);
        }
        // A file of its own: if another program had written to the file, our save would read the client first.
        fs::copy_file(m_paths.DataDbPath, folder / "Bare.Mdb");
        m_bare = std::make_unique<bench::BareClient>(folder / "Bare.Mdb", m_record.DCLNO);
    }

    void save() {
        m_record.loans.Num1 = ++m_edits;
        m_record.ClientChanged = 1;
        if (datastore::Save(m_record, m_paths.DataDbPath) != datastore::Saved::written)
            throw std::runtime_error("nothing was saved");
    }
    void load() {
        datastore::load(m_record, m_paths, m_record.DCLNO);
        if (m_record.MaxNum() != policies || m_record.itemised.DISAOtherExp.rows.size() != listRows)
            throw std::runtime_error("the client came back without its rows");
    }
    bench::BareClient& bare() { return *m_bare; }

private:
    datastore::Paths m_paths;
    Assessment m_record;
    double m_edits = 0;
    std::unique_ptr<bench::BareClient> m_bare;
};

ClientFile& file() {
    static ClientFile made;
    return made;
}

const bench::Register save({
    .name = "save a full client on file (10 policies, 33 lists and the trust's of 5 rows, 5 assets), on the disk",
    .floor = [] { return bench::milliseconds([&file = file()] { file.bare().save(); }); },
    .ours = [] { return bench::milliseconds([&file = file()] { file.save(); }); },
    .goal = 1.5,
    .rounds = 41,
});
const bench::Register load({
    .name = "load that client",
    .floor = [] { return bench::milliseconds([&file = file()] { file.bare().load(); }); },
    .ours = [] { return bench::milliseconds([&file = file()] { file.load(); }); },
    .goal = 1.5,
    .rounds = 101,
});

} // namespace
