#include "diary/daykinds.h"

#include <algorithm>
#include <cmath>

#include "base/day.h"

namespace diary {

namespace {

struct Holiday {
    int month, day;
};

// Public holidays, Public Holidays Act 36 of 1994. The table is the same in every year: 13 and 16 April, the Easter
// days of one year, stand in it as they are. That is meant.
constexpr Holiday holidays[] = {{1, 1},  {3, 21}, {4, 13}, {4, 16},  {4, 27},  {5, 1},
                                {6, 16}, {8, 9},  {9, 24}, {12, 16}, {12, 25}, {12, 26}};

} // namespace

int weekDay(double dayNumber) {
    // Day 0, 30 December 1899, was a Saturday.
    const auto day = static_cast<long>(std::floor(dayNumber));
    return static_cast<int>(((day + 6) % 7 + 7) % 7);
}

Month later(Month from, int months) {
    const int all = std::clamp(from.year * 12 + from.month - 1 + months, 12, 9999 * 12 + 11);
    return {all / 12, all % 12 + 1};
}

MonthDays daysOf(Month month) {
    const double first = base::dayNumber(month.year, month.month, 1).value_or(0);
    double last = first + 27;
    while (base::dayNumber(month.year, month.month, static_cast<int>(last - first) + 2))
        ++last;
    return {first, last};
}

std::vector<DayKind> dayKinds(int year, int month) {
    const MonthDays days = daysOf({year, month});
    std::vector<DayKind> kinds(static_cast<std::size_t>(days.last - days.first) + 1, DayKind::plain);
    for (std::size_t i = 0; i < kinds.size(); ++i)
        if (weekDay(days.first + static_cast<double>(i)) % 6 == 0) kinds[i] = DayKind::weekEnd;
    const auto eachHoliday = [&](auto use) {
        for (const Holiday& holiday : holidays)
            if (holiday.month == month) use(static_cast<std::size_t>(holiday.day) - 1);
    };
    // All holidays first: on a Sunday 25 December the 26th is kind 3, not the holiday that it is in the table.
    eachHoliday([&](std::size_t i) { kinds[i] = DayKind::holiday; });
    eachHoliday([&](std::size_t i) {
        if (weekDay(days.first + static_cast<double>(i)) == 0 && i + 1 < kinds.size())
            kinds[i + 1] = DayKind::dayAfterSunday;
    });
    return kinds;
}

} // namespace diary
