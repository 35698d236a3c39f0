#include "base/amount.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"

namespace base {

namespace {

constexpr const char* understood =
    "\nPlease type a figure such as 1 250 000.50, 1,250,000.50 or 1250000,50, or a sum such as =1000*12.";
// Longer text was pasted by mistake. Within this length no sum overflows a double and no brackets overflow the stack.
constexpr std::size_t longestText = 200;

struct Spelling {
    std::string_view written;
    char meant; ///< 0: ignored
};
constexpr Spelling spellings[] = {{" ", 0}, {"\u00A0", 0}, {"\u2007", 0}, {"\u2009", 0},   {"\u202F", 0},
                                  {"'", 0}, {"\u2018", 0}, {"\u2019", 0}, {"\u2212", '-'}, {"\u2013", '-'}};

/// Reduces the typed text to the characters that matter. Unknown characters stay, so that parsing refuses them later.
std::string plain(std::string_view typed) {
    std::string text;
    while (!typed.empty()) {
        const auto* known = std::find_if(std::begin(spellings), std::end(spellings), [typed](const Spelling& each) {
            return typed.substr(0, each.written.size()) == each.written;
        });
        const bool isKnown = known != std::end(spellings);
        const char meant = isKnown ? known->meant : typed.front();
        if (meant != 0) text += meant;
        typed.remove_prefix(isKnown ? known->written.size() : 1);
    }
    return text;
}

std::string_view withoutEnds(std::string_view text) {
    constexpr std::string_view blank = " \t\r\n";
    const auto first = text.find_first_not_of(blank);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blank) - first + 1);
}

AmountReading refused(const std::string& why) { return {{}, why + understood}; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isRand(char c) { return c == 'R' || c == 'r'; }

bool areThousands(std::string_view digits, char separator) {
    constexpr std::size_t group = 3;
    auto end = digits.find(separator);
    if (end == 0 || end > group) return false;
    while (end != std::string_view::npos) {
        digits.remove_prefix(end + 1);
        end = digits.find(separator);
        if (std::min(end, digits.size()) != group) return false;
    }
    return true;
}

/// Position of the decimal sign, or the size of the text if there is none. digits: digits, commas and points alone.
std::size_t decimalSign(std::string_view digits, int places) {
    constexpr int placesOfARate = 3;
    const auto last = digits.find_last_of(".,");
    if (last == std::string_view::npos) return digits.size();
    const char sign = digits[last];
    const bool isMixed = digits.find(sign == '.' ? ',' : '.') != std::string_view::npos;
    if (isMixed) return last;
    if (digits.find(sign) != last) return digits.size();
    const bool isGrouping =
        sign == ',' && places < placesOfARate && digits.substr(0, last) != "0" && areThousands(digits, ',');
    return isGrouping ? digits.size() : last;
}

/// The value of digits with their separators; an empty text is 0. Nothing if the digits are badly grouped.
std::optional<double> magnitude(std::string_view digits, int places) {
    const auto sign = decimalSign(digits, places);
    const std::string_view whole = digits.substr(0, sign);
    const auto grouping = whole.find_first_of(".,");
    const bool isGrouped = grouping != std::string_view::npos;
    const bool isTwofold = std::count(whole.begin(), whole.end(), '.') > 0 && whole.find(',') != std::string_view::npos;
    if (isTwofold || (isGrouped && !areThousands(whole, whole[grouping]))) return {};
    if (isGrouped && sign < digits.size() && whole[grouping] == digits[sign]) return {};
    std::string number;
    std::copy_if(whole.begin(), whole.end(), std::back_inserter(number), isDigit);
    if (sign < digits.size()) number += "." + std::string(digits.substr(sign + 1));
    double figure = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), figure);
    if (error != std::errc{} || end != number.data() + number.size()) return {};
    return figure;
}

bool isPartOfNumber(char c) { return isDigit(c) || c == '.' || c == ','; }

/// What was typed, cut short enough for a message box.
std::string quoted(std::string_view typed) {
    constexpr std::size_t room = 40;
    const std::string start = firstCharacters(typed, room);
    return "\u201C" + start + (start.size() < typed.size() ? "…\u201D" : "\u201D");
}

