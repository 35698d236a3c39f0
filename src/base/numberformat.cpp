#include "base/numberformat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "base/rounding.h"

namespace base {

namespace {

struct Mask {
    std::string_view before, after; ///< printed as they are
    std::size_t wholeDigits = 0;    ///< digits forced before the point
    std::size_t places = 0;         ///< digits at most after the point
    std::size_t forcedPlaces = 0;   ///< digits always printed after it
    bool point = false;
    bool grouped = false;
    bool ofFraction = false; ///< a fraction shown as percent
};

Mask readMask(std::string_view text) {
    Mask mask;
    const auto first = text.find_first_of("#0.");
    if (first == std::string_view::npos) return mask;
    const auto last = text.find_last_of("#0.");
    mask.before = text.substr(0, first);
    mask.after = text.substr(last + 1);
    mask.ofFraction = mask.after.substr(0, 1) == "%";
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

int shownPlaces(const Mask& mask) { return static_cast<int>(std::min<std::size_t>(mask.places, 15)); }

/// A hundred times the fraction, exact in its decimal digits: 0.145 is 14.5. A multiplication could miss that by a
/// hair, and the tie would then round the wrong way.
double inPercent(double fraction) {
    if (!std::isfinite(fraction)) return fraction;
    std::array<char, 32> digits{};
    const auto written =
        std::to_chars(digits.data(), digits.data() + digits.size(), fraction, std::chars_format::scientific);
    const std::string_view text(digits.data(), static_cast<std::size_t>(written.ptr - digits.data()));
    const auto e = text.find('e');
    int exponent = 0;
    std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(), exponent);
    const std::string shifted = std::string(text.substr(0, e + 1)) + std::to_string(exponent + 2);
    double percent = std::numeric_limits<double>::infinity(); // the result if a double cannot hold it
    std::from_chars(shifted.data(), shifted.data() + shifted.size(), percent);
    return percent;
}

} // namespace

std::string plainNumber(double value) { return formatNumber(value, "0.###############"); }

int placesOf(std::string_view mask) { return shownPlaces(readMask(mask)); }

std::string formatNumber(double value, std::string_view maskText) {
    const Mask mask = readMask(maskText);
    const double shown = mask.ofFraction ? inPercent(value) : value;
    if (!std::isfinite(shown)) return {};
    const double rounded = roundHalfEven(shown, shownPlaces(mask));
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
    std::string number = whole;
    if (mask.point && !(places.empty() && mask.forcedPlaces == 0)) number += "." + places;
    if (number.empty()) return {};
    return (rounded < 0 ? "-" : "") + std::string(mask.before) + number + std::string(mask.after);
}

} // namespace base
