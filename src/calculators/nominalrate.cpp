#include "calculators/nominalrate.h"

#include <cmath>

#include "base/rounding.h"

namespace calculators {

namespace {

constexpr double lowest = 1.05, highest = 99;

double yearOfGrowth(double nominal) {
    double value = 100;
    for (int month = 0; month < 12; ++month)
        value += (nominal / 12) * value / 100;
    return value;
}

/// `rounded` has two decimals.
double stepDown(double rounded) {
    const double target = 100 + rounded;
    const double targetCents = 10000 + base::roundHalfEven(rounded * 100);
    // The steps before can't meet the target. They are still taken one by one, since each adds its rounding error.
    const double near = 1200 * (std::pow(1 + rounded / 100, 1.0 / 12) - 1) + 0.05;
    std::optional<double> inCents, below;
    for (double n = rounded - 0.01;; n -= 0.01) {
        if (n > near) continue;
        const double value = yearOfGrowth(n);
        if (base::roundHalfEven(value - 0.001, 2) <= target && target <= base::roundHalfEven(value + 0.001, 2))
            return n;
        const double low = base::roundHalfEven((value - 0.001) * 100);
        const double high = base::roundHalfEven((value + 0.001) * 100);
        if (!inCents && low <= targetCents && targetCents <= high) inCents = n;
        if (!below && high < targetCents) below = n;
        if (value < target - 0.05) return inCents ? *inCents : *below;
    }
}

} // namespace

std::optional<double> nominalRate(double effective) {
    if (!(effective > lowest && effective <= highest)) return {};
    const double rounded = base::roundHalfEven(effective, 2);
    // A month-by-month run asks for the same rate hundreds of times.
    thread_local double keptFor = 0, kept = 0;
    if (rounded != keptFor) {
        kept = base::roundHalfEven(stepDown(rounded), 2);
        keptFor = rounded;
    }
    return kept;
}

void EffNomCalc(double rate, double& NomRate) {
    if (const auto nominal = nominalRate(rate)) NomRate = *nominal;
    if (rate > 0 && rate < lowest) NomRate = rate - 0.01;
}

} // namespace calculators
