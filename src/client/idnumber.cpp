#include "client/idnumber.h"

#include <algorithm>
#include <cctype>

#include "base/day.h"
#include "client/years.h"

namespace client {

namespace {

constexpr std::size_t length = 13;

/// Luhn's check: from the last digit backwards, every second digit is doubled and the digits of the result are added.
bool checkDigitFits(const std::string& digits) {
    int sum = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const int digit = digits[i] - '0';
        const bool isDoubled = (digits.size() - i) % 2 == 0;
        sum += isDoubled ? digit * 2 / 10 + digit * 2 % 10 : digit;
    }
    return sum % 10 == 0;
}

std::optional<double> birthDateOf(const std::string& digits, double birthDate, double today) {
    const auto part = [&](std::size_t at) { return std::stoi(digits.substr(at, 2)); };
    std::optional<double> latest;
    for (const int century : {2000, 1900}) {
        const auto day = base::dayNumber(century + part(0), part(2), part(4));
        if (day && *day == birthDate) return day;
        if (day && *day <= today && !latest) latest = day;
    }
    return latest;
}

} // namespace

IDCheck checkIDNumber(std::string_view number, double birthDate, double today) {
    std::string digits(number);
    std::erase(digits, ' ');
    const auto isDigit = [](unsigned char letter) { return std::isdigit(letter) != 0; };
    if (digits.size() != length || !std::all_of(digits.begin(), digits.end(), isDigit)) return {};

    IDCheck check;
    const bool fits = checkDigitFits(digits);
    const bool isBlank = !base::isShownOnScreen(birthDate);
    const auto born = birthDateOf(digits, birthDate, today);
    if (!fits) check.remark = "The check digit does not fit: please compare the ID number.";
    const auto say = [&check](const std::string& sentence) {
        check.remark += (check.remark.empty() ? "" : " ") + sentence;
    };
    if (!born) say("The ID number does not begin with a date of birth.");
    if (born && isBlank && fits) {
        check.offered = born;
        say("Born on " + base::formatDate(*born) + " by the ID number.");
    }
    if (born && !isBlank && birthDate != *born)
        say("By the ID number the date of birth is " + base::formatDate(*born) + ".");
    return check;
}

std::string birthRemark(double birthDate, double today) {
    if (!base::isShownOnScreen(birthDate)) return {};
    if (birthDate > today) return "Born in the future ?";
    return ageOn(today, birthDate) > oldestAge ? "More than 120 years old ?" : std::string();
}

} // namespace client
