#include "analyses/retirementreport.h"

#include "analyses/reportlines.h"

namespace analyses {

namespace {

constexpr NeedsReportWords words{"Initial Monthly Excess (at retirement date)",
                                 "Initial Future-value Monthly Shortfall (at retirement date)",
                                 "Net worth for investment : "};

datastore::Row askedLines(const assessment::NARetirement& needs) {
    return {{"PDV", needs.IncomePD},
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
}

} // namespace

NeedsReport retirementReport(const NeedsReportOptions& options) {
    if (options.amortised) return {"\\RetiremA.rpt", "Needs Analysis for Retirement Including Amortisation"};
    return {"\\Retirem.rpt", "Needs Analysis for Retirement "};
}

void feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const RetirementAnalysis& analysis, const NeedsReportOptions& options) {
    const assessment::NARetirement& needs = record.retirement;
    feedNeeds(printDbPath, record.client, "NARA",
              {commonLines(record.client, analysis, words), askedLines(needs), noPremium(),
               notesLines(options.notes, needs.RANotes)},
              analysis, options);
}

} // namespace analyses
