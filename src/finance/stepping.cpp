#include "finance/stepping.h"

#include <algorithm>
#include <cmath>

namespace finance {

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

} // namespace

double stepped(double start, double step, std::int64_t steps) {
    double x = start;
    while (steps > 0) {
        x += step; // it may reach another power of two
        --steps;
        const double next = x + step;
        const double taken = next - x;
        if (taken == 0 || !std::isfinite(taken)) return x; // the step is too small to change x
        if ((next + step) - next != taken) continue;       // a step that ends halfway rounds to the even figure
        const double leap = std::min(static_cast<double>(steps), stepsWithin(x, taken));
        x += leap * taken;
        steps -= static_cast<std::int64_t>(leap);
    }
    return x;
}

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

} // namespace finance
