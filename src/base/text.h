#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

/// Text without the blanks at its two ends (blanks only, as names and headings are padded with nothing else).
std::string trim(std::string_view text);

/// Number of characters (Unicode code points) in UTF-8 text. A broken byte counts as one character.
std::size_t characterCount(std::string_view utf8);

/// The first `count` characters of UTF-8 text, whole characters only.
std::string firstCharacters(std::string_view utf8, std::size_t count);

/// ASCII letters folded to lower case; all else, accented letters too, as it is.
std::string lowerAscii(std::string_view text);

/// True if both are the same but for the case of ASCII letters. Field, table and file names are matched so.
bool sameName(std::string_view a, std::string_view b);

/// True if two stored words (a mode, "Yes", "annually") are the same: trimmed, without case.
bool sameWord(std::string_view a, std::string_view b);

} // namespace base
