#include "base/text.h"

#include <algorithm>

namespace base {

namespace {
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }
} // namespace

std::string trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::size_t characterCount(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), startsCharacter));
}

std::string firstCharacters(std::string_view utf8, std::size_t count) {
    std::size_t end = 0;
    while (end < utf8.size()) {
        if (startsCharacter(utf8[end]) && count-- == 0) break;
        ++end;
    }
    return std::string(utf8.substr(0, end));
}

std::string lowerAscii(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), lower);
    return folded;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
}

bool sameWord(std::string_view a, std::string_view b) { return sameName(trim(a), trim(b)); }

} // namespace base
