#include "analyses/retirementreport.h"

#include "analyses/premium.h"
#include "analyses/reportlines.h"

namespace analyses {

namespace {

datastore::Row ownLines(const assessment::Assessment& record, const RetirementAnalysis& analysis,
                        const NeedsReportOptions& options) {
    const assessment::NARetirement& needs = record.retirement;
    const assessment::CapitalPremium& premium = record.premiums.retirement;
    const bool isSolved = finance::isSolvedFor(premium, analysis.capitalToProvide(), yearsUntilNeeded(needs));
    datastore::Row row{{"PDV", needs.IncomePD},
                       {"CurrentAge", needs.CurrAge},
                       {"AgeRetiment", needs.AgeRetiment},
                       {"Inflation", needs.InflationRA},
                       {"YearsToRet", needs.YearsToRet},
                       {"CoverYears", needs.CoverYears},
                       {"BankInvestRate", needs.BankInvestRate},
                       {"Limitedto50", needs.AgeRetiment - needs.CurrAge > mostYears ? "(limited to 50 years)" : ""},
                       {"ANSLAss1", needs.ANSLAss1},
                       {"ANSLAss2", needs.ANSLAss2},
                       {"ANSLAss3", needs.ANSLAss3},
                       {"ANSLAss4", needs.ANSLAss4},
                       {"ANSLAss5", needs.ANSLAss5},
                       {"ANSLLib1", needs.ANSLLib1},
                       {"ANSLLib2", needs.ANSLLib2},
                       {"ANSLLib3", needs.ANSLLib3},
                       {"ANSLLib4", needs.ANSLLib4},
                       {"ANSLLib5", needs.ANSLLib5}};
    for (const datastore::Row& more : {premiumLines(options.premium && isSolved, premium, finance::retirementPremium),
                                       notesLines(options.notes, needs.RANotes)})
        row.insert(row.end(), more.begin(), more.end());
    return row;
}

} // namespace

datastore::Printout feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                   const RetirementAnalysis& analysis, const NeedsReportOptions& options) {
    static const NeedsReportRules rules{
        .table = "NARA",
        .excess = "Initial Monthly Excess (at retirement date)",
        .shortfall = "Initial Future-value Monthly Shortfall (at retirement date)",
        .worth = "Net worth for investment : ",
        .plain = {"\\Retirem.rpt", "Needs Analysis for Retirement "},
        .amortised = {"\\RetiremA.rpt", "Needs Analysis for Retirement Including Amortisation"}};
    return feedNeeds(printDbPath, record.client, analysis, ownLines(record, analysis, options), rules, options);
}

} // namespace analyses
