#include "analyses/itemisereport.h"

#include <algorithm>

#include "analyses/itemise.h"
#include "base/numberformat.h"
#include "datastore/printfeed.h"

namespace analyses {

namespace {

using assessment::ItemRow;

/// The field in which a column is printed: the one that stores it, except for the time of a timed amount.
const char* printField(const ItemColumn& column) {
    if (column.figure == nullptr) return "IncomeSource";
    if (column.figure == &ItemRow::Amount) return "Amount";
    if (column.figure == &ItemRow::Escalation) return "Escalation";
    return column.figure == &ItemRow::ToAge ? "ToAge" : "FromAge";
}

datastore::Row heads(const ItemLine& line) {
    datastore::Row printed;
    for (const ItemColumn& column : line.columns())
        printed.push_back({printField(column), column.head});
    printed.push_back({"AmountUnit", "rand"});
    if (line.kind == ItemKind::income) printed.push_back({"EscalationUnit", "%"});
    return printed;
}

/// The total under a list. Nobody receives incomes of different years as one sum, so their total says what it covers.
datastore::Row total(const ItemLine& line, double sum) {
    const char* words = "Total";
    if (line.kind == ItemKind::income)
        words = line.table->analysis == assessment::Analysis::retirement ? "Total of all ages" : "Total of all years";
    return {{"TotalText", words}, {"Total", base::formatNumber(sum, line.columns()[1].mask)}};
}

datastore::Row figures(const ItemLine& line, const ItemRow& row) {
    datastore::Row printed;
    for (const ItemColumn& column : line.columns())
        printed.push_back({printField(column), column.figure == nullptr
                                                   ? row.IncomeSource
                                                   : base::formatNumber(row.*column.figure, column.mask)});
    return printed;
}

bool inUse(const ItemLine& line, assessment::Assessment& record) { return line.list(record).flag != 0; }

} // namespace

bool anyItemised(assessment::Assessment& record, assessment::Analysis analysis) {
    const auto& lines = itemLines(analysis);
    return std::any_of(lines.begin(), lines.end(), [&](const ItemLine& line) { return inUse(line, record); });
}

void feedItemised(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                  assessment::Analysis analysis) {
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("ItemisePrintName", {{"Name", record.client.Name}});
    feed.clear("ItemisePrint");
    for (const ItemLine& line : itemLines(analysis)) {
        if (!inUse(line, record)) continue;
        feed.add("ItemisePrint", {{"NewGrid", line.title}});
        feed.add("ItemisePrint", heads(line));
        const std::vector<ItemRow>& rows = line.list(record).rows;
        for (const ItemRow& row : rows) {
            datastore::Row printed = figures(line, row);
            if (&row == &rows.back())
                for (const datastore::Field& field : total(line, sumOfItems(rows)))
                    printed.push_back(field);
            feed.add("ItemisePrint", printed);
        }
    }
    feed.commit();
}

} // namespace analyses
