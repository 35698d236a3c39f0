#include "quotes/fundhistory.h"

#include "reports/layout_support.h"
#include "reports/report_support.h"

using namespace quotes;
using namespace reporttest;
using storetest::errorOf, storetest::rowsOf;

namespace {

class FundHistories : public ReportTest {
protected:
    FundHistories() { fs::copy_file(fs::path(MARLOWBECK_PROGRAM_DIR).parent_path() / "databases/units.mdb", units); }
    void fill(const char* rows) {
        store::Database database(units);
        database.execute("DELETE FROM [Units]");
        if (*rows != '\0') database.execute("INSERT INTO [Units] VALUES " + std::string(rows));
    }
    fs::path units = folder / "units.mdb";
};

TEST_F(FundHistories, SortByEachColumnInBothDirections) {
    // Each growth column has another order. Ties go by name, and a missing figure is the lowest.
    fill("('beta', 0.2, 0.1, 0.3, NULL, 0.1), ('Êlan', 0.1, 0.3, 0.3, 0.2, 0.1), ('Alpha', 0.3, 0.2, 0.3, 0.1, -0.1),"
         " ('Delta', NULL, NULL, -0.3, 0.3, 0.1)");
    const struct {
        const char *descending, *ascending, *words;
    } cases[] = {
        {"Êlan Delta beta Alpha ", "Alpha beta Delta Êlan ", "Sorted by Unit Trust Name Alphabetically"},
        {"Alpha beta Êlan Delta ", "Delta Êlan beta Alpha ", "Sorted by One Year Growth "},
        {"Êlan Alpha beta Delta ", "Delta beta Alpha Êlan ", "Sorted by Two Year Growth "},
        {"Alpha beta Êlan Delta ", "Delta Alpha beta Êlan ", "Sorted by Three Year Growth "},
        {"Delta Êlan Alpha beta ", "beta Alpha Êlan Delta ", "Sorted by Five Year Growth "},
        {"beta Delta Êlan Alpha ", "Alpha beta Delta Êlan ", "Sorted by Seven Year Growth "},
    };
    FundHistory history = readFundHistory(units);
    for (int column = 0; column < 6; ++column)
        for (const bool ascending : {false, true}) {
            const HistoryOrder order{column, ascending};
            sortFunds(history.funds, order);
            std::string names;
            for (const FundGrowth& fund : history.funds)
                names += fund.name + ' ';
            const auto& c = cases[column];
            EXPECT_EQ(names, ascending ? c.ascending : c.descending) << column;
            EXPECT_EQ(order.HistSort(), 2 * column + 1 + static_cast<int>(ascending));
            const std::string direction =
                column == 0 ? (ascending ? "" : "(reverse)") : (ascending ? "Ascending" : "Descending");
            EXPECT_EQ(order.SortedBY(), c.words + direction);
        }
}

TEST_F(FundHistories, AMissingFileTableColumnOrFundIsTold) {
    store::Database(units).execute("DROP TABLE [UTH]");
    EXPECT_EQ(readFundHistory(units).inflation, Growth()) << "the list itself is there";
    fill("('Alpha', 0.1, '12,3 %', 0.1, 0.1, 0.1)");
    EXPECT_EQ(errorOf([&] { readFundHistory(units); }), 3421);
    fill("");
    EXPECT_EQ(errorOf([&] { readFundHistory(units); }), 3021);
    store::Database(units).execute("DROP INDEX [10yrIndexA]; DROP INDEX [10yrIndexD];"
                                   "ALTER TABLE [Units] DROP COLUMN [7 yr]");
    EXPECT_EQ(errorOf([&] { readFundHistory(units); }), 3265);
    store::Database(units).execute("DROP TABLE [Units]");
    EXPECT_EQ(errorOf([&] { readFundHistory(units); }), 3011);
    fs::remove(units);
    EXPECT_EQ(errorOf([&] { readFundHistory(units); }), 3024);
}

TEST_F(FundHistories, PrintTheListWithTheInflationBeneath) {
    FundHistory history = readFundHistory(units);
    ASSERT_EQ(history.funds.size(), 24);
    const std::string longName = "Ṱhoho-Nḓou Prudential Balanced Regulation 28 Fund of Funds Class B1 with Dividends "
                                 "Re-invested each Quarter";
    history.funds.front() = {longName, {0.12345, {}, -0.02, 0.1, 1.5}};
    const HistoryOrder order{5, true};
    feedFundHistory(print, history, order);
    const auto printout = feedFundHistory(print, history, order);
    EXPECT_EQ(printout.title + printout.definition, "Unit Trust Histories\\UnitHist.rpt");
    EXPECT_EQ(rowsOf(print, "SELECT count(*) FROM UnitHist"), "24") << "a second printout replaces the first";
    EXPECT_EQ(rowsOf(print, "SELECT * FROM UnitHist LIMIT 1"), longName + "|0.12345||-0.02|0.10000000000000001|1.5");
    EXPECT_EQ(rowsOf(print, "SELECT SortedBY, [Inf 1yr] * 1000, [Inf 2yr] * 1000, [Inf 3yr] * 1000, [Inf 5yr] * 1000, "
                            "[Inf 7yr] * 1000 FROM UnitHistDet"),
              "Sorted by Seven Year Growth Ascending|34|39|45|51|49");
    const auto report = engine.prepare("UnitHist.rpt");
    expectSound(report->layout);
    expectWords(textOfPdf(reports::toPdf(*report)).simplified(),
                {"Sorted by Seven Year Growth Ascending.", "Unit trust fund 1 year 2 years", "Ṱhoho-Nḓou",
                 "12.345% −2.0% 10.0% 150.0%", "Berg River Bond Fund 8.3% 7.6% 8.8% 8.2% 8.7%",
                 "Inflation 3.4% 3.9% 4.5% 5.1% 4.9%"});
}

} // namespace
