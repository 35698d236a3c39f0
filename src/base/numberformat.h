#pragma once

#include <string>
#include <string_view>

namespace base {

/// Formats a number by a mask of `#`, `0`, blanks and `.`: "# ### ### ###.00", "### ### ###", "0.000", "##".
///
/// The digits after the point set the decimal places (rounded half to even): `0` always prints, `#` only up to the last
/// digit that is not 0. A `0` before the point forces a digit there; without it 0.5 prints ".50", and a mask without
/// decimal places prints nothing for 0. A blank among the digits groups all digits in threes. Other characters at
/// either end of the mask print as they are, after any minus: "R # ##0" prints "-R 250". A `%` right after the digits
/// shows a fraction as percent: "#0.0%" prints 0.123 as "12.3%". After a blank, as in "0.0 %", it is a plain unit and
/// the number is already in percent. A number that is not finite prints as nothing.
std::string formatNumber(double value, std::string_view mask);

/// A figure with all its places and no grouping, as in a sentence: "0.5", "12".
std::string plainNumber(double value);

/// Digits that a mask shows after the point, 0 to 15.
int placesOf(std::string_view mask);

} // namespace base
