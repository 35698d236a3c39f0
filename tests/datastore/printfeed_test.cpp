#include "datastore/printfeed.h"

#include "store/store_support.h"

using datastore::PrintFeed;
using datastore::Row;
using namespace storetest;

namespace {

class Feed : public testing::Test {
protected:
    Feed() {
        store::Database::create(path);
        store::Database(path).execute(
            "CREATE TABLE Loans (Heading VARCHAR(5), Num1 DOUBLE, [1 yr] DOUBLE, Whole SMALLINT);"
            "CREATE TABLE Amort (Year DOUBLE, Capital DOUBLE); CREATE TABLE Printout (Client VARCHAR(255)); INSERT "
            "INTO Loans (Num1) VALUES (1), (2)");
    }
    std::string rows(const std::string& table) { return rowsOf(path, "SELECT * FROM " + table + " ORDER BY rowid"); }
    Folder folder;
    fs::path path = folder / "Print.mdb";
};

} // namespace

TEST_F(Feed, ReplacesWhatTheTableHeld) {
    for (const double amount : {1.5, 2.5}) {
        PrintFeed feed(path, "A. Client");
        feed.replace("LOANS", {{"heading", "O'B"}, {"num1", amount}, {"1 YR", 7}, {"Whole", 6.5}});
        feed.replace("Amort", std::vector<Row>{{{"Year", 1}, {"Capital", amount}}, {{"Capital", 9.0}, {"Year", 2}}});
        feed.commit();
    }
    EXPECT_EQ(rows("Loans"), "O'B|2.5|7|6");
    EXPECT_EQ(rows("Amort"), "1|2.5\n2|9");
    PrintFeed feed(path, "A. Client");
    feed.replace("Loans", {{"Num1", 3.5}});
    feed.replace("Amort", std::vector<Row>{});
    feed.commit();
    EXPECT_EQ(rows("Loans"), "|3.5||"); // nothing remains of the earlier printout
    EXPECT_EQ(rows("Amort"), "");
}

TEST_F(Feed, FailsWithTableAndFieldInTheMessageAndChangesNothing) {
    struct Case {
        const char* table;
        datastore::Field field;
        int number;
        const char* named;
    };
    for (const Case& c : {Case{"Nowhere", {"A", 1}, 3011, "Nowhere"},
                          {"Loans", {"Num9", 1}, 3265, "Num9"},
                          {"Loans", {"Heading", "sixsix"}, 3163, "Heading"},
                          {"Loans", {"Num1", "text"}, 3421, "Num1"},
                          {"Loans", {"Whole", 40000}, 3421, "Whole"}}) {
        const auto error = caughtFrom([&] {
            PrintFeed feed(path, "A. Client");
            feed.replace("Amort", {{"Year", 1}});
            feed.replace(c.table, {c.field});
            feed.commit();
        });
        ASSERT_TRUE(error) << c.named;
        EXPECT_EQ(error->number(), c.number);
        EXPECT_NE(error->message().find(c.named), std::string::npos) << error->message();
    }
    EXPECT_EQ(rows("Loans"), "|1||\n|2||");
    EXPECT_EQ(rows("Amort"), "");
    EXPECT_EQ(errorOf([&] { PrintFeed feed(folder / "none.mdb", {}); }), 3024);
}
