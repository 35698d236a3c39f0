#include "analyses/retirementreport.h"

#include "analyses/amounts.h"
#include "analyses/reportlines.h"
#include "base/day.h"
#include "datastore/printfeed.h"

namespace analyses {

namespace {

std::string netWorthText(double capital) {
    return capital < 0 ? "Capital Shortfall : " + amountText(-capital)
                       : "Net worth for investment : " + amountText(capital);
}

datastore::Row capitalLines(const assessment::NARetirement& needs) {
    return {{"ANSLAss1", needs.ANSLAss1}, {"ANSLAss2", needs.ANSLAss2}, {"ANSLAss3", needs.ANSLAss3},
            {"ANSLAss4", needs.ANSLAss4}, {"ANSLAss5", needs.ANSLAss5}, {"ANSLLib1", needs.ANSLLib1},
            {"ANSLLib2", needs.ANSLLib2}, {"ANSLLib3", needs.ANSLLib3}, {"ANSLLib4", needs.ANSLLib4},
            {"ANSLLib5", needs.ANSLLib5}};
}

datastore::Row incomeLines(const RetirementAnalysis& analysis) {
    const double difference = analysis.monthlyDifference();
    const bool isExcess = difference > 0;
    return {{"IncomeFV", analysis.IncomeReqFV},
            {"IncomeRA", analysis.monthlyAvailable},
            {"IncomeShortText", isExcess ? "Initial Monthly Excess (at retirement date)"
                                         : "Initial Future-value Monthly Shortfall (at retirement date)"},
            {"IncomeShort", isExcess ? difference : 0 - difference},
            {"TotAss", analysis.TotalAssets},
            {"TotLib", analysis.TotalLiabilities},
            {"ShoRTFall", netWorthText(analysis.NetCapital)},
            {"BottLine1", analysis.txtAns1},
            {"BottLine2", analysis.txtAns2}};
}

datastore::Row askedLines(const assessment::Assessment& record) {
    const assessment::NARetirement& needs = record.retirement;
    return {{"Name", record.client.Name},
            {"IDNumber", record.client.IDNumber},
            {"BirthDate", base::reportDate(record.client.BirthDate)},
            {"PDV", needs.IncomePD},
            {"CurrentAge", needs.CurrAge},
            {"AgeRetiment", needs.AgeRetiment},
            {"Inflation", needs.InflationRA},
            {"YearsToRet", needs.YearsToRet},
            {"CoverYears", needs.CoverYears},
            {"BankInvestRate", needs.BankInvestRate},
            {"Limitedto50", needs.AgeRetiment - needs.CurrAge > mostYears ? "(limited to 50 years)" : ""}};
}

} // namespace

void feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const RetirementAnalysis& analysis, const RetirementReportOptions& options) {
    datastore::Row row = askedLines(record);
    for (const datastore::Row& more : {incomeLines(analysis), capitalLines(record.retirement), noPremium(),
                                       notesLines(options.notes, record.retirement.RANotes)})
        row.insert(row.end(), more.begin(), more.end());
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("NARA", row);
    if (options.amortised) feed.replace("Amort", amortisationRows(analysis.years()));
    feed.commit();
}

} // namespace analyses
