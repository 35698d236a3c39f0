#pragma once

#include <algorithm>
#include <cmath>

namespace client {

/// Ages of a walk from the first to the last in steps of a year, both counted; 0 if it ends before it begins.
///
/// At most 999: no client is older, and a damaged file must not keep the program walking.
inline int yearsFromTo(double first, double last) {
    constexpr double most = 999;
    const double years = std::floor(last - first) + 1;
    return years >= 1 ? static_cast<int>(std::min(years, most)) : 0; // not a number: no walk
}

/// Age of who was born on a day number: whole years of 365.25 days, below 0 before the birth.
inline double ageOn(double today, double birthDate) { return std::floor((today - birthDate) / 365.25); }

inline constexpr double oldestAge = 120; ///< what no client is older than

} // namespace client
