#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// What a text comes to as a figure, or why it is none.
struct AmountReading {
    std::optional<double> figure; ///< always finite
    std::string why;              ///< where there is no figure: for the user, with what could be typed instead
};

/// A figure as people type it, or paste it from a payslip, a spreadsheet or a web page; the system's locale has no say.
///
/// places: digits after the decimal sign that the field shows, 0 and more; a single comma turns on it.
///
/// - Blanks of any width and apostrophes are passed over, and so is a R or % at one of the ends. Nothing but blanks
///   is 0. A sign (+, - or a printed minus) may lead, before the R or behind it.
/// - Of comma and point in one text the last is the decimal sign: "1,250,000.50", "1.250.000,50".
/// - The same one twice or more parts thousands: "1,250,000".
/// - A single comma parts thousands where one to three digits (not a lone 0) stand before it and three behind, in a
///   field of fewer than three places: "6,000" rand is 6000, "6,125" percent is 6.125.
/// - Otherwise a comma is the decimal sign, and a single point always is: "12,5", "0,125", "1.250" is 1.25.
/// - Text that begins with = is a sum of + - * / and brackets, worked out in double without any rounding.
///
/// Refused, since each has more than one meaning: thousands that are not in threes ("1.2.3"), several lines or cells,
/// letters ("1e6" too), an operator without =, % in a sum, division by 0, and a text of more than 200 characters.
AmountReading readAmount(std::string_view typed, int places);

} // namespace base
