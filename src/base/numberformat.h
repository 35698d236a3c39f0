#pragma once

#include <string>
#include <string_view>

namespace base {

/// A number by a mask of `#`, `0`, a blank and `.`: "# ### ### ###.00", "### ### ###", "0.000", "##".
///
/// The digits after the point say to how many places it is rounded (half to even): `0` prints always, `#` only up to
/// the last digit that is not 0. A `0` before the point forces a digit there; without one 0.5 prints ".50" and a mask
/// with no place after the point prints nothing for 0. A blank among the digits groups them in threes, without limit.
/// Other characters at the mask's two ends print as they are, and a minus stands before them: "R # ##0" prints "-R
/// 250". A `%` right behind the digits shows a fraction as percent: "#0.0%" prints 0.123 as "12.3%"; after a blank, as
/// in "0.0 %", it is a unit like any other and the number is percent already. What is not finite prints as nothing.
std::string formatNumber(double value, std::string_view mask);

/// Digits that a mask shows after the point, 0 to 15.
int placesOf(std::string_view mask);

} // namespace base
