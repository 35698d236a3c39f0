#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

/// Text without blanks at either end. Only blanks are removed, since names and headings are padded with nothing else.
std::string trim(std::string_view text);

/// Number of characters (Unicode code points) in UTF-8 text. A broken byte counts as one character.
std::size_t characterCount(std::string_view utf8);

/// The first `count` characters of UTF-8 text; never splits a character.
std::string firstCharacters(std::string_view utf8, std::size_t count);

/// ASCII letters in lower case; everything else, also accented letters, unchanged.
std::string lowerAscii(std::string_view text);

/// True if both differ at most in the case of ASCII letters. Fields, tables and files are matched by name this way.
bool sameName(std::string_view a, std::string_view b);

/// True if two stored words (a mode, "Yes", "annually") are the same, ignoring case and blanks at either end.
bool sameWord(std::string_view a, std::string_view b);

} // namespace base