AmountReading readNumber(std::string_view digits, std::string_view typed, int places) {
    const bool hasDigit = std::any_of(digits.begin(), digits.end(), isDigit);
    if (!hasDigit || !std::all_of(digits.begin(), digits.end(), isPartOfNumber)) {
        if (hasDigit && digits.find_first_of("+-*/()") != std::string_view::npos)
            return refused("To calculate a sum, type = in front of it.");
        return refused(quoted(typed) + " can't be read as a figure.");
    }
    const auto figure = magnitude(digits, places);
    if (!figure) return refused("The thousands in " + quoted(typed) + " are not in groups of three.");
    return {figure, {}};
}

/// A figure with its sign and unit: -R250, R -250, 12.5%.
AmountReading readFigure(std::string_view text, std::string_view typed, int places) {
    std::string_view rest = text;
    const auto takes = [&rest](std::string_view any) {
        if (rest.empty() || any.find(rest.front()) == std::string_view::npos) return '\0';
        const char taken = rest.front();
        rest.remove_prefix(1);
        return taken;
    };
    char sign = takes("+-");
    const bool hasUnit = takes("Rr%") != 0;
    if (hasUnit && sign == 0) sign = takes("+-");
    if (!rest.empty() && (isRand(rest.back()) || rest.back() == '%')) rest.remove_suffix(1);
    AmountReading reading = readNumber(rest, typed, places);
    if (sign == '-' && reading.figure && *reading.figure != 0) reading.figure = -*reading.figure; // a typed -0 is 0
    return reading;
}

/// Works out the sum that follows the `=`.
class Sum {
public:
    Sum(std::string_view text, std::string_view typed, int places) : m_rest(text), m_typed(typed), m_places(places) {}

    AmountReading workOut() {
        const double figure = sum();
        if (!m_rest.empty()) stop(quoted(m_typed) + " can't be calculated.");
        if (!m_why.empty()) return refused(m_why);
        return {figure == 0 ? 0 : figure, {}};
    }

private:
    bool takes(char c) {
        if (m_rest.empty() || m_rest.front() != c) return false;
        m_rest.remove_prefix(1);
        return true;
    }
    double stop(const std::string& why) {
        if (m_why.empty()) m_why = why;
        m_rest = {};
        return 0;
    }
    double sum() {
        double figure = product();
        while (true)
            if (takes('+'))
                figure += product();
            else if (takes('-'))
                figure -= product();
            else
                return figure;
    }
    double product() {
        double figure = part();
        while (true)
            if (takes('*'))
                figure *= part();
            else if (takes('/'))
                figure = quotient(figure, part());
            else
                return figure;
    }
    double quotient(double figure, double by) { return by == 0 ? stop("A sum can't divide by 0.") : figure / by; }
    double part() {
        if (takes('-')) return -part();
        if (takes('+')) return part();
        if (!takes('(')) return number();
        const double figure = sum();
        return takes(')') ? figure : stop("A bracket is not closed in " + quoted(m_typed) + ".");
    }
    double number() {
        if (!m_rest.empty() && isRand(m_rest.front())) m_rest.remove_prefix(1);
        const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), isPartOfNumber);
        const std::string_view digits(m_rest.begin(), end);
        if (digits.empty()) return stop(quoted(m_typed) + " can't be calculated.");
        m_rest.remove_prefix(digits.size());
        const AmountReading reading = readNumber(digits, digits, m_places);
        return reading.figure ? *reading.figure : stop(reading.why.substr(0, reading.why.find('\n')));
    }

    std::string_view m_rest, m_typed;
    int m_places;
    std::string m_why;
};

} // namespace

AmountReading readAmount(std::string_view typed, int places) {
    const std::string_view bare = withoutEnds(typed);
    if (bare.size() > longestText) return refused("The text is too long for a figure.");
    if (bare.find_first_of("\t\r\n") != std::string_view::npos)
        return refused("This field takes one figure, not several.");
    const std::string text = plain(bare);
    if (text.empty()) return {0.0, {}};
    if (text.front() == '=') return Sum(std::string_view(text).substr(1), bare, places).workOut();
    return readFigure(text, bare, places);
}

} // namespace base
