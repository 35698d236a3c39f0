#include "analyses/needsreport.h"

#include "analyses/amounts.h"
#include "analyses/reportlines.h"
#include "base/day.h"

namespace analyses {

namespace {

datastore::Row commonLines(const assessment::Client& client, const NeedsAnalysis& analysis,
                           const NeedsReportRules& rules) {
    const double difference = analysis.monthlyDifference();
    const bool isExcess = difference > 0;
    const double capital = analysis.NetCapital;
    return {
        {"Name", client.Name},
        {"IDNumber", client.IDNumber},
        {"BirthDate", base::reportDate(client.BirthDate)},
        {"IncomeFV", analysis.IncomeReqFV},
        {"IncomeRA", analysis.monthlyAvailable},
        {"IncomeShortText", isExcess ? rules.excess : rules.shortfall},
        {"IncomeShort", isExcess ? difference : 0 - difference},
        {"TotAss", analysis.TotalAssets},
        {"TotLib", analysis.TotalLiabilities},
        {"ShoRTFall", capital < 0 ? "Capital Shortfall : " + amountText(-capital) : rules.worth + amountText(capital)},
        {"BottLine1", analysis.txtAns1},
        {"BottLine2", analysis.txtAns2}};
}

} // namespace

datastore::Printout feedNeeds(const std::filesystem::path& printDbPath, const assessment::Client& client,
                              const NeedsAnalysis& analysis, const datastore::Row& own, const NeedsReportRules& rules,
                              const NeedsReportOptions& options) {
    datastore::Row row = commonLines(client, analysis, rules);
    row.insert(row.end(), own.begin(), own.end());
    datastore::PrintFeed feed(printDbPath, client.Name);
    feed.replace(rules.table, row);
    if (options.amortised) feed.replace("Amort", amortisationRows(analysis.years()));
    feed.commit();
    return options.amortised ? rules.amortised : rules.plain;
}

} // namespace analyses
