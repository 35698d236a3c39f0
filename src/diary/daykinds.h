#pragma once

#include <vector>

namespace diary {

/// What the calendar shows of a day. The numbers are the kinds of the calendar grid.
enum class DayKind {
    plain = 0,
    weekEnd = 1,
    holiday = 2,
    dayAfterSunday = 3, ///< the day after a holiday that falls on a Sunday
    appointment = 4,
    birthday = 5,
};

/// The kinds of the days of a month, the first at index 0, without diary entries. Years 1 to 9999.
///
/// The table of public holidays is the same every year (Public Holidays Act 36 of 1994): also 13 and 16 April, the
/// Easter days of one year, which do not move. A holiday on a Sunday makes the next day kind 3, even if that day is a
/// holiday itself.
std::vector<DayKind> dayKinds(int year, int month);

/// The months shown by a calendar of several: `months` later, in years 1 to 9999.
struct Month {
    int year = 0, month = 0;
    bool operator==(const Month&) const = default;
};
Month later(Month from, int months);

/// Day numbers of a month's first and last day.
struct MonthDays {
    double first = 0, last = 0;
};
MonthDays daysOf(Month month);

/// Day of the week, 0 for Sunday to 6 for Saturday.
int weekDay(double dayNumber);

} // namespace diary
