#pragma once

#include <array>
#include <vector>

namespace analyses {

/// The last year that is run. A capital can then be said to last up to 50 years.
inline constexpr int lastYear = 51;
inline constexpr int mostYears = 50;

/// The highest rates that a needs analysis uses, percent a year; higher ones are silently reduced to them.
inline constexpr double highestInflation = 30, highestBankInvest = 50;

/// Figures by year, 1 to 51; element 0 is unused.
using Yearly = std::array<double, lastYear + 1>;

/// Income and spending by year, which do not depend on the capital: calculated once, then run with any number of
/// capitals.
struct YearlyFlows {
    Yearly MonthlyRequiredByYear{}; ///< rand a month
    Yearly RequiredByYear{};        ///< rand a year
    Yearly AvailableByYear{};       ///< rand a year
    Yearly IncomeRA{};              ///< the itemised part of the available income, rand a month
    Yearly paidOut{};               ///< payouts of policies in the year; they earn that year's interest
    Yearly sold{};                  ///< sales in the year; they earn interest from the next year on
};

/// The course of a capital under such flows.
struct YearRun {
    Yearly CapitalByYear{};  ///< at the start of the year, rand
    Yearly InterestByYear{}; ///< earned on it in the year
    int YearsCovered = 1;    ///< years that it lasts, 1 to 50; the arrays are filled to the year after
};

/// Runs a capital from year 1 until a year needs more than capital, interest and income together, or until year 51.
/// percent: return a year. Only the first year's interest is truncated to whole rand.
YearRun projectCapital(const YearlyFlows& flows, double capital, double percent);

/// A number of years as an analysis counts it: whole, ties to even, 0 to 50.
int wholeYears(double years);

/// A line of the amortisation, on screen and in the report.
struct ShownYear {
    double number = 0; ///< of the year, or the age at its start
    double capital = 0, interest = 0, available = 0, required = 0;
};

/// The years that the amortisation shows: the years covered and the one after, at most 50, and at most one more than
/// the years asked for. `first` is the number of the first line.
std::vector<ShownYear> shownYears(const YearlyFlows& flows, const YearRun& run, double asked, double first);

/// Number of points of the graph: the years covered; if these are all 50, the years asked for.
int graphPoints(const YearRun& run, double asked);

} // namespace analyses
