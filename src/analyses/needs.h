#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analyses/capitalsearch.h"
#include "analyses/sentences.h"
#include "analyses/yearrun.h"

/// The common part of the three needs analyses (retirement, death, disability): an income required for some years, a
/// capital that provides it year by year, and a search for the capital that just suffices.
namespace analyses {

/// Whether the search looked for a smaller or a larger capital that just suffices for the years asked for.
enum class CapitalSought { less, more };

/// The results of an analysis: rand, years.
struct NeedsAnalysis {
    double IncomeReqFV = 0;         ///< needed a month in the first year
    double PolicyMonthlyIncome = 0; ///< from the schedule in the first year, a month
    double monthlyAvailable = 0;    ///< all income of the first year, a month
    double TotalAssets = 0, TotalLiabilities = 0;
    double NetCapital = 0;
    YearlyFlows flows;
    YearRun run;                                ///< of `NetCapital`
    double yearsAsked = 0;                      ///< at most 50
    double firstNumber = 1;                     ///< number of the first year: 1, or the age of retirement
    CapitalSought sought = CapitalSought::less; ///< `less` if the capital suffices for the years asked for
    CapitalFound found;
    double CapitalSolved = 0; ///< the capital that just suffices; 0 if the search found none
    bool isFinite = true;     ///< false if figures are too large to calculate with; both sentences say so
    std::string txtAns1, txtAns2;

    /// What must be added to the net capital, rand; below 0 is a surplus. Nothing if no capital was found.
    std::optional<double> capitalToProvide() const;
    /// Monthly excess (above 0) or shortfall (below 0) in the first year.
    double monthlyDifference() const { return monthlyAvailable - IncomeReqFV; }
    /// The amortisation's lines.
    std::vector<ShownYear> years() const { return shownYears(flows, run, yearsAsked, firstNumber); }
};

/// The search steps and the sentences of an analysis.
struct NeedsRules {
    CapitalSteps steps;
    SentenceRules sentences;
};

/// Runs a capital through the flows of an analysis.
using CapitalRun = std::function<YearRun(double capital)>;

/// Runs the net capital, searches for the capital that just suffices for the years asked for, and writes both
/// sentences. Call it when all fields before `run` are filled. If figures are too large to calculate with, also the
/// caller's own (`isFinite` false), both sentences are an error.
void runAndSearch(NeedsAnalysis& analysis, const NeedsRules& rules, const CapitalRun& run, bool isFinite);

/// Silently reduces rates above their limits to them.
void capRates(double& inflation, double& investment);

} // namespace analyses
