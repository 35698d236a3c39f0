#include "analyses/education.h"
#include "bench.h"

namespace {

/// Ten years at 30 % inflation, 25 years from now and without interest: the answer is some 300 million steps of R100
/// away. The cost has no limit of its own; a larger one takes no longer.
double solveWorst() {
    assessment::NAEducation needs{1000000, 30, 25, 10, 0};
    return bench::milliseconds([&] { bench::keep(analyses::NAEdCalc(needs).CapitalTried); });
}

const bench::Register worst({"education capital, worst legal figures", "ms", {}, solveWorst, 16});

} // namespace
