#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// A figure read from typed text, or the reason why the text is no figure.
struct AmountReading {
    std::optional<double> figure; ///< always finite
    std::string why; ///< without a figure: the message for the user, which says what could be typed instead
};

/// Reads a figure as people type it, or paste it from a payslip, a spreadsheet or a web page. Ignores the locale.
///
/// places: digits after the decimal sign that the field shows, at least 0; they decide how a single comma is read.
///
/// - Blanks of any width, apostrophes and one R or % at either end are ignored. Empty text is 0. A sign (+, - or a
///   printed minus) may stand first, before the R or after it.
/// - If both comma and point occur, the last one is the decimal sign: "1,250,000.50", "1.250.000,50".
/// - If only one of them occurs, and more than once, it separates thousands: "1,250,000".
/// - A single comma separates thousands if one to three digits (other than a lone 0) stand before it and three after
///   it, and the field shows fewer than three places: "6,000" rand is 6000, "6,125" percent is 6.125.
/// - Any other comma is the decimal sign, and so is every single point: "12,5", "0,125", "1.250" is 1.25.
/// - Text that begins with = is a sum of + - * / and brackets, calculated in double without any rounding.
///
/// Refused, since the meaning is not certain: thousands that are not in threes ("1.2.3"), several lines or cells,
/// letters ("1e6" too), an operator without =, % in a sum, division by 0, and a text of more than 200 characters.
AmountReading readAmount(std::string_view typed, int places);

} // namespace base
