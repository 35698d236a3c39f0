#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// Day numbers count days from day 0, 30 December 1899. They are doubles, whole for a date without a time.

/// The value of an empty date field on an open screen.
inline constexpr double NoDate = -693959;
/// "No date" in the record and in the client database: 1 January 1800.
inline constexpr double blankDate = -36522;

struct CalendarDate {
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Day number of a date of the Gregorian calendar; nothing if there is no such date. Years 1 to 9999.
std::optional<double> dayNumber(int year, int month, int day);

/// Calendar date of a day number; a time of day is ignored (rounded down). Nothing outside the years 1 to 9999.
std::optional<CalendarDate> calendarDate(double dayNumber);

/// dd/mm/yyyy; empty for a day number that has no calendar date.
std::string formatDate(double dayNumber);

/// True if a date field shows this day number; otherwise the field is blank.
constexpr bool isShownOnScreen(double dayNumber) { return dayNumber > blankDate; }

/// dd/mm/yyyy as reports print it; one blank where there is no date. Its limit is a day later than the screens'.
std::string reportDate(double dayNumber);

/// A date as typed: d/m/yyyy with `/`, `-`, `.` or a blank between, ddmmyyyy, ddmmyy, or yyyy-mm-dd with the year
/// first.
///
/// Day and month are never swapped. Two-digit years 30 to 99 are 19xx and 00 to 29 are 20xx, which suits both clients'
/// dates of birth and coming reviews. A day and month alone are taken in `thisYear`; without `thisYear` they are no
/// date. Nothing if the text is no date.
std::optional<double> parseDate(std::string_view typed, std::optional<int> thisYear = {});

} // namespace base
