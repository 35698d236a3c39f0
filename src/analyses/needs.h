#pragma once

#include <functional>
#include <string>
#include <vector>

#include "analyses/capitalsearch.h"
#include "analyses/sentences.h"
#include "analyses/yearrun.h"

/// What the three large analyses (retirement, death, disability) have in common: an income wanted for some years, a
/// capital that carries it year by year, and a search for the capital that would just do.
namespace analyses {

/// Which way the capital was looked for that just carries the years asked for.
enum class CapitalSought { less, more };

/// What an analysis comes to: rand, years.
struct NeedsAnalysis {
    double IncomeReqFV = 0;         ///< needed a month in the first year
    double PolicyMonthlyIncome = 0; ///< from the schedule in the first year, a month
    double monthlyAvailable = 0;    ///< all income of the first year, a month
    double TotalAssets = 0, TotalLiabilities = 0;
    double NetCapital = 0;
    YearlyFlows flows;
    YearRun run;                                ///< of `NetCapital`
    double yearsAsked = 0;                      ///< at most 50
    double firstNumber = 1;                     ///< what the years are counted from: 1, or the age of retirement
    CapitalSought sought = CapitalSought::less; ///< less if the run carries the years asked for
    CapitalFound found;
    double CapitalSolved = 0; ///< carries the years asked for; 0 where no search found any
    std::string txtAns1, txtAns2;

    /// Above 0 an excess, below 0 a shortfall, a month in the first year.
    double monthlyDifference() const { return monthlyAvailable - IncomeReqFV; }
    /// The amortisation's lines.
    std::vector<ShownYear> years() const { return shownYears(flows, run, yearsAsked, firstNumber); }
};

/// What an analysis is searched and told by.
struct NeedsRules {
    CapitalSteps steps;
    SentenceRules sentences;
};

/// One run of a capital through the flows of an analysis.
using CapitalRun = std::function<YearRun(double capital)>;

/// Runs the net capital, looks for the capital that just carries the years asked for, and puts both into sentences. To
/// be called when all that stands before `run` is filled in. Of figures too large to reckon with, also where the
/// caller's own are (`isFinite` false), both sentences are an error.
void runAndSearch(NeedsAnalysis& analysis, const NeedsRules& rules, const CapitalRun& run, bool isFinite);

/// Corrects rates above their caps without a word.
void capRates(double& inflation, double& investment);

} // namespace analyses
