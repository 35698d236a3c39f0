#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace client {

/// What is to be said of an identity number beside a date of birth.
struct IDCheck {
    std::string remark;            ///< for the user, in one or two sentences; empty: nothing is amiss
    std::optional<double> offered; ///< a date of birth for the field that has none, as a day number
};

/// Checks a South African identity number: YYMMDD, a serial number, the citizenship, and in the last place a check
/// digit by Luhn's formula.
///
/// Anything but 13 digits, blanks aside, is another country's number or not all there yet, and passes. The century is
/// the one of `birthDate` where that fits, otherwise the last in which the day has come by `today`. A number whose
/// check digit is wrong offers no date.
IDCheck checkIDNumber(std::string_view number, double birthDate, double today);

/// What is odd in a date of birth: it lies after today, or more than 120 years back. Empty: nothing, or no date.
std::string birthRemark(double birthDate, double today);

} // namespace client
