#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// A number by a mask of `#`, `0`, a blank and `.`: "# ### ### ###.00", "### ### ###", "0.000", "##".
///
/// The digits after the point say to how many places it is rounded (half to even): `0` prints always, `#` only up to
/// the last digit that is not 0. A `0` before the point forces a digit there; without one 0.5 prints ".50" and a mask
/// with no place after the point prints nothing for 0. A blank among the digits groups them in threes, without limit.
/// Other characters at the mask's two ends print as they are. What is not finite prints as nothing.
std::string formatNumber(double value, std::string_view mask);

/// A number as typed, whatever the system's locale: `.` or `,` is the decimal sign, blanks (also unbreakable ones)
/// may stand anywhere between digits, one sign may lead. Nothing if it is no number; empty text is no number.
std::optional<double> parseNumber(std::string_view typed);

/// The leading number of a text, 0 if there is none: "65 years" gives 65.
double Val(std::string_view text);

} // namespace base
