#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace client {

/// The result of comparing an identity number with a date of birth.
struct IDCheck {
    std::string remark;            ///< one or two sentences for the user; empty if nothing is wrong
    std::optional<double> offered; ///< the date of birth, as a day number, to offer if the field is empty
};

/// Checks a South African identity number: YYMMDD, a serial number, the citizenship, and in the last place a check
/// digit by Luhn's formula.
///
/// Anything other than 13 digits (blanks are ignored) passes: it is another country's number or not complete yet. The
/// century is that of `birthDate` if this fits, otherwise the latest one in which the day is not after `today`. A
/// number whose check digit is wrong offers no date.
IDCheck checkIDNumber(std::string_view number, double birthDate, double today);

/// A remark on an unlikely date of birth: after today, or more than 120 years ago. Empty if there is none.
std::string birthRemark(double birthDate, double today);

} // namespace client
