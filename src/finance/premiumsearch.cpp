#include "finance/premiumsearch.h"

#include <cmath>
#include <optional>

namespace finance {

namespace {

constexpr double firstStep = 20000;
constexpr double laterSteps[] = {2000, 1000, 100, 10, 1};

/// The least multiple of the first step that reaches the target; nothing if none up to the highest premium does.
std::optional<double> firstMultiple(double target, const std::function<double(double)>& endValue) {
    const auto reaches = [&](double steps) { return endValue(steps * firstStep) >= target; };
    const double most = std::floor(highestPremium / firstStep);
    double below = 0, above = 1;
    while (!reaches(above)) {
        if (above >= most) return {};
        below = above;
        above = std::fmin(2 * above, most);
    }
    while (above - below > 1) {
        const double middle = std::floor((below + above) / 2);
        (reaches(middle) ? above : below) = middle;
    }
    return above * firstStep;
}

} // namespace

PremiumFound premiumFor(double target, const std::function<double(double)>& endValue) {
    const auto answer = [&](PremiumFound::Outcome outcome, double premium) {
        return PremiumFound{outcome, premium, endValue(premium), endValue(premium - 1)};
    };
    const auto first = firstMultiple(target, endValue);
    if (!first) return PremiumFound{PremiumFound::Outcome::never};
    double premium = *first;
    if (endValue(premium) == target) return answer(PremiumFound::Outcome::exact, premium);
    double stepBefore = firstStep;
    for (const double step : laterSteps) {
        // A few steps at most: the premium that was left one step back exceeds the target.
        premium -= stepBefore;
        double value = 0;
        do {
            premium += step;
            value = endValue(premium);
            if (value == target) return answer(PremiumFound::Outcome::exact, premium);
        } while (!(value > target));
        stepBefore = step;
    }
    return answer(PremiumFound::Outcome::above, premium);
}

} // namespace finance
