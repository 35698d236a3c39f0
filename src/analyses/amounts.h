#pragma once

#include <string>

#include "base/numberformat.h"

namespace analyses {

/// How the needs analyses show an amount on screen, in sentences and on paper: whole rand, 0 as an empty text.
inline constexpr const char* amountMask = "### ### ###";

inline std::string amountText(double rand) { return base::formatNumber(rand, amountMask); }

} // namespace analyses
