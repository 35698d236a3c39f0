#pragma once

#include <optional>
#include <vector>

namespace calculators {

/// Money that goes into an investment and is drawn from it at the beginning of each month: rand.
struct MoneyStream {
    double lump = 0;
    std::vector<double> paid, drawn; ///< by month, equally many
};

/// What the stream is worth after its last month at a rate in percent a year, compounded monthly: rand. Each month the
/// payment comes first, then the income, then the interest on the balance.
double valueAt(const MoneyStream& stream, double rate);

/// The rate of return that a search found: percent a year.
struct FoundReturn {
    double rate = 0;      ///< the first of the rates whole + 0.001, whole + 0.001 + 0.001, ... that reaches the target
    double wholeRate = 0; ///< one below the first whole rate that reaches it
};

/// Searches for the rate at which the stream becomes worth `target` (rand) or more: in steps of 1 from `start`, a whole
/// number from -999, which is itself not tried, then in steps of 0.001 from the last step but one. The rate keeps the
/// rounding errors of the steps added up. Nothing if the whole rates up to `highestReturn` do not reach the target.
///
/// Gives what taking each step gives, also where the value falls while the rate rises, as it does for a stream in debt.
/// Ranges of rates in which no value can reach the target are skipped.
std::optional<FoundReturn> findReturn(const MoneyStream& stream, double start, double target);

/// The highest rate that the search tries, percent a year.
inline constexpr double highestReturn = 100000;

} // namespace calculators
