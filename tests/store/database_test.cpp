#include "store/database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sys/stat.h>

#include "store/store_support.h"

using namespace storetest;
using store::Database;
using store::Transaction;

namespace {

class DatabaseFile : public testing::Test {
protected:
    /// A closed database with one table and one row.
    fs::path made(const std::string& name = "Data.Mdb") {
        const fs::path path = folder / name;
        Database::create(path);
        Database(path).execute("CREATE TABLE Loans (Name VARCHAR(80), Num1 DOUBLE, [1 yr] DOUBLE, [TAXCOM4/2] DOUBLE);"
                               "INSERT INTO Loans VALUES ('Êksteen', 1, 2, 3)");
        return path;
    }
    static std::string num1(const fs::path& path) { return rowsOf(path, "SELECT Num1 FROM Loans"); }
    static int opening(const fs::path& path) {
        return errorOf([&] { Database database(path); });
    }
    Folder folder;
};

int writing(const fs::path& path) {
    return errorOf([&] { Database(path).execute("UPDATE Loans SET Num1 = 7"); });
}

TEST_F(DatabaseFile, ItsStateChangesWithEveryWriteAndReplacement) {
    const fs::path path = made();
    const Database reader(path);
    const store::FileState first = reader.state();
    EXPECT_NE(first, store::FileState());
    EXPECT_EQ(Database(path).state(), first);
    Database(path).execute("UPDATE Loans SET Num1=2");
    const store::FileState second = reader.state();
    EXPECT_NE(second, first);
    EXPECT_EQ(second.changes, first.changes + 1);
    fs::copy_file(path, folder / "copy");
    fs::rename(folder / "copy", path);
    EXPECT_NE(Database(path).state(), second);
}

} // namespace

TEST_F(DatabaseFile, FaultsAtOpeningHaveTheirNumbersAndLeaveTheFileAlone) {
    const std::string whole = bytesOf(made());
    Database(folder / "Data.Mdb").execute("CREATE TABLE Big (A TEXT)");
    for (const auto& [bytes, error] : {std::pair{std::string(), 3343},
                                       {"S", 3343},
                                       {std::string(5000, 'x'), 3343},
                                       {whole.substr(0, 60), 3343},
                                       {whole.substr(0, 4096), 3049},
                                       {whole.substr(0, whole.size() - 100), 3049}}) {
        put(folder / "text.mdb", bytes);
        EXPECT_EQ(opening(folder / "text.mdb"), error) << bytes.size();
        EXPECT_EQ(bytesOf(folder / "text.mdb"), bytes) << bytes.size();
    }
    EXPECT_EQ(opening(folder / "none.mdb"), 3024);
    EXPECT_EQ(opening(folder / "no folder/Data.Mdb"), 3044);
    EXPECT_EQ(opening(folder / "text.mdb/Data.Mdb"), 3044);
    EXPECT_EQ(opening(folder.path()), 3051);
    EXPECT_EQ(opening("/dev/null"), 3051);
    EXPECT_FALSE(fs::exists(folder / "none.mdb"));
    EXPECT_FALSE(fs::exists(folder / "no folder"));
}

TEST_F(DatabaseFile, EachMissingPermissionHasItsOwnError) {
    const fs::path path = made();
    const OrdinaryUser user(folder);
    ::chmod(path.c_str(), 0400);
    EXPECT_EQ(num1(path), "1");
    EXPECT_EQ(writing(path), 3027);
    EXPECT_EQ(errorOf([&] {
                  Database database(path);
                  Transaction transaction(database);
              }),
              3027);
    ::chmod(path.c_str(), 0000);
    EXPECT_EQ(opening(path), 3051);
    ::chmod(path.c_str(), 0600);
    ::chmod(folder.path().c_str(), 0500); // no journal can be created
    EXPECT_EQ(num1(path), "1");
    EXPECT_EQ(writing(path), 3051);
    EXPECT_EQ(errorOf([&] { Database::create(folder / "new.mdb"); }), 3051);
}

