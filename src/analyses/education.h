#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analyses/capitalsearch.h"
#include "analyses/yearrun.h"
#include "assessment/assessment.h"

namespace analyses {

/// The results of the education analysis: rand, years.
struct EducationAnalysis {
    double FundsFV = 0;      ///< needed a year when education starts, whole rand
    double yearsAsked = 0;   ///< `FundsForYears`, at most 50
    int YearsCovered = 0;    ///< without any capital; a search follows if below `yearsAsked`
    CapitalFound found;      ///< result of the search; empty without a search
    double CapitalTried = 0; ///< the capital required at the start of education; 0 if none is
    YearlyFlows flows;       ///< the cost of each year of education
    YearRun run;             ///< of `CapitalTried`; empty if not even the first year is paid
    std::string txtAns;
    std::string FundsReq; ///< the answer as the report words it

    /// The amortisation's lines, numbered from 1.
    std::vector<ShownYear> years() const { return shownYears(flows, run, yearsAsked, 1); }
    /// The capital required, 0 if none is; nothing if no capital was found.
    std::optional<double> capitalToProvide() const;
    /// Number of points of the graph.
    int points() const;
};

/// The capital that pays for an education from the day it starts. An annual cost in today's money (`FundsPD`, rand)
/// rises by `InflationEDU` over `YearsToEdu` whole years and after that. It is paid at the start of each of
/// `FundsForYears` years from a capital that earns `BankRate` (both percent a year).
///
/// Writes rates above their limits, which are silently reduced to them. The answer is rounded up to R100 and is not
/// discounted to today. More than 50 years asked for count as 50; if no search is needed, `CapitalTried` is 0. A
/// capital of exactly the first year's cost pays for no year, so that a cost of 0 gives R100. If no capital up to 10^15
/// rand suffices, or figures are too large to calculate with, `txtAns` is an error and `FundsReq` empty.
EducationAnalysis NAEdCalc(assessment::NAEducation& needs);

} // namespace analyses
