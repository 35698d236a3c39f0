#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// Day numbers count days from day 0, 30 December 1899; they are kept as doubles, whole for a date without a time.

/// What an empty date field gives while a screen is open.
inline constexpr double NoDate = -693959;
/// No date in the record and in the client database: 1 January 1800.
inline constexpr double blankDate = -36522;

struct CalendarDate {
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Day number of a date of the Gregorian calendar; nothing if there is no such date. Years 1 to 9999.
std::optional<double> dayNumber(int year, int month, int day);

/// Calendar date of a day number, a time of day dropped downwards. Nothing outside the years 1 to 9999.
std::optional<CalendarDate> calendarDate(double dayNumber);

/// dd/mm/yyyy; empty for a day number that has no calendar date.
std::string formatDate(double dayNumber);

/// True if a date field shows this day number; otherwise the field is blank.
constexpr bool isShownOnScreen(double dayNumber) { return dayNumber > blankDate; }

/// dd/mm/yyyy as reports print it; one blank where there is no date. The limit lies a day above the screens' own.
std::string reportDate(double dayNumber);

/// A date as typed: d/m/yyyy with `/`, `-`, `.` or a blank between, ddmmyyyy, ddmmyy, or yyyy-mm-dd with the year
/// first.
///
/// Day and month are never swapped. Of two digits 30 to 99 are a year 19xx and 00 to 29 one 20xx: clients' dates of
/// birth lie as far back as policies and reviews lie ahead. A day and month alone are of `thisYear`; without it they
/// are no date. Nothing if the text is none.
std::optional<double> parseDate(std::string_view typed, std::optional<int> thisYear = {});

} // namespace base
