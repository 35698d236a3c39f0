#pragma once

#include <array>

/// Taxes an income by a scale of brackets. Amounts are rand a year and rates percent, unless a line says otherwise.
namespace finance {

/// One bracket of an income tax scale: incomes above `over`, up to and including `upTo`.
struct Bracket {
    double over;
    double upTo;
    double taxOnOver; ///< tax on an income of exactly `over`
    double rate;      ///< on the part of the income above `over`
};
using IncomeScale = std::array<Bracket, 7>;

/// The top of each scale's last bracket. An income above it is still taxed by that bracket.
inline constexpr double topOfScale = 9999999999;

/// What is deducted from a person's tax.
struct Rebates {
    double primary = 0;
    double from65 = 0; ///< in addition to the primary one, at ages from 65 to 74
    double from75 = 0; ///< in addition to the primary one, from 75 on, in place of the one from 65

    /// Primary rebate plus the one for the age (years, may be a fraction): 64.99 is still below 65.
    constexpr double at(double age) const {
        if (age >= 75) return primary + from75;
        if (age >= 65) return primary + from65;
        return primary;
    }
};

/// How a scale taxes one income: the bracket that applies, the tax and its two parts.
struct ScaleTax {
    double lowerLimit = 0;
    double upperLimit = 0;
    double rate = 0; ///< percent
    double taxOnLowerLimit = 0;
    double portion = 0; ///< tax on the part of the income above the lower limit
    double tax = 0;     ///< sum of both parts, never rounded
};

/// Taxes an income. An income exactly on a limit is taxed in the bracket below it, one above the last limit in the last
/// bracket, a negative one in the first, with a negative tax.
ScaleTax taxOn(const IncomeScale& scale, double income);

} // namespace finance
