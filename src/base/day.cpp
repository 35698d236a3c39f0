#include "base/day.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

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

/// The groups of digits between separators of one kind, with or without blanks around them; nothing for any other text.
std::optional<std::vector<std::string_view>> digitGroups(std::string_view text) {
    constexpr std::string_view digits = "0123456789";
    std::vector<std::string_view> groups;
    while (true) {
        const auto end = std::min(text.find_first_not_of(digits), text.size());
        if (end == 0) return std::nullopt;
        groups.push_back(text.substr(0, end));
        text.remove_prefix(end);
        if (text.empty()) return groups;
        const auto next = std::min(text.find_first_of(digits), text.size());
        const std::string separator = trim(text.substr(0, next));
        if (separator.size() > 1 || std::string_view("/-.").find(separator) == std::string_view::npos)
            return std::nullopt;
        text.remove_prefix(next);
    }
}

std::optional<double> dateOf(std::string_view year, std::string_view month, std::string_view day) {
    constexpr int firstYearOfThe1900s = 30; // two-digit years from here on are 19xx
    auto number = wholeNumber(year);
    if (!number || month.size() > 2 || day.size() > 2) return std::nullopt;
    if (year.size() == 2)
        *number += *number >= firstYearOfThe1900s ? 1900 : 2000;
    else if (year.size() != 4)
        return std::nullopt;
    return dayNumber(*number, wholeNumber(month).value_or(0), wholeNumber(day).value_or(0));
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

std::optional<double> parseDate(std::string_view typed, std::optional<int> thisYear) {
    const std::string text = trim(typed);
    const auto parts = digitGroups(text);
    if (!parts) return std::nullopt;
    const auto& group = *parts;
    constexpr std::size_t dayAndMonth = 4; // digits
    if (group.size() == 1 && (group[0].size() == dayAndMonth + 2 || group[0].size() == dayAndMonth + 4))
        return dateOf(group[0].substr(dayAndMonth), group[0].substr(2, 2), group[0].substr(0, 2));
    if (group.size() == 2 && thisYear) return dateOf(std::to_string(*thisYear), group[1], group[0]);
    if (group.size() != 3) return std::nullopt;
    const bool yearFirst = group[0].size() == 4;
    return yearFirst ? dateOf(group[0], group[1], group[2]) : dateOf(group[2], group[1], group[0]);
}

} // namespace base
