#include "analyses/coverreport.h"

#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/reportlines.h"

namespace analyses {

namespace {

constexpr const char* worth = "Net capital worth for investment : ";

datastore::Row ownLines(const CoverNeeds& needs, bool notes, const std::string& text) {
    datastore::Row row{
        {"Income", needs.income},          {"Period", needs.years},           {"Inflation", needs.inflation},
        {"InvestRate", needs.rate},        {"ANSAss1", needs.assets[0]},      {"ANSAss2", needs.assets[1]},
        {"ANSAss4", needs.assets[2]},      {"ANSAss5", needs.assets[3]},      {"ANSAss6", needs.assets[4]},
        {"ANSLib1", needs.liabilities[0]}, {"ANSLib2", needs.liabilities[1]}, {"ANSLib3", needs.liabilities[2]},
        {"ANSLib4", needs.liabilities[3]}, {"ANSLib5", needs.liabilities[4]}};
    const datastore::Row noted = notesLines(notes, text);
    row.insert(row.end(), noted.begin(), noted.end());
    return row;
}

} // namespace

datastore::Printout feedDeath(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                              const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    static const NeedsReportRules rules{.table = "NADeath",
                                        .excess = "Initial Monthly Excess (at death)",
                                        .shortfall = "Initial Monthly Shortfall (at death)",
                                        .worth = worth,
                                        .plain = {"\\EstateAn.rpt", "Death Needs Analysis "},
                                        .amortised = {"\\EstatAnA.rpt", "Death Needs Analysis Including Amortisation"}};
    const datastore::Row own = ownLines(deathNeeds(record), options.notes, record.death.DeathNotes);
    return feedNeeds(printDbPath, record.client, analysis, own, rules, options);
}

datastore::Printout feedDisability(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                   const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    static const NeedsReportRules rules{
        .table = "NADeath",
        .excess = "Initial Monthly Excess (at disability)",
        .shortfall = "Initial Monthly Shortfall (at disability)",
        .worth = worth,
        .plain = {"\\DisabAn.rpt", "Disability Needs Analysis "},
        .amortised = {"\\DisabAnA.rpt", "Disability Needs Analysis Including Amortisation"}};
    const datastore::Row own = ownLines(disabilityNeeds(record), options.notes, record.disability.DisaNotes);
    return feedNeeds(printDbPath, record.client, analysis, own, rules, options);
}

} // namespace analyses
