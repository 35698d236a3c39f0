#include "bench.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace bench {

std::vector<Bench>& registry() {
    static std::vector<Bench> benches;
    return benches;
}

} // namespace bench

namespace {

struct Measured {
    double floor = std::numeric_limits<double>::infinity();
    double ours = std::numeric_limits<double>::infinity();
};

/// The best of some rounds, floor and ours by turns, so that a busy machine slows both alike.
Measured measure(const bench::Bench& bench) {
    Measured best;
    for (int round = 0; round < bench.rounds; ++round) {
        if (bench.floor) best.floor = std::min(best.floor, bench.floor());
        best.ours = std::min(best.ours, bench.ours());
    }
    return best;
}

/// Prints the line; true if the goal is met.
bool report(const bench::Bench& bench) {
    const Measured m = measure(bench);
    const char* unit = bench.unit.c_str();
    if (!bench.floor) {
        const bool met = m.ours <= bench.goal;
        std::printf("| %s | | %.4g %s | | at most %.4g %s | %s |\n", bench.name.c_str(), m.ours, unit, bench.goal, unit,
                    met ? "met" : "**missed**");
        return met;
    }
    const double ratio = m.ours / m.floor;
    const bool met = ratio <= bench.goal;
    std::printf("| %s | %.4g %s | %.4g %s | %.2f | at most %.4g times | %s |\n", bench.name.c_str(), m.floor, unit,
                m.ours, unit, ratio, bench.goal, met ? "met" : "**missed**");
    return met;
}

} // namespace

int main() {
    std::puts("| What | Floor | Ours | Ratio | Goal | |\n|---|---|---|---|---|---|");
    bool allMet = true;
    for (const bench::Bench& bench : bench::registry()) {
        allMet = report(bench) && allMet;
        std::fflush(stdout);
    }
    return allMet ? 0 : 1;
}
