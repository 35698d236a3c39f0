#include "datastore/backup.h"

#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <random>

#include "assessment/differences.h"
#include "datastore/clientlist.h"
#include "datastore/datastore_support.h"
#include "datastore/deletion.h"
#include "datastore/save.h"
#include "datastore/transfer.h"
#include "store/openfiles.h"

/// The promise of backup, restore and transfer: after any fault every file of clients is complete, old or new.
namespace {

using namespace datastoretest;
using store::Progress;

constexpr const char* clientCount = "SELECT count(*) FROM PersDetails";

/// Three clients in the program folder, and a stick whose name has an apostrophe and a blank.
class DataCareTest : public ClientFileTest {
protected:
    DataCareTest() {
        for (const char* name : {"Adams", "O'Brien", "Cele"}) {
            Assessment client = name[0] == 'A' ? fullClient() : Assessment();
            client.ClientOnFile = 0;
            client.details.CLName = client.client.Name = name;
            datastore::Save(client, file);
        }
        fs::create_directory(stick);
    }
    datastore::Paths paths() const {
        datastore::Paths found = folder.paths();
        found.UpDateDBValue = datastore::currentVersion;
        return found;
    }
    /// Runs work that must fail with this error, and change no file.
    template <class Work>
    void expectRefused(int error, const std::string& what, Work work) {
        const auto before = contentsOf(folder.path());
        EXPECT_EQ(errorOf(work), error) << what;
        EXPECT_TRUE(contentsOf(folder.path()) == before) << what;
    }
    static void leaveHotJournal(const fs::path& database) {
        whileAnother(database, halfAChange);
        ASSERT_TRUE(fs::exists(database.string() + "-journal"));
    }
    void whileAnotherHoldsIt(const std::function<void()>& act) const { whileAnother(file, "BEGIN IMMEDIATE", act); }
    void fetchAndRead(const fs::path& from) {
        datastore::fetchTransferFile(paths(), from);
        datastore::readClients(paths());
    }

