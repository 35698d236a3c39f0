#pragma once

#include <array>

namespace assessment {

/// Lump sums taken from retirement funds, rand, by tax year of the field's name (2010 to 2027) and reason.
struct LumpSums {
    static constexpr int firstYear = 2010;
    static constexpr int years = 18;
    double RetireLumpSumBefore = 0;
    std::array<double, years> RRExGrtCTY0204{}; ///< resignation
    std::array<double, years> RetrenchmentLumps{};
    std::array<double, years> RetireDeathAfter{};
    double FstLumpTaken = 0; ///< 1 resignation, 2 retrenchment, 3 retirement or death; else none

    bool operator==(const LumpSums&) const = default;
};

} // namespace assessment
