#include "calculators/centsearch.h"

#include <cmath>

namespace calculators {

namespace {

constexpr double cent = 0.01;

/// A run of evenly spaced sums: sum + step, sum + 2 step, ... up to `count` of them.
struct EvenStretch {
    double step = 0;
    double count = 0;
};

/// How many of the next sums, each a cent more, are evenly spaced.
///
/// Between two powers of two doubles are evenly spaced, so each added cent is rounded to the same number of spacings
/// and the sums can be computed without adding. Since the last bit of the cent is set, from 1 up a cent is never
/// exactly half a spacing, which would round up and down in turn. The last few sums before a power of two are left to
/// plain addition, and so are the few below 1.
EvenStretch evenStretch(double sum) {
    const double size = std::fabs(sum);
    if (size < 1) return {};
    const double lower = std::ldexp(1, std::ilogb(size));
    const double room = sum > 0 ? lower - (size - lower) : size - lower;
    const double step = (sum + cent) - sum;
    return step > 0 ? EvenStretch{step, std::floor(room / step) - 2} : EvenStretch{};
}

/// The first sum of a run that `reached` accepts. It must accept the last one.
double firstWithin(double sum, const EvenStretch& stretch, const std::function<bool(double)>& reached) {
    double refused = 0, accepted = stretch.count;
    while (accepted - refused > 1) {
        const double middle = std::floor((refused + accepted) / 2);
        (reached(sum + middle * stretch.step) ? accepted : refused) = middle;
    }
    return sum + accepted * stretch.step;
}

} // namespace

std::optional<double> firstCentThat(double amount, const std::function<bool(double)>& reached) {
    for (double sum = amount;;) {
        const double next = sum + cent;
        if (reached(next)) return next;
        if (next == sum || std::isnan(next)) return std::nullopt;
        sum = next;
        const EvenStretch stretch = evenStretch(sum);
        if (stretch.count < 1) continue;
        const double last = sum + stretch.count * stretch.step;
        if (reached(last)) return firstWithin(sum, stretch, reached);
        sum = last;
    }
}

} // namespace calculators
