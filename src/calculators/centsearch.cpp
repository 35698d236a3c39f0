#include "calculators/centsearch.h"

#include <cmath>

namespace calculators {

namespace {

constexpr double cent = 0.01;

/// Sums that lie evenly: sum + step, sum + 2 step, ... up to `count` of them.
struct EvenStretch {
    double step = 0;
    double count = 0;
};

/// How far the sums of added cents go on in even steps from `sum`.
///
/// Between two powers of two doubles are evenly spaced, so each added cent is rounded to the same number of spacings
/// and the sums can be counted instead of added. The cent's last bit is set, so from 1 up its part of a spacing is
/// never an exact half, which would be rounded by turns. The last few sums before the power of two are left to plain
/// additions; so are all sums below 1, of which there are few.
EvenStretch evenStretch(double sum) {
    const double size = std::fabs(sum);
    if (size < 1) return {};
    const double lower = std::ldexp(1, std::ilogb(size));
    const double room = sum > 0 ? lower - (size - lower) : size - lower;
    const double step = (sum + cent) - sum;
    return step > 0 ? EvenStretch{step, std::floor(room / step) - 2} : EvenStretch{};
}

/// The first sum of a stretch that `reached` accepts, knowing that it accepts the last.
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
