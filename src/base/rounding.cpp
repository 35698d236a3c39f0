#include "base/rounding.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>

namespace base {

double roundHalfEven(double x) { return std::nearbyint(x); }

double roundHalfEven(double x, int decimals) {
    static constexpr std::array<double, 16> powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    assert(decimals >= 0 && decimals <= 15);
    constexpr double noFraction = 4503599627370496.0; // 2^52: from here on a double is whole
    if (!(std::fabs(x) < noFraction)) return x;
    const double scale = powers[static_cast<std::size_t>(decimals)];
    return std::nearbyint(x * scale) / scale;
}

double shortestDecimal(float x) {
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), x);
    auto decimal = static_cast<double>(x);
    std::from_chars(digits.data(), written.ptr, decimal);
    return decimal;
}

} // namespace base
