#pragma once

#include <array>
#include <vector>

namespace analyses {

/// The last year that a needs analysis looks at; it can say of 50 years that the capital lasts.
inline constexpr int lastYear = 51;
inline constexpr int mostYears = 50;

/// Rates that a needs analysis reckons with at most, percent a year; those above are corrected without a word.
inline constexpr double highestInflation = 30, highestBankInvest = 50;

/// Figures by year, 1 to 51; element 0 is unused.
using Yearly = std::array<double, lastYear + 1>;

/// What comes in and goes out year by year whatever the capital: worked out once, then run with any number of capitals.
struct YearlyFlows {
    Yearly MonthlyRequiredByYear{}; ///< rand a month
    Yearly RequiredByYear{};        ///< rand a year
    Yearly AvailableByYear{};       ///< rand a year
    Yearly IncomeRA{};              ///< what of the income available is itemised, rand a month
    Yearly paidOut{};               ///< policies that pay out in the year: they earn its interest
    Yearly sold{};                  ///< what is sold in the year: it earns interest from the next one on
};

/// How a capital fares under such flows.
struct YearRun {
    Yearly CapitalByYear{};  ///< at the start of the year, rand
    Yearly InterestByYear{}; ///< on it in the year
    int YearsCovered = 1;    ///< years that it lasts, 1 to 50; the year after it is the last one filled in
};

/// Runs a capital from year 1 until a year needs more than capital, interest and income together, or year 51 is
/// reached. percent: return a year. The first year's interest alone is cut down to whole rand.
YearRun projectCapital(const YearlyFlows& flows, double capital, double percent);

/// Years as an analysis counts them: whole, ties to even, 0 to 50.
int wholeYears(double years);

/// A line of the amortisation, on screen and in the report.
struct ShownYear {
    double number = 0; ///< of the year, or the age at its start
    double capital = 0, interest = 0, available = 0, required = 0;
};

/// The years that the amortisation shows: those covered and the one after, at most 50, and no more than one beyond the
/// years asked for. `first` is the number of the first.
std::vector<ShownYear> shownYears(const YearlyFlows& flows, const YearRun& run, double asked, double first);

/// Points of the graph: the years covered, and where all 50 are, the years asked for.
int graphPoints(const YearRun& run, double asked);

} // namespace analyses
