#pragma once

#include <string>
#include <vector>

#include "analyses/capitalsearch.h"
#include "analyses/yearrun.h"
#include "assessment/assessment.h"

namespace analyses {

/// What the education analysis comes to: rand, years.
struct EducationAnalysis {
    double FundsFV = 0;      ///< needed a year when education starts, whole rand
    double yearsAsked = 0;   ///< `FundsForYears`, at most 50
    int YearsCovered = 0;    ///< by no capital at all; below `yearsAsked` a search follows
    CapitalFound found;      ///< of the search; empty if there was none
    double CapitalTried = 0; ///< the capital required at the start of education; 0 if none is
    YearlyFlows flows;       ///< what each year of education takes
    YearRun run;             ///< of `CapitalTried`; empty where not even the first year is paid
    std::string txtAns;
    std::string FundsReq; ///< the answer as the report words it

    /// The amortisation's lines, numbered from 1.
    std::vector<ShownYear> years() const { return shownYears(flows, run, yearsAsked, 1); }
    /// Points of the graph.
    int points() const;
};

/// The capital that pays for an education from the day it starts: an annual cost in today's money (`FundsPD`, rand)
/// grows at `InflationEDU` for `YearsToEdu` whole years and on from there, and is paid at the start of each of
/// `FundsForYears` years out of a capital that earns `BankRate` (both percent a year).
///
/// Writes rates above their caps, which are corrected without a word. The answer is to the next R100 and is not brought
/// back to today. Years asked for above 50 count as 50, and none are asked for without a search. A capital of exactly
/// the first year's cost pays for no year, not even the first; of a cost of nothing that makes R100. If no capital up
/// to 10^15 rand suffices, or the figures are too large to reckon with, `txtAns` is an error and `FundsReq` empty.
EducationAnalysis NAEdCalc(assessment::NAEducation& needs);

} // namespace analyses
