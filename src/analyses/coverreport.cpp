#include "analyses/coverreport.h"

#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/reportlines.h"

namespace analyses {

namespace {

constexpr const char* worth = "Net capital worth for investment : ";

datastore::Row askedLines(const CoverNeeds& needs) {
    return {{"Income", needs.income},          {"Period", needs.years},           {"Inflation", needs.inflation},
            {"InvestRate", needs.rate},        {"ANSAss1", needs.assets[0]},      {"ANSAss2", needs.assets[1]},
            {"ANSAss4", needs.assets[2]},      {"ANSAss5", needs.assets[3]},      {"ANSAss6", needs.assets[4]},
            {"ANSLib1", needs.liabilities[0]}, {"ANSLib2", needs.liabilities[1]}, {"ANSLib3", needs.liabilities[2]},
            {"ANSLib4", needs.liabilities[3]}, {"ANSLib5", needs.liabilities[4]}};
}

} // namespace

NeedsReport deathReport(const NeedsReportOptions& options) {
    if (options.amortised) return {"\\EstatAnA.rpt", "Death Needs Analysis Including Amortisation"};
    return {"\\EstateAn.rpt", "Death Needs Analysis "};
}

NeedsReport disabilityReport(const NeedsReportOptions& options) {
    if (options.amortised) return {"\\DisabAnA.rpt", "Disability Needs Analysis Including Amortisation"};
    return {"\\DisabAn.rpt", "Disability Needs Analysis "};
}

void feedDeath(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
               const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    constexpr NeedsReportWords words{"Initial Monthly Excess (at death)", "Initial Monthly Shortfall (at death)",
                                     worth};
    feedNeeds(printDbPath, record.client, "NADeath",
              {commonLines(record.client, analysis, words), askedLines(deathNeeds(record)),
               notesLines(options.notes, record.death.DeathNotes)},
              analysis, options);
}

void feedDisability(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    constexpr NeedsReportWords words{"Initial Monthly Excess (at disability)",
                                     "Initial Monthly Shortfall (at disability)", worth};
    feedNeeds(printDbPath, record.client, "NADeath",
              {commonLines(record.client, analysis, words), askedLines(disabilityNeeds(record)),
               notesLines(options.notes, record.disability.DisaNotes)},
              analysis, options);
}

} // namespace analyses
