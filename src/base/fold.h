#pragma once

#include <string>
#include <string_view>

namespace base {

/// Text as lists of names are sorted and searched: letters in lower case and without their accents.
///
/// Folds the Latin letters of Western, Central European and South African languages (Êksteen as eksteen, Ṱhoho-Nḓou as
/// thoho-ndou, ß as ss) and drops combining marks. Other scripts stay as they are and sort after the Latin letters.
/// Comparing two folded texts byte by byte orders them.
std::string folded(std::string_view utf8);

} // namespace base
