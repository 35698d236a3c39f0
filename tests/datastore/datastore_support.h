#pragma once

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "assessment/filetextstable.h"
#include "assessment/tables.h"
#include "datastore/create.h"
#include "datastore/load.h"
#include "datastore/paths.h"
#include "datastore/startup.h"
#include "datastore/upgrade.h"
#include "store/openfiles.h"
#include "store/store_support.h"

namespace datastoretest {

namespace fs = std::filesystem;
using assessment::Assessment;
using storetest::errorOf;
using storetest::modeOf;
using storetest::rowsOf;

inline void runSql(const fs::path& file, const std::string& sql) {
    store::Database database(file);
    store::Transaction transaction(database);
    database.execute(sql);
    transaction.commit();
}

/// A program folder with the shipped databases that a start needs.
class ProgramFolder : public storetest::Folder {
public:
    ProgramFolder() {
        for (const char* name : {"Default.Mdb", "Print.mdb"})
            fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / name, path() / name);
    }
    datastore::Paths paths() const {
        return {path(),
                path() / "Data.Mdb",
                path() / "Default.Mdb",
                path() / "Print.mdb",
                path() / "units.mdb",
                path() / "Diary.mdb"};
    }
    void run(const std::string& name, const std::string& sql) const { runSql(path() / name, sql); }
    /// Creates the client database with all tables and no client, as a start does.
    void makeClientDb(double version = datastore::currentVersion) const {
        static const std::string clients = [] { // made once: that takes longer than most tests
            const storetest::Folder folder;
            datastore::createClientDb(folder / "file");
            runSql(folder / "file", "UPDATE DataSetup SET UpDateDB=" + std::to_string(datastore::currentVersion));
            return storetest::bytesOf(folder / "file");
        }();
        storetest::put(path() / "Data.Mdb", clients);
        if (version != datastore::currentVersion)
            run("Data.Mdb", "UPDATE DataSetup SET UpDateDB=" + std::to_string(version));
    }
};

/// The version of an up-to-date client database as `rowsOf` shows it.
inline const std::string current = std::to_string(static_cast<int>(datastore::currentVersion));

/// Every file below a folder with its time and bytes.
inline std::map<std::string, std::string> contentsOf(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[entry.path().string()] =
                std::to_string(entry.last_write_time().time_since_epoch().count()) + storetest::bytesOf(entry.path());
    return files;
}

/// Another program carries out these statements on a file, and is killed when `act` has run.
inline void whileAnother(
    const fs::path& database, const std::string& sql, const std::function<void()>& act = [] {}) {
    storetest::runAndKill(
        [&](auto ready) {
            const store::OpenedAs asUsual(database, store::Opening::usual); // it knows nothing of ours
            store::Database other(database);
            other.execute(sql);
            ready();
            ::pause();
        },
        act);
}

/// A change whose first half is written when the program is killed.
constexpr const char* halfAChange = "PRAGMA cache_size=1; BEGIN; DELETE FROM PersDetails; DELETE FROM DISAOtherExp; "
                                    "UPDATE Data SET Num1=1";

/// The definition and rows of every table, to compare two states of a file.
inline std::string dump(const fs::path& path) {
    store::Database database(path);
    std::string text = rowsOf(database, "SELECT name, sql FROM sqlite_master ORDER BY name");
    for (const std::string& table : storetest::tablesOf(database))
        text += "\n" + rowsOf(database, "SELECT rowid, * FROM " + store::bracketed(table));
    return text;
}

/// A text that fills a field of this many characters, with characters of one to four bytes, apostrophes and markup.
inline std::string longText(const std::string& name, int size) {
    const std::string pieces[] = {"Ê", "'", "ḓ", "\"", "<", "x", "€", "&", "𝄞", "ß"};
    std::string text = name.substr(0, static_cast<std::size_t>(size));
    for (auto length = static_cast<int>(text.size()); length < size; ++length)
        text += pieces[length % 10];
    return text;
}

