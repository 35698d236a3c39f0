#include "analyses/frmNADisability.h"

#include "analyses/coverreport.h"
#include "datastore/paths.h"

namespace analyses {

frmNADisability::frmNADisability(screenkit::Workplace& workplace)
    : CoverScreen(workplace, "frmNADisability", "Disability Needs Analysis",
                  workplace.record.changed.NADisabilityChanged, assessment::Analysis::disability,
                  {.required = "Monthly income required(at disability)",
                   .available = "Monthly income available(at disability)",
                   .difference = "Monthly shortfall",
                   .capital = "TOTAL ASSETS",
                   .expenses = "TOTAL LIABILITIES",
                   .netWorth = "NET WORTH",
                   .graph = &reports::frmGraph::NADISAmortGraph}) {
    auto& needs = workplace.record.disability;
    build({.income = needs.MDisaDTS5,
           .years = needs.MDisaDTS15,
           .inflation = needs.MDisaDTS6,
           .rate = needs.MDisaDTS7,
           .available = needs.DisaMIAvail,
           .assets = {&needs.DisaASS1, &needs.DisaASS2, &needs.DisaASS4, &needs.DisaASS5, &needs.DisaASS6},
           .liabilities = {&needs.Disalib1, &needs.Disalib2, &needs.Disalib3, &needs.Disalib4, &needs.Disalib5},
           .lastReview = needs.DISALastReview,
           .nextReview = needs.DISANextReview,
           .notes = needs.DisaNotes},
          {.tab = "&Disability Cover",
           .income = "&Monthly income required at disability",
           .available = "Monthl&y income available at disability",
           .assets = "Capital available at Disability ",
           .liabilities = "Disability Liabilities",
           .fees = "Conversion costs etc.",
           .lastReview = "dtDISALastReview",
           .nextReview = "dtDISANextReview"});
}

datastore::Printout frmNADisability::feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    return feedDisability(m_work.paths.PrintDbPath, m_work.record, analysis, options);
}

} // namespace analyses
