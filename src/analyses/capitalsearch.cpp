#include "analyses/capitalsearch.h"

#include <algorithm>
#include <cmath>

namespace analyses {

namespace {

/// The number of additions of `taken` that leave x within its power of two, including the power's upper end.
double stepsWithin(double x, double taken) {
    int exponent = 0;
    std::frexp(x, &exponent);
    const double top = std::ldexp(1.0, exponent);
    const bool grows = (x > 0) == (taken > 0);
    const double room = grows ? top - std::fabs(x) : std::fabs(x) - top / 2;
    const double size = std::fabs(taken);
    double steps = std::floor(room / size);
    if (steps * size > room) --steps; // the quotient was rounded up
    return std::max(steps, 0.0);
}

/// The first of the steps 1 to `most` at which `holds` is true; nothing if it is false at all of them.
///
/// Once true, holds must stay true: it is called at steps 1, 2, 4, ... and then between the last two.
std::optional<std::int64_t> firstStep(std::int64_t most, const std::function<bool(std::int64_t)>& holds) {
    std::int64_t fails = 0;
    std::int64_t tried = std::min<std::int64_t>(1, most);
    while (tried > fails && !holds(tried)) {
        fails = tried;
        tried = tried > most / 2 ? most : tried * 2;
    }
    if (tried <= fails) return {};
    while (tried - fails > 1) {
        const std::int64_t middle = fails + (tried - fails) / 2;
        (holds(middle) ? tried : fails) = middle;
    }
    return tried;
}

/// The number of steps of this size from a capital past another; 0 if the other lies in the opposite direction.
std::int64_t stepsPast(double from, double to, double step) {
    constexpr double most = 1e18; // larger counts can't change the figure
    const double steps = std::floor((to - from) / step) + 1;
    return steps >= 1 ? static_cast<std::int64_t>(std::min(steps, most)) : 0;
}

} // namespace

double stepped(double start, double step, std::int64_t steps) {
    double x = start;
    while (steps > 0) {
        x += step; // adding the first step shows how ties round; it may also reach another power of two
        --steps;
        const double taken = (x + step) - x;
        if (taken == 0 || !std::isfinite(taken)) return x; // the step is too small to change x
        const double leap = std::min(static_cast<double>(steps), stepsWithin(x, taken));
        x += leap * taken;
        steps -= static_cast<std::int64_t>(leap);
    }
    return x;
}

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