/// Writes a different value into each field that a load restores, including the limits of its type.
class Filler {
public:
    template <class Row>
    void fill(const assessment::FieldTable<Row>& table, Row& row) {
        for (const assessment::FieldLine& line : table.fields())
            if (line.at != nullptr && line.rule != assessment::Rule::writtenOnly)
                std::visit([&](auto* place) { set(*place, line); }, line.at(&row));
    }

private:
    void set(double& place, const assessment::FieldLine& line) {
        ++m_next;
        if (line.kind.declared.type == store::Type::Date || line.rule == assessment::Rule::assetDate)
            place = -36000 + m_next * 7;
        else if (m_next % 17 == 0)
            place = 1.7976931348623157e308 / m_next;
        else if (m_next % 19 == 0)
            place = 2.2250738585072014e-308 * m_next;
        else
            place = (m_next % 2 == 0 ? 1 : -1) * (m_next * 1e7 + 1.0 / (3 * m_next));
    }
    void set(float& place, const assessment::FieldLine& line) {
        ++m_next;
        const bool whole = line.kind.declared.type == store::Type::Integer;
        place = whole ? static_cast<float>(m_next % 100) : 1.0F / static_cast<float>(3 * m_next);
        if (!whole && m_next % 2 == 0) place = 3.4028235e38F / static_cast<float>(m_next);
    }
    void set(std::int16_t& place, const assessment::FieldLine&) {
        ++m_next;
        place = static_cast<std::int16_t>(m_next % 3 == 0   ? 32767 - m_next
                                          : m_next % 3 == 1 ? -32768 + m_next
                                                            : m_next);
    }
    void set(std::int32_t& place, const assessment::FieldLine&) { place = 2147483647 - ++m_next; }
    void set(std::string& place, const assessment::FieldLine& line) {
        const int size = line.kind.declared.type == store::Type::Memo ? 3000 : line.kind.declared.size;
        place = longText(size < 9 ? std::to_string(++m_next) : std::to_string(++m_next) + line.name, size);
    }
    int m_next = 0;
};

/// Calls `use` with each row that comes back from the file, and its table before it.
template <class Use>
void eachRow(Assessment& record, Use use) {
    const auto each = [&](const auto& table, auto& rows) {
        for (auto& row : rows)
            use(table, row);
    };
    assessment::CapitalGains& gains = record.capitalGains;
    use(assessment::dataTable(), record);
    use(assessment::persDetailsTable(), record);
    use(assessment::cgtDetailsOtherTable(), gains);
    use(assessment::lumpSumTaxTable(), record.lumpSums);
    use(assessment::fileTextsTable(), record.fileTexts);
    each(assessment::polsInvestsTable(), record.policies);
    each(assessment::cgtDetailsTable(), gains.assets);
    each(assessment::cgtTrustOtherTable(), gains.trustOther);
    for (const assessment::ItemTable& line : assessment::itemTables())
        if (line.table != nullptr && line.isKept) each(*line.table, line.list(record.itemised).rows);
}

/// A client with a different value in every field: ten policies, five assets, all lists.
inline Assessment fullClient() {
    Assessment record;
    record.policies.resize(10);
    record.capitalGains.assets.resize(5);
    record.capitalGains.trustOther.resize(3);
    std::size_t length = 0;
    for (const assessment::ItemTable& line : assessment::itemTables())
        if (line.table != nullptr && line.isKept) line.list(record.itemised).rows.resize(1 + length++ % 4);
    Filler filler;
    eachRow(record, [&](const auto& table, auto& row) { filler.fill(table, row); });
    record.capitalGains.ItemiseAdditCapGain = 1;
    for (const assessment::ItemTable& line : assessment::itemTables())
        if (line.table != nullptr && line.isKept) line.list(record.itemised).flag = 1;
    for (std::int16_t number = 0; auto& asset : record.capitalGains.assets)
        asset.CGTAssetNum = ++number;
    return record;
}

/// Compares every field that a load restores.
inline void expectSameClient(Assessment& left, Assessment& right) {
    const auto valuesOf = [](Assessment& record) {
        std::vector<std::pair<std::string, store::Value>> values;
        eachRow(record, [&](const auto& table, auto& row) {
            for (const assessment::FieldLine& line : table.fields())
                if (line.at != nullptr && line.rule != assessment::Rule::writtenOnly)
                    values.emplace_back(table.name() + "." + line.name, assessment::valueAt(line.at(&row)));
        });
        return values;
    };
    const auto a = valuesOf(left), b = valuesOf(right);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        EXPECT_EQ(a[i], b[i]);
}

/// A program folder of the shipped databases alone.
class StartTest : public ::testing::Test {
protected:
    datastore::StartUpResult start() { return datastore::startUp(folder.path(), record); }
    int startError() {
        return errorOf([&] { start(); });
    }
    void run(const std::string& sql) const { runSql(file, sql); }
    std::string in(const std::string& sql) const { return rowsOf(file, sql); }

    ProgramFolder folder;
    const fs::path file = folder / "Data.Mdb", print = folder / "Print.mdb", settings = folder / "Default.Mdb";
    Assessment record;
};

/// A program folder whose client database has no client yet.
class ClientFileTest : public StartTest {
protected:
    ClientFileTest() { folder.makeClientDb(); }
    Assessment loaded(double key = 1) const {
        Assessment found = fullClient(); // of which nothing may stay
        datastore::load(found, folder.paths(), key);
        return found;
    }
};

} // namespace datastoretest