    const fs::path stick = folder / "Thandi's stick", backup = stick / "Data.Mdb", bak = folder / "Data.bak",
                   compacted = folder / "NEWData.Mdb", transfer = folder / "CopyData.Mdb";
};

TEST_F(DataCareTest, ABackupCompactsTheFileKeepsTheOldOneAndIsCopiedWhole) {
    ::chmod(file.c_str(), 0600);
    storetest::put(compacted, "left by a killed backup");
    storetest::put(compacted.string() + "-journal", "of that");
    const std::string rows = dump(file);
    for (const char* comment : {"first", "second"}) { // the second replaces the Data.bak of the first
        run(std::string("UPDATE PersDetails SET Comments='") + comment + "' WHERE DCLNO=2");
        const std::string before = storetest::bytesOf(file);
        datastore::compactClientDb(paths());
        EXPECT_EQ(storetest::bytesOf(bak), before);
        EXPECT_EQ(in("SELECT Comments FROM PersDetails WHERE DCLNO=2"), comment);
    }
    fs::remove(bak);
    fs::create_hard_link(file, bak); // left by a backup that was killed in its last step
    run("UPDATE PersDetails SET Comments='' WHERE DCLNO=2");
    datastore::compactClientDb(paths());
    EXPECT_FALSE(fs::equivalent(file, bak));
    EXPECT_EQ(dump(file), rows);
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_FALSE(fs::exists(compacted) || fs::exists(compacted.string() + "-journal"));
    datastore::copyToMedia(paths(), file, backup);
    EXPECT_EQ(storetest::bytesOf(backup), storetest::bytesOf(file));
    EXPECT_EQ(modeOf(backup), 0600U);
    // A link stays a link, and the file keeps the permissions that its owner gave it.
    fs::rename(file, stick / "real.mdb");
    fs::create_symlink(stick / "real.mdb", file);
    ::chmod(file.c_str(), 0660);
    datastore::compactClientDb(paths());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(modeOf(file), 0660U);
    EXPECT_EQ(in(clientCount), "3");
}

TEST_F(DataCareTest, ABackupNeedsTheFileAloneAndUndamaged) {
    const auto backUp = [this] { datastore::compactClientDb(paths()); };
    const auto expectNotRepaired = [&](const char* what) {
        expectRefused(3356, what, backUp);
        EXPECT_THROW(backUp(), datastore::NotRepaired) << what;
    };
    {
        const store::OpenFile screen(stick / ".." / "data.MDB");
        expectNotRepaired("a screen");
    }
    {
        store::Database idle(file);
        expectNotRepaired("an idle connection");
    }
    whileAnotherHoldsIt([&] { expectNotRepaired("another program"); });
    leaveHotJournal(file);
    backUp();
    EXPECT_EQ(in(clientCount), "3");
    const std::string sound = storetest::bytesOf(file);
    run("CREATE TABLE T (A CHECK (A > 0)); PRAGMA ignore_check_constraints=ON; INSERT INTO T VALUES (-1)");
    expectRefused(3049, "readable, but its check finds a fault", backUp);
    std::string bytes = sound;
    for (std::size_t at = 3 * 4096; at < bytes.size(); at += 4096)
        bytes.replace(at, 12, 12, '\x55');
    storetest::put(file, bytes);
    expectRefused(3049, "damaged", backUp);
    EXPECT_THROW(backUp(), datastore::NotRepaired);
}

TEST_F(DataCareTest, ACopyIsRefusedOrLeavesWhatWasAtItsPlace) {
    const auto copyTo = [this](const fs::path& place) {
        return [this, place] { datastore::copyToMedia(paths(), file, place); };
    };
    fs::create_symlink(file, stick / "link.mdb");
    for (const fs::path& own : {file, folder / "print.MDB", folder / "diary.mdb", folder / "Data.bak", transfer,
                                stick / "link.mdb", stick / ".." / "DATA.mdb"})
        expectRefused(75, own.string(), copyTo(own));
    expectRefused(76, "no such folder", copyTo(stick / "gone" / "Data.Mdb"));
    storetest::put(backup, "an older backup");
    fs::copy_file(file, stick / "good.mdb");
    {
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{100000, limit.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &small);
        const auto before = fs::file_size(file);
        expectRefused(61, "full", copyTo(backup));
        EXPECT_THROW(datastore::compactClientDb(paths()), store::Error);
        EXPECT_THROW(datastore::copyClients(paths(), {1, 2, 3}), store::Error);
        EXPECT_THROW(datastore::restoreClientDb(paths(), stick / "good.mdb", file), store::Error);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(fs::file_size(file), before);
        EXPECT_EQ(contentsOf(folder.path()).size(), 6U) << "three databases, the link and two files on the stick";
    }
    const storetest::OrdinaryUser user(folder);
    ::chmod(file.c_str(), 0400);
    expectRefused(70, "a file that its owner made read-only", [this] { datastore::compactClientDb(paths()); });
    ::chmod(backup.c_str(), 0400);
    expectRefused(70, "read-only file", copyTo(backup));
    ::chmod(stick.c_str(), 0500);
    expectRefused(70, "read-only folder", copyTo(stick / "other.mdb"));
    ::chmod(stick.c_str(), 0700);
}

TEST_F(DataCareTest, OnlyAWholeFileOfClientsIsRestored) {
    const auto restore = [this](const fs::path& from) {
        return [this, from] { datastore::restoreClientDb(paths(), from, file); };
    };
    const std::string whole = storetest::bytesOf(file);
    run("UPDATE PersDetails SET CLName='newer' WHERE DCLNO=3");
    for (const auto& [what, bytes, error] : {std::tuple{"empty", std::string(), 3343},
                                             {"text", std::string(500, 'x'), 3343},
                                             {"cut", whole.substr(0, whole.size() / 2 / 4096 * 4096), 3049},
                                             {"cut in a page", whole.substr(0, whole.size() - 9), 3049},
                                             {"foreign", storetest::bytesOf(folder / "Default.Mdb"), 3011}}) {
        storetest::put(backup, bytes);
        expectRefused(error, what, restore(backup));
    }
    expectRefused(53, "gone", restore(stick / "gone.mdb"));
    storetest::put(backup, whole);
    whileAnotherHoldsIt([&] { expectRefused(3356, "held by another program", restore(backup)); });
    const std::string before = storetest::bytesOf(file);
    restore(file)(); // itself
    EXPECT_EQ(storetest::bytesOf(file), before);

    leaveHotJournal(backup); // of which nothing is written back, not even on a medium that can't be written
    leaveHotJournal(file);
    const auto source = contentsOf(stick);
    const std::string printed = dump(folder / "Print.mdb");
    {
        const storetest::OrdinaryUser user(folder);
        ::chmod(stick.c_str(), 0500);
        restore(backup)();
        ::chmod(stick.c_str(), 0700);
    }
    EXPECT_TRUE(contentsOf(stick) == source);
    EXPECT_EQ(in("SELECT CLName FROM PersDetails ORDER BY DCLNO"), "Adams\nO'Brien\nCele");
    EXPECT_FALSE(fs::exists(file.string() + "-journal"));

    storetest::put(file, "a damaged file is what a restore is for");
    fs::remove(backup.string() + "-journal");
    for (const auto& [version, becomes, drawn] : {std::tuple{3, current, "2000"}, {19, std::string("19"), "2"}}) {
        storetest::put(backup, whole);
        runSql(backup, "UPDATE DataSetup SET UpDateDB=" + std::to_string(version) +
                           "; UPDATE HeadFoot SET HEADERV0='theirs'; UPDATE Data SET InitPercRequire=2, "
                           "InvestAmount=100000, AnnMonIncShare='annually' WHERE DCLNO=2");
        datastore::Paths elsewhere = paths(); // the clients in use have their own report lines
        elsewhere.DataDbPath = stick / "used.mdb";
        storetest::put(elsewhere.DataDbPath, whole);
        datastore::restoreClientDb(elsewhere, backup, file);
        EXPECT_EQ(in("SELECT UpDateDB FROM DataSetup"), becomes);
        EXPECT_EQ(in("SELECT InitPercRequire FROM Data WHERE DCLNO=2"), drawn);
        EXPECT_EQ(rowsOf(folder / "Print.mdb", "SELECT HEADERV0 FROM HeadFoot"), "");
    }
}

TEST_F(DataCareTest, ATransferBringsEveryRowOfTheChosenUnderNewKeys) {
    store::Database quick(file);
    quick.execute("PRAGMA synchronous=OFF");
    for (int number = 4; number <= 100; ++number) {
        Assessment client = fullClient();
        client.client.Name = client.details.CLName = "client " + std::to_string(number);
        client.loans.Num1 = number;
        datastore::Save(client, quick);
    }
    run("INSERT INTO DTHInvestments(DCLNO, Amount) VALUES(5, 7); UPDATE Data SET Name=NULL WHERE DCLNO=6");
    for (const assessment::TableDescription* table : assessment::clientTables())
        if (table->field("DCLNO") != nullptr) run("UPDATE " + table->name() + " SET DCLNO=20001 WHERE DCLNO=7");
    std::vector<double> keys;
    for (int key = 100; key >= 1; --key)
        keys.push_back(key == 7 ? 20001 : key); // a key that a temporary one could be taken for
    storetest::put(transfer, "left by an older version");
    datastore::copyClients(paths(), keys);
    EXPECT_EQ(rowsOf(transfer, "SELECT count(*), min(DCLNO), max(DCLNO) FROM PersDetails"), "100|20001|20100");
    EXPECT_EQ(rowsOf(transfer, "SELECT count(*), min(UpDateDB), max(UpDateDB) FROM DataSetup"), "100|18|18");
    EXPECT_EQ(rowsOf(transfer, "SELECT count(*) FROM LumpSumTax"), "0");
    EXPECT_EQ(rowsOf(bak, clientCount), "100");
    datastore::copyToMedia(paths(), transfer, stick / "CopyData.Mdb");

    const ProgramFolder other;
    other.makeClientDb();
    const fs::path theirs = other / "Data.Mdb";
    other.run("Data.Mdb", "INSERT INTO PersDetails(DCLNO) VALUES(41); INSERT INTO LumpSumTax(DCLNO) VALUES(42),(900);"
                          "INSERT INTO CGTTrustOther(DCLNO) VALUES(141); INSERT INTO CGTDetails(DCLNO) VALUES(42);"
                          "CREATE TABLE ClientFileTexts(DCLNO, Mark); INSERT INTO ClientFileTexts VALUES(139,'x')");
    datastore::fetchTransferFile(other.paths(), stick / "CopyData.Mdb");
    EXPECT_EQ(datastore::transferVersion(other.paths()), 18);
    EXPECT_EQ(datastore::readClients(other.paths()), 100);
    EXPECT_EQ(rowsOf(theirs, "SELECT count(*), min(DCLNO), max(DCLNO) FROM Data"), "100|42|141");
    EXPECT_EQ(rowsOf(theirs, "SELECT count(*) FROM DataSetup"), "101");
    EXPECT_EQ(rowsOf(theirs, "SELECT (SELECT max(DCLNO) FROM LumpSumTax), (SELECT count(*) FROM LumpSumTax), (SELECT "
                             "count(*) FROM CGTTrustOther), (SELECT count(*) FROM CGTDetails)"),
              "900|1|0|0");
    EXPECT_EQ(rowsOf(theirs, "SELECT count(*), count(DISTINCT Mark) FROM ClientFileTexts"), "97|97");
    // And back: every row of every table that travels is as it was, but for the key.
    for (const assessment::TableDescription* table : assessment::clientTables()) {
        if (table->field("DCLNO") == nullptr || table->name().starts_with("CGT") || table->name() == "LumpSumTax")
            continue;
        std::string fields;
        for (const assessment::FieldLine& line : table->fields())
            if (line.rule != assessment::Rule::key) fields += "," + store::bracketed(line.name);
        const std::string select =
            "SELECT CASE DCLNO WHEN 20001 THEN 7 ELSE DCLNO END AS k" + fields + " FROM " + table->name();
        const std::string back = "SELECT 142-DCLNO AS k" + fields + " FROM " + table->name() + " WHERE DCLNO>41";
        EXPECT_TRUE(rowsOf(theirs, back + " ORDER BY k, rowid") == in(select + " ORDER BY k, rowid")) << table->name();
    }
    Assessment sent = loaded(50), came = fullClient();
    datastore::load(came, other.paths(), 142 - 50);
    for (const assessment::Difference& different : assessment::differences(sent, came))
        EXPECT_TRUE(different.table.starts_with("CGT") || different.table == "LumpSumTax") << different.field;
    came = sent;
    came.policies.pop_back();
    came.itemised.RNAStocks.rows[0].Amount = 5;
    const auto found = assessment::differences(sent, came);
    ASSERT_EQ(found.size(), 1 + assessment::polsInvestsTable().fields().size() - 2); // but for the key and MaxNum
    EXPECT_EQ(found[0].table + found[0].field + std::to_string(found[0].row), "RNAStocksAmount1");
    EXPECT_EQ(found[0].other, store::Value(5.0));
    EXPECT_TRUE(found.back().row == 10 && store::isNull(found.back().other));
}

TEST_F(DataCareTest, AFileThatIsNoTransferFileIsNotRead) {
    expectRefused(3021, "deleted meanwhile", [&] { datastore::copyClients(paths(), {1, 9}); });
    datastore::copyClients(paths(), {1, 2});
    const fs::path good = stick / "CopyData.Mdb";
    fs::copy_file(transfer, good);
    datastore::Paths unsafe = paths();
    unsafe.DataDbPath = transfer;
    expectRefused(75, "the file in use", [&] { datastore::copyClients(unsafe, {1}); });
    const auto read = [&](const std::string& change) {
        fs::copy_file(good, backup, fs::copy_options::overwrite_existing);
        runSql(backup, change);
        datastore::fetchTransferFile(paths(), backup);
        expectRefused(errorOf([&] { datastore::readClients(paths()); }), change,
                      [&] { datastore::readClients(paths()); });
        return errorOf([&] { datastore::readClients(paths()); });
    };
    EXPECT_EQ(read("DELETE FROM DataSetup"), 3021);
    EXPECT_EQ(read("DELETE FROM PersDetails"), 3021);
    EXPECT_EQ(read("UPDATE PersDetails SET DCLNO=DCLNO+1"), 321);
    EXPECT_EQ(read("UPDATE PersDetails SET DCLNO=20001"), 321);
    EXPECT_EQ(read("UPDATE DISAOtherExp SET IncomeSource=printf('%61s', 'x')"), 3163);
    fs::copy_file(good, backup, fs::copy_options::overwrite_existing);
    runSql(backup, "ALTER TABLE Data DROP COLUMN TaxCGT; ALTER TABLE Data ADD COLUMN Later DOUBLE DEFAULT 5;"
                   "DROP TABLE DISACars; UPDATE DataSetup SET UpDateDB=19");
    fetchAndRead(backup);
    EXPECT_EQ(in("SELECT DCLNO, TaxCGT IS NULL FROM Data WHERE DCLNO>3"), "4|1\n5|1");
    for (const std::string& bytes : {std::string(), std::string(500, 'x'), storetest::bytesOf(good).substr(0, 40000)}) {
        storetest::put(backup, bytes);
        const std::string before = storetest::bytesOf(transfer);
        EXPECT_NE(errorOf([&] { datastore::fetchTransferFile(paths(), backup); }), 0);
        EXPECT_EQ(storetest::bytesOf(transfer), before);
    }
}

TEST_F(DataCareTest, DeletingRemovesTheClientChosenAndNobodyElse) {
    const auto clients = datastore::readClientList(file);
    run("INSERT INTO DTHInvestments(DCLNO) VALUES(1),(2)");
    datastore::deleteClient(file, clients[0]);
    for (const assessment::TableDescription* table : assessment::clientTables()) {
        if (table->field("DCLNO") == nullptr) continue;
        const bool stays = table->name().starts_with("CGT") || table->name() == "LumpSumTax";
        EXPECT_EQ(in("SELECT count(*)>0 FROM " + table->name() + " WHERE DCLNO=1"), stays ? "1" : "0") << table->name();
    }
    EXPECT_EQ(in("SELECT CLName FROM PersDetails ORDER BY CLName"), "Cele\nO'Brien");
    EXPECT_EQ(in("SELECT (SELECT count(*) FROM DTHInvestments), (SELECT count(*) FROM ClientFileTexts)"), "1|0");
    expectRefused(3021, "gone", [&] { datastore::deleteClient(file, clients[0]); });
    run("UPDATE PersDetails SET Name='Dube' WHERE DCLNO=3");
    expectRefused(3197, "another client", [&] { datastore::deleteClient(file, clients[1]); });
    // The highest key is given out again, but not what the deleted client has left.
    datastore::deleteClient(file, datastore::readClientList(file)[0]);
    run("INSERT INTO CGTTrustOther(DCLNO, Amount) VALUES(3, 9)");
    Assessment anew;
    datastore::Save(anew, file);
    EXPECT_EQ(anew.DCLNO, 3);
    EXPECT_EQ(in("SELECT count(*) FROM CGTTrustOther WHERE DCLNO=3"), "0");
}

/// Every kind of work on whole files, from the same beginning.
class EachWorkTest : public DataCareTest {
protected:
    EachWorkTest() {
        fs::copy_file(file, stick / "Old.mdb");
        runSql(stick / "Old.mdb", "DELETE FROM PersDetails WHERE DCLNO=3");
        datastore::copyClients(paths(), {2, 3}); // who have no texts
        EXPECT_EQ(rowsOf(transfer, "SELECT count(*) FROM sqlite_master WHERE name='ClientFileTexts'"), "0");
        fs::copy_file(transfer, stick / "CopyData.Mdb");
    }
    struct Work {
        const char* name;
        std::function<void(const Progress&)> run;
    };
    const std::vector<Work> works{
        {"backup", [this](const Progress& p) { datastore::compactClientDb(paths(), p); }},
        {"copy to the stick", [this](const Progress& p) { datastore::copyToMedia(paths(), file, backup, p); }},
        {"copy",
         [this](const Progress& p) {
             datastore::copyClients(paths(), {1, 2, 3}, p);
         }},
        {"fetch", [this](const Progress& p) { datastore::fetchTransferFile(paths(), stick / "CopyData.Mdb", p); }},
        {"read", [this](const Progress& p) { datastore::readClients(paths(), p); }},
        {"restore", [this](const Progress& p) { datastore::restoreClientDb(paths(), stick / "Old.mdb", file, p); }},
    };
};

TEST_F(EachWorkTest, CancelledAtAnyPointLeavesEveryFileAsItWas) {
    for (const Work& work : works) {
        int cancelled = 0;
        for (int allowed = 0;; ++allowed) {
            const auto before = contentsOf(folder.path());
            int told = 0;
            try {
                work.run([&](double done) { return done <= 1 && ++told <= allowed; });
                break;
            } catch (const store::Cancelled&) {
                ++cancelled;
            }
            ASSERT_TRUE(contentsOf(folder.path()) == before) << work.name << " after " << allowed;
        }
        EXPECT_GT(cancelled, 0) << work.name;
    }
}

TEST_F(EachWorkTest, KilledAtAnyMomentLeavesEveryFileOldOrNew) {
    std::mt19937 random(20260301);
    const auto whole = [&](const fs::path& path, const std::string& counts, const char* what) {
        if (!fs::exists(path)) return;
        const std::string found = rowsOf(path, clientCount);
        EXPECT_NE(counts.find("|" + found + "|"), std::string::npos) << what << ": " << path << " " << found;
        EXPECT_EQ(rowsOf(path, "PRAGMA integrity_check"), "ok") << what << ": " << path;
    };
    const std::string start = storetest::bytesOf(file), oldTransfer = storetest::bytesOf(transfer);
    for (const Work& work : works) {
        const auto begun = std::chrono::steady_clock::now();
        work.run({});
        const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - begun;
        std::uniform_real_distribution moment(0.0, 1.5 * taken.count());
        for (int round = 0; round < 30; ++round) {
            storetest::put(file, start);
            storetest::put(transfer, oldTransfer);
            storetest::runAndKill(
                [&](auto ready) {
                    ready();
                    work.run({});
                    ::pause();
                },
                [&] { ::usleep(static_cast<useconds_t>(moment(random))); });
            Assessment found;
            ASSERT_TRUE(fs::exists(file));
            ASSERT_NO_THROW(datastore::startUp(folder.path(), found)) << work.name;
            whole(file, "|2|3|5|", work.name);
            whole(transfer, "|2|3|", work.name);
            whole(bak, "|2|3|5|", work.name);
            whole(backup, "|3|", work.name);
            whole(stick / "Old.mdb", "|2|", work.name);
        }
    }
}

TEST_F(DataCareTest, FiveThousandClientsTravelWithinTenSeconds) {
    run("WITH RECURSIVE n(i) AS (SELECT 4 UNION ALL SELECT i+1 FROM n WHERE i<5003) INSERT INTO PersDetails(DCLNO, "
        "Name, "
        "CLName) SELECT i, 'Client '||i, 'Client' FROM n; INSERT INTO Data(DCLNO, Num1) SELECT DCLNO, 5 FROM "
        "PersDetails WHERE DCLNO>3; INSERT INTO PolsInvests(DCLNO, MaxNum, DeathBen) SELECT DCLNO, 2, 7 FROM Data, "
        "(SELECT 1 UNION ALL SELECT 2) WHERE DCLNO>3; INSERT INTO RNAStocks(DCLNO, MaxNum, Amount) SELECT DCLNO, 1, 7 "
        "FROM Data WHERE DCLNO>3");
    std::vector<double> keys;
    for (int key = 4; key <= 5003; ++key)
        keys.push_back(key);
    const auto begun = std::chrono::steady_clock::now();
    datastore::copyClients(paths(), keys);
    fetchAndRead(transfer);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    EXPECT_EQ(in("SELECT count(*), sum(Num1) FROM Data WHERE DCLNO>5003"), "5000|25000");
    EXPECT_EQ(in("SELECT count(*) FROM PolsInvests WHERE DCLNO>5003"), "10000");
    EXPECT_LT(taken.count(), 20) << "both together";
}

} // namespace
