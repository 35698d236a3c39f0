#include "quotes/fundhistory.h"

#include <algorithm>

#include "base/fold.h"
#include "store/error.h"

namespace quotes {

namespace {

constexpr const char* nameColumn = "Unit Trust Fund";
constexpr std::array<const char*, 5> growthColumns{"1 yr", "2 yr", "3 yr", "5 yr", "7 yr"};
constexpr std::array<const char*, 5> inflationColumns{"Inf 1yr", "Inf 2yr", "Inf 3yr", "Inf 5yr", "Inf 7yr"};
constexpr std::array<const char*, 12> inWords{"Sorted by Unit Trust Name Alphabetically(reverse)",
                                              "Sorted by Unit Trust Name Alphabetically",
                                              "Sorted by One Year Growth Descending",
                                              "Sorted by One Year Growth Ascending",
                                              "Sorted by Two Year Growth Descending",
                                              "Sorted by Two Year Growth Ascending",
                                              "Sorted by Three Year Growth Descending",
                                              "Sorted by Three Year Growth Ascending",
                                              "Sorted by Five Year Growth Descending",
                                              "Sorted by Five Year Growth Ascending",
                                              "Sorted by Seven Year Growth Descending",
                                              "Sorted by Seven Year Growth Ascending"};

/// A select of these columns; Error 3011 or 3265 if the file lacks the table or one of them.
store::Statement selectOf(store::Database& database, const char* table, const std::vector<const char*>& columns) {
    const auto present = datastore::requiredColumns(database, table);
    std::string sql;
    for (const char* column : columns) {
        datastore::requiredField(database, table, present, column);
        sql += (sql.empty() ? "SELECT " : ", ") + store::bracketed(column);
    }
    return database.prepare(sql + " FROM " + store::bracketed(table) + " ORDER BY rowid");
}

Growth growthFrom(const store::Statement& row, int firstColumn, const store::Database& database) {
    Growth growth;
    for (std::size_t i = 0; i < growth.size(); ++i) {
        const store::Value value = row.column(firstColumn + static_cast<int>(i));
        if (const auto* figure = std::get_if<double>(&value)) growth[i] = *figure;
        if (const auto* text = std::get_if<std::string>(&value))
            throw store::Error(store::Number::wrongType, database.path().string(),
                               "The text \"" + *text + "\" stands where a growth is expected.",
                               "Replace it in {name} by a fraction a year: 0.123 for 12.3 %.");
    }
    return growth;
}

void addGrowth(datastore::Row& row, const std::array<const char*, 5>& columns, const Growth& growth) {
    for (std::size_t i = 0; i < growth.size(); ++i)
        if (growth[i]) row.emplace_back(columns[i], *growth[i]);
}

} // namespace

const char* HistoryOrder::SortedBY() const { return inWords.at(static_cast<std::size_t>(HistSort() - 1)); }

FundHistory readFundHistory(const std::filesystem::path& unitsDbPath) {
    store::Database database(unitsDbPath);
    FundHistory history;
    std::vector<const char*> columns{nameColumn};
    columns.insert(columns.end(), growthColumns.begin(), growthColumns.end());
    store::Statement row = selectOf(database, "Units", columns);
    while (row.step())
        history.funds.push_back({row.text(0), growthFrom(row, 1, database)});
    if (history.funds.empty())
        throw store::Error(store::Number::noCurrentRecord, unitsDbPath.string(), "The file lists no unit trust.",
                           "Enter the unit trusts and their growth into the table \"Units\" of {name}, or copy {name} "
                           "from your last backup into the folder {folder}.");
    if (!database.hasTable("UTH")) return history;
    store::Statement inflation = selectOf(database, "UTH", {inflationColumns.begin(), inflationColumns.end()});
    if (inflation.step()) history.inflation = growthFrom(inflation, 0, database);
    return history;
}

void sortFunds(std::vector<FundGrowth>& funds, HistoryOrder order) {
    struct Line {
        base::SortKey name;
        std::optional<double> figure; // without one it compares as the lowest
        std::size_t at;
    };
    std::vector<Line> lines;
    lines.reserve(funds.size());
    for (const FundGrowth& fund : funds) {
        const auto figure =
            order.column == 0 ? std::nullopt : fund.growth.at(static_cast<std::size_t>(order.column - 1));
        lines.push_back({base::SortKey(fund.name), figure, lines.size()});
    }
    std::ranges::stable_sort(lines, [order](const Line& a, const Line& b) {
        const bool forward = order.ascending;
        if (a.figure != b.figure) return forward ? a.figure < b.figure : b.figure < a.figure;
        return order.column == 0 && !forward ? b.name < a.name : a.name < b.name;
    });
    std::vector<FundGrowth> sorted;
    sorted.reserve(funds.size());
    for (const Line& line : lines)
        sorted.push_back(std::move(funds[line.at]));
    funds = std::move(sorted);
}

datastore::Printout feedFundHistory(const std::filesystem::path& printDbPath, const FundHistory& history,
                                    HistoryOrder order) {
    std::vector<datastore::Row> rows;
    rows.reserve(history.funds.size());
    for (const FundGrowth& fund : history.funds)
        addGrowth(rows.emplace_back(datastore::Row{{nameColumn, fund.name}}), growthColumns, fund.growth);
    datastore::Row details{{"SortedBY", std::string(order.SortedBY())}};
    addGrowth(details, inflationColumns, history.inflation);
    datastore::PrintFeed feed(printDbPath, "");
    feed.replace("UnitHist", rows);
    feed.replace("UnitHistDet", details);
    feed.commit();
    return {"\\UnitHist.rpt", "Unit Trust Histories"};
}

} // namespace quotes
