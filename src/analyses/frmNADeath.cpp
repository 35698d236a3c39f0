#include "analyses/frmNADeath.h"

#include "analyses/coverreport.h"
#include "datastore/paths.h"

namespace analyses {

frmNADeath::frmNADeath(screenkit::Workplace& workplace)
    : CoverScreen(workplace, "frmNADeath", "Death Needs Analysis", workplace.record.changed.NADeathChanged,
                  assessment::Analysis::death,
                  {.required = "Monthly income required(at death)",
                   .available = "Monthly income available(at death)",
                   .difference = "Monthly shortfall",
                   .capital = "TOTAL ASSETS",
                   .expenses = "TOTAL LIABILITIES",
                   .netWorth = "NET WORTH",
                   .graph = &reports::frmGraph::NADAmortGraph}) {
    auto& needs = workplace.record.death;
    build({.income = needs.Income,
           .years = needs.PeriodDeath,
           .inflation = needs.Inflation,
           .rate = needs.InvestRate,
           .available = needs.DeathMIAvail,
           .assets = {&needs.ANSAss1, &needs.ANSAss2, &needs.ANSAss4, &needs.ANSAss5, &needs.ANSAss6},
           .liabilities = {&needs.ANSLib1, &needs.ANSLib2, &needs.ANSLib3, &needs.ANSLib4, &needs.lib5},
           .lastReview = needs.DTHLastReview,
           .nextReview = needs.DTHNextReview,
           .notes = needs.DeathNotes},
          {.tab = "&Death Capital ",
           .income = "&Monthly income required at death",
           .available = "Monthl&y income available at death",
           .assets = "Capital available at Death",
           .liabilities = "Capital liabilities at Death",
           .fees = "Estate d&uty/fees etc.",
           .lastReview = "dtDTHLastReview",
           .nextReview = "dtDTHNextReview"});
}

datastore::Printout frmNADeath::feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    return feedDeath(m_work.paths.PrintDbPath, m_work.record, analysis, options);
}

} // namespace analyses
