#include "base/numberformat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/rounding.h"
#include "base/text.h"

namespace base {

namespace {

struct Mask {
    std::string_view before, after; ///< printed as they are
    std::size_t wholeDigits = 0;    ///< digits forced before the point
    std::size_t places = 0;         ///< digits at most after the point
    std::size_t forcedPlaces = 0;   ///< digits always printed after it
    bool point = false;
    bool grouped = false;
};

Mask readMask(std::string_view text) {
    Mask mask;
    const auto first = text.find_first_of("#0.");
    if (first == std::string_view::npos) return mask;
    const auto last = text.find_last_of("#0.");
    mask.before = text.substr(0, first);
    mask.after = text.substr(last + 1);
    for (const char c : text.substr(first, last - first + 1)) {
        if (c == '.') mask.point = true;
        if (c == ' ') mask.grouped = true;
        if (c == '0' && !mask.point) ++mask.wholeDigits;
        if (mask.point && (c == '0' || c == '#')) {
            ++mask.places;
            if (c == '0') mask.forcedPlaces = mask.places;
        }
    }
    return mask;
}

std::string groupedInThrees(const std::string& digits) {
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0) grouped += ' ';
        grouped += digits[i];
    }
    return grouped;
}

} // namespace

std::string formatNumber(double value, std::string_view maskText) {
    if (!std::isfinite(value)) return {};
    const Mask mask = readMask(maskText);
    const double rounded = roundHalfEven(value, static_cast<int>(std::min<std::size_t>(mask.places, 15)));
    std::array<char, 400> buffer{}; // the largest double has 309 digits before the point
    std::snprintf(buffer.data(), buffer.size(), "%.*f", static_cast<int>(mask.places), std::fabs(rounded));
    const std::string digits = buffer.data();
    const auto point = digits.find('.');
    std::string whole = digits.substr(0, point);
    std::string places = point == std::string::npos ? std::string() : digits.substr(point + 1);
    while (places.size() > mask.forcedPlaces && places.back() == '0')
        places.pop_back();
    if (whole == "0") whole.clear();
    if (whole.size() < mask.wholeDigits) whole.insert(0, mask.wholeDigits - whole.size(), '0');
    if (mask.grouped) whole = groupedInThrees(whole);
    std::string number = rounded < 0 ? "-" + whole : whole;
    if (mask.point && !(places.empty() && mask.forcedPlaces == 0)) number += "." + places;
    if (number.empty()) return {};
    return std::string(mask.before) + number + std::string(mask.after);
}

std::optional<double> parseNumber(std::string_view typed) {
    std::string plain;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const char c = typed[i];
        if (c == ' ' || c == '\t') continue;
        if (typed.substr(i, 2) == "\u00A0") {
            ++i;
            continue;
        }
        if (typed.substr(i, 3) == "\u202F") {
            i += 2;
            continue;
        }
        const bool sign = (c == '-' || c == '+') && plain.empty();
        if (!sign && c != '.' && c != ',' && (c < '0' || c > '9')) return std::nullopt;
        plain += c == ',' ? '.' : c;
    }
    if (!plain.empty() && plain.front() == '+') plain.erase(0, 1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(plain.data(), plain.data() + plain.size(), number, std::chars_format::fixed);
    if (error != std::errc{} || end != plain.data() + plain.size()) return std::nullopt;
    return number == 0 ? 0 : number; // a typed "-0" is 0
}

double Val(std::string_view text) {
    const std::string trimmed = trim(text);
    const auto end = trimmed.find_first_not_of(" .,0123456789", trimmed.find_first_of("+-") == 0 ? 1 : 0);
    return parseNumber(std::string_view(trimmed).substr(0, end)).value_or(0);
}

} // namespace base
