#include "base/day.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "base/text.h"

namespace base {

namespace {
using namespace std::chrono;
constexpr sys_days dayZero = 1899y / December / 30;
constexpr double firstDay = static_cast<double>((sys_days{1y / January / 1} - dayZero).count());
constexpr double lastDay = static_cast<double>((sys_days{9999y / December / 31} - dayZero).count());
constexpr double lastUnprintedDay = -36521;

std::optional<int> wholeNumber(std::string_view digits) {
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || number < 0) return std::nullopt;
    return number;
}
} // namespace

std::optional<double> dayNumber(int year, int month, int day) {
    if (year < 1 || year > 9999 || month < 1 || day < 1) return std::nullopt;
    const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok()) return std::nullopt;
    return static_cast<double>((sys_days{date} - dayZero).count());
}

std::optional<CalendarDate> calendarDate(double dayNumber) {
    const double whole = std::floor(dayNumber);
    if (!(whole >= firstDay && whole <= lastDay)) return std::nullopt;
    const year_month_day date{dayZero + days{static_cast<int>(whole)}};
    return CalendarDate{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::string formatDate(double dayNumber) {
    const auto date = calendarDate(dayNumber);
    if (!date) return {};
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%02d/%02d/%04d", date->day, date->month, date->year);
    return text.data();
}

std::string reportDate(double dayNumber) {
    return dayNumber > lastUnprintedDay ? formatDate(dayNumber) : std::string(" ");
}

std::optional<double> parseDate(std::string_view typed) {
    const std::string text = trim(typed);
    const auto first = text.find_first_of("/-.");
    if (first == std::string::npos) return std::nullopt;
    const auto second = text.find_first_of("/-.", first + 1);
    if (second == std::string::npos) return std::nullopt;
    const auto day = wholeNumber(std::string_view(text).substr(0, first));
    const auto month = wholeNumber(std::string_view(text).substr(first + 1, second - first - 1));
    const std::string_view yearDigits = std::string_view(text).substr(second + 1);
    auto year = wholeNumber(yearDigits);
    if (!day || !month || !year || *day > 31 || *month > 12) return std::nullopt;
    if (yearDigits.size() == 2)
        *year += *year >= 30 ? 1900 : 2000;
    else if (yearDigits.size() != 4)
        return std::nullopt;
    return dayNumber(*year, *month, *day);
}

} // namespace base
