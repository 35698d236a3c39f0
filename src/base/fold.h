#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Text in the form used to sort and search lists of names: lower case and without accents.
///
/// Folds the Latin letters of Western, Central European and South African languages (Êksteen as eksteen, Ṱhoho-Nḓou as
/// thoho-ndou, ß as ss) and drops combining marks. Other scripts stay as they are and sort after the Latin letters.
/// Comparing two folded texts byte by byte orders them.
std::string folded(std::string_view utf8);

/// A text as it is sorted in a list. Compares like its folded form, mostly by the first eight bytes alone.
class SortKey {
public:
    SortKey() = default;
    explicit SortKey(std::string_view utf8);
    bool operator<(const SortKey& other) const {
        return m_start != other.m_start ? m_start < other.m_start : m_text < other.m_text;
    }

private:
    std::uint64_t m_start = 0;
    std::string m_text;
};

} // namespace base
