#include "analyses/capitalsearch.h"

#include <algorithm>
#include <cmath>

#include "finance/stepping.h"

namespace analyses {

using finance::firstStep;
using finance::stepped;

namespace {

/// The number of steps of this size from a capital past another; 0 if the other lies in the opposite direction.
std::int64_t stepsPast(double from, double to, double step) {
    constexpr double most = 1e18; // larger counts can't change the figure
    const double steps = std::floor((to - from) / step) + 1;
    return steps >= 1 ? static_cast<std::int64_t>(std::min(steps, most)) : 0;
}

} // namespace

CapitalFound searchDown(double start, const CapitalSteps& steps, const CapitalTest& covers) {
    const auto capital = [&](std::int64_t step) { return stepped(start, -steps.coarse, step); };
    const auto ends = [&](std::int64_t step) { return capital(step) < 0 || !covers(capital(step)); };
    const auto step = firstStep(stepsPast(-start, 0, steps.coarse) + 1, ends);
    const double last = capital(step.value_or(0));
    if (!step || !(last >= 0)) return {{}, {}, last};
    return {last + steps.coarse, last, last};
}

CapitalFound searchUp(double start, const CapitalSteps& steps, const CapitalTest& covers) {
    const auto capital = [&](std::int64_t step) { return stepped(start, steps.coarse, step); };
    const std::int64_t most = stepsPast(start, steps.highest, steps.coarse);
    const auto step = firstStep(most, [&](std::int64_t number) { return covers(capital(number)); });
    if (!step || capital(*step) > steps.highest) return {{}, capital(most), capital(most)};
    if (steps.fine == 0) return {capital(*step), capital(*step - 1), capital(*step)};
    double failed = capital(*step) - steps.coarse;
    double tried = failed + steps.fine;
    for (int pass = 1; pass < steps.mostFinePasses && !covers(tried); ++pass) {
        failed = tried;
        tried += steps.fine;
    }
    return {tried, failed, tried};
}

} // namespace analyses
