#pragma once

#include <algorithm>
#include <cmath>

namespace client {

/// Number of ages from the first to the last in steps of a year, both included; 0 if the last is below the first.
///
/// At most 999: no client is older, and a damaged file must not make a loop run for ever.
inline int yearsFromTo(double first, double last) {
    constexpr double most = 999;
    const double years = std::floor(last - first) + 1;
    return years >= 1 ? static_cast<int>(std::min(years, most)) : 0; // NaN counts as 0
}

/// Age of a person born on a day number: whole years of 365.25 days, negative before the birth.
inline double ageOn(double today, double birthDate) { return std::floor((today - birthDate) / 365.25); }

inline constexpr double oldestAge = 120; ///< no client is older

} // namespace client
