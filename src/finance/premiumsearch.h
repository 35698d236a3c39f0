#pragma once

#include <functional>

namespace finance {

/// The highest premium, rand a month, that a search tries.
inline constexpr double highestPremium = 1e15;

/// The monthly premium that reaches a maturity value.
struct PremiumFound {
    enum class Outcome {
        notAsked, ///< a figure is missing: nothing was searched
        above,    ///< `premium` is the first whole rand whose value exceeds the target
        exact,    ///< the value of `premium`, a try on the way, is the target to the last bit: the search ended there
        never     ///< no premium up to the highest one reaches it
    };
    Outcome outcome = Outcome::notAsked;
    double premium = 0;    ///< whole rand a month; 0 if nothing was found
    double value = 0;      ///< what it grows to, rand
    double valueBelow = 0; ///< what a premium one rand lower grows to, rand
};

/// Finds the premium in steps of 20000, 2000, 1000, 100, 10 and 1 rand: each step is added until the value exceeds the
/// target, then taken off again, except the last one. A try whose value is the target exactly ends the search.
///
/// endValue: rand that a premium grows to. It must rise with the premium once it has reached the target, as it does
/// while rates are percentages and fees are not negative. The search then gives the stepped answer to the rand: it
/// halves intervals to find the multiple of 20000, and takes the later steps one by one. A value that is not a number
/// counts as below.
PremiumFound premiumFor(double target, const std::function<double(double premium)>& endValue);

} // namespace finance
