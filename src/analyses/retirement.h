#pragma once

#include <string>
#include <vector>

#include "analyses/yearrun.h"
#include "assessment/assessment.h"

namespace analyses {

inline constexpr double highestInflation = 30;  ///< percent a year
inline constexpr double highestBankInvest = 50; ///< percent a year

/// What the retirement analysis shows: rand, years.
struct RetirementAnalysis {
    double IncomeReqFV = 0;      ///< needed a month at retirement, whole rand
    double monthlyAvailable = 0; ///< itemised income and pensions in the first year, a month
    double TotalAssets = 0, TotalLiabilities = 0;
    double NetCapital = 0;
    double CapitalSolved = 0; ///< carries the years asked for; 0 where no search found any
    YearlyFlows flows;
    YearRun run; ///< of `NetCapital`
    std::string txtAns1, txtAns2;

    /// Above 0 an excess, below 0 a shortfall, a month in the first year.
    double monthlyDifference() const { return monthlyAvailable - IncomeReqFV; }
};

/// How long the capital at retirement carries the income wanted, and how much more or less of it the years asked for
/// need.
///
/// Reads the retirement group, its itemised lists and the policies, which it folds in afresh. Writes the policies'
/// totals, `IncomeRA` (the itemised income of the last year that was run, rand a month) and rates above their caps,
/// which are corrected without a word. Years asked for above 50 count as 50. If no capital up to 10^15 rand
/// suffices, `CapitalSolved` is 0 and `txtAns2` empty.
RetirementAnalysis NARACalc(assessment::Assessment& record);

/// The year run once more from `NetCapital`: what table and graph show is never what a search has left behind.
void NARAProjectCapital(assessment::Assessment& record, RetirementAnalysis& analysis);

/// `CurrAge` of a client born on a day number: whole years of 365.25 days.
double ageOn(double today, double birthDate);

/// Works out `YearsToRet` after either age has changed: 0 to 50.
void updateYearsToRet(assessment::NARetirement& needs);

/// Sums of the five capital and of the five expense lines, rand; of the policies' line whole rand alone.
double totalCapital(const assessment::NARetirement& needs);
double totalExpenses(const assessment::NARetirement& needs);

/// The years asked for as the analysis counts them, at most 50.
double yearsAsked(const assessment::NARetirement& needs);

/// A line of the amortisation, on screen and in the report.
struct RetirementYear {
    double age = 0; ///< at the start of the year
    double capital = 0, interest = 0, available = 0, required = 0;
};

/// The years from retirement that the amortisation shows: those covered and the one after, at most 50, and no more than
/// one beyond the years asked for.
std::vector<RetirementYear> retirementYears(const assessment::NARetirement& needs, const RetirementAnalysis& analysis);

/// Points of the graph: the years covered, and where all 50 are, the years asked for.
int graphPoints(const assessment::NARetirement& needs, const RetirementAnalysis& analysis);

} // namespace analyses
