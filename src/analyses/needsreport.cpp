#include "analyses/needsreport.h"

#include "analyses/amounts.h"
#include "analyses/reportlines.h"
#include "base/day.h"
#include "datastore/printfeed.h"

namespace analyses {

datastore::Row commonLines(const assessment::Client& client, const NeedsAnalysis& analysis,
                           const NeedsReportWords& words) {
    const double difference = analysis.monthlyDifference();
    const bool isExcess = difference > 0;
    const double capital = analysis.NetCapital;
    return {
        {"Name", client.Name},
        {"IDNumber", client.IDNumber},
        {"BirthDate", base::reportDate(client.BirthDate)},
        {"IncomeFV", analysis.IncomeReqFV},
        {"IncomeRA", analysis.monthlyAvailable},
        {"IncomeShortText", isExcess ? words.excess : words.shortfall},
        {"IncomeShort", isExcess ? difference : 0 - difference},
        {"TotAss", analysis.TotalAssets},
        {"TotLib", analysis.TotalLiabilities},
        {"ShoRTFall", capital < 0 ? "Capital Shortfall : " + amountText(-capital) : words.worth + amountText(capital)},
        {"BottLine1", analysis.txtAns1},
        {"BottLine2", analysis.txtAns2}};
}

void feedNeeds(const std::filesystem::path& printDbPath, const assessment::Client& client, const char* table,
               const std::vector<datastore::Row>& parts, const NeedsAnalysis& analysis,
               const NeedsReportOptions& options) {
    datastore::Row row;
    for (const datastore::Row& part : parts)
        row.insert(row.end(), part.begin(), part.end());
    datastore::PrintFeed feed(printDbPath, client.Name);
    feed.replace(table, row);
    if (options.amortised) feed.replace("Amort", amortisationRows(analysis.years()));
    feed.commit();
}

} // namespace analyses