TEST_F(DatabaseFile, IsHeldByAnother) {
    const fs::path path = made();
    SQLite::Database other(path.string(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(opening(path), 3356);
    other.exec("COMMIT; BEGIN IMMEDIATE");
    EXPECT_EQ(num1(path), "1"); // a reader is not blocked by a writer
    EXPECT_EQ(writing(path), 3356);
}

TEST_F(DatabaseFile, SecondConnectionKeepsTheLocksOfTheFirst) {
    const fs::path path = made();
    Database first(path);
    Transaction transaction(first);
    { Database second(path); }
    // Another process checks, since locks belong to a process.
    const pid_t child = ::fork();
    if (child == 0) ::_exit(writing(path) == 3356 ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(DatabaseFile, IsCreatedForItsOwnerAloneAndNeverTwice) {
    Database::create(folder / "New.Mdb");
    EXPECT_EQ(modeOf(folder / "New.Mdb"), 0600U);
    EXPECT_EQ(opening(folder / "New.Mdb"), 0);
    EXPECT_EQ(errorOf([&] { Database::create(folder / "new.mdb"); }), 3204); // names are compared without case
    EXPECT_EQ(errorOf([&] { Database::create(folder / "none/New.Mdb"); }), 3044);
    EXPECT_EQ(Database(folder / "NEW.MDB").path(), folder / "New.Mdb");
}

TEST_F(DatabaseFile, StatementsFailWithTheNumberOfTheirCause) {
    Database database(made());
    for (const auto& [sql, error] : {std::pair{"SELECT 1 FROM Nowhere", 3078},
                                     {"SELECT [Num9] FROM Loans", 3265},
                                     {"SELECT \"Num9\" FROM Loans", 3265}, // not read as the text "Num9"
                                     {"INSERT INTO Loans (Num9) VALUES (1)", 3265},
                                     {"CREATE TABLE LOANS (A)", 3010},
                                     {"CREATE INDEX I ON Loans (Num1); CREATE INDEX I ON Loans (Num1)", 3284},
                                     {"ALTER TABLE Loans ADD COLUMN NUM1 DOUBLE", 3191},
                                     {"PRAGMA max_page_count=1; CREATE TABLE T (A)", 3026},
                                     {"SELEKT", 3000}})
        EXPECT_EQ(errorOf([&] { database.execute(sql); }), error) << sql;
    EXPECT_EQ(errorOf([&] { database.prepare("SELECT \"Num9\" FROM Loans"); }), 3265);
    EXPECT_EQ(errorOf([&] { database.prepare("SELECT 1 FROM Nowhere"); }), 3078);
    EXPECT_EQ(errorOf([&] { database.prepare("SELECT 1").bind(2, 1.0); }), 3000);
}

TEST_F(DatabaseFile, TransactionIsUndoneUnlessCommitted) {
    const fs::path path = made();
    Database database(path);
    {
        Transaction transaction(database);
        database.execute("UPDATE Loans SET Num1 = 2");
    }
    EXPECT_EQ(num1(path), "1");
    EXPECT_EQ(errorOf([&] {
                  Transaction transaction(database);
                  database.execute("UPDATE Loans SET Num1 = 3");
                  database.execute("PRAGMA max_page_count=1; CREATE TABLE Full (A)"); // SQLite rolls this back itself
              }),
              3026);
    EXPECT_EQ(num1(path), "1");
    {
        Transaction transaction(database);
        database.execute("UPDATE Loans SET Num1 = 4");
        transaction.commit();
    }
    EXPECT_EQ(num1(path), "4");
}

TEST_F(DatabaseFile, AProcessKilledWhileWritingLeavesTheOldFile) {
    const fs::path path = made();
    runAndKill([&](auto ready) {
        Database database(path);
        Transaction transaction(database);
        // A cache of one page forces writes to the file before the commit.
        database.execute("PRAGMA cache_size=1; UPDATE Loans SET Num1 = 99; CREATE TABLE Big (A TEXT);"
                         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500)"
                         "INSERT INTO Big SELECT hex(zeroblob(1000)) FROM n");
        ready();
        ::pause();
    });
    ASSERT_TRUE(fs::exists(path.string() + "-journal"));
    EXPECT_EQ(num1(path), "1");
    EXPECT_FALSE(Database(path).hasTable("Big"));
    EXPECT_FALSE(fs::exists(path.string() + "-journal"));
}

TEST_F(DatabaseFile, MessageNamesFileReasonAdviceAndNumber) {
    const auto error = caughtFrom([&] { Database database(folder / "Data.Mdb"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message(),
              (folder / "Data.Mdb").string() + "\n" + error->why() + "\n" + error->advice() + "\nError (3024)");
    EXPECT_FALSE(error->why().empty() || error->advice().empty());
}
