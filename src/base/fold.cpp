#include "base/fold.h"

#include <algorithm>
#include <cstdint>

namespace base {

namespace {

/// The plain letter for each character of a Unicode block: `.` leaves it unchanged, `?` becomes a pair of letters.
struct Block {
    std::uint32_t first;
    std::string_view letters;
};

constexpr Block blocks[] = {
    {0x00C0, // Latin-1 letters, Latin Extended-A and B
     "aaaaaa?ceeeeiiiidnooooo.ouuuuy??aaaaaa?ceeeeiiiidnooooo.ouuuuy?y"
     "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii??jjkkklllllll"
     "lllnnnnnn.??oooooo??rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs"
     "bbbb..occdddd.eeeffgg?iikkllmnnooo..pp.ss..ttttuuuvyyzzz.......w"
     "....?????????aaiioouuuuuuuuuueaaaa??ggggkkoooozzj???gg?wnnaa??oo"
     "aaaaeeeeiiiioooorrrruuuussttyyhhnd??..aaeeooooooooyylntj??acclts"
     "z..buveejjqqrryy"},
    {0x1E00, // Latin Extended Additional
     "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmm"
     "mmmmnnnnnnnnoooooooopppprrrrrrrrssssssssssttttttttuuuuuuuuuuvvvv"
     "wwwwwwwwwwxxxxyyzzzzzzhtwy.sss?daaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
     "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy??vvyy"},
};

struct Pair {
    std::uint32_t character;
    std::string_view letters;
};

constexpr Pair pairs[] = {
    {0x0C6, "ae"}, {0x0DE, "th"}, {0x0DF, "ss"}, {0x0E6, "ae"},  {0x0FE, "th"},  {0x132, "ij"},
    {0x133, "ij"}, {0x14A, "ng"}, {0x14B, "ng"}, {0x152, "oe"},  {0x153, "oe"},  {0x195, "hv"},
    {0x1C4, "dz"}, {0x1C5, "dz"}, {0x1C6, "dz"}, {0x1C7, "lj"},  {0x1C8, "lj"},  {0x1C9, "lj"},
    {0x1CA, "nj"}, {0x1CB, "nj"}, {0x1CC, "nj"}, {0x1E2, "ae"},  {0x1E3, "ae"},  {0x1F1, "dz"},
    {0x1F2, "dz"}, {0x1F3, "dz"}, {0x1F6, "hv"}, {0x1FC, "ae"},  {0x1FD, "ae"},  {0x222, "ou"},
    {0x223, "ou"}, {0x238, "db"}, {0x239, "qp"}, {0x1E9E, "ss"}, {0x1EFA, "ll"}, {0x1EFB, "ll"},
};

constexpr std::uint32_t firstCombining = 0x0300;
constexpr std::uint32_t lastCombining = 0x036F;

std::string_view pairOf(std::uint32_t character) {
    const auto* found =
        std::find_if(std::begin(pairs), std::end(pairs), [=](const Pair& pair) { return pair.character == character; });
    return found == std::end(pairs) ? std::string_view() : found->letters;
}

/// What a character folds to, or `itself` if it has no plain letter.
std::string_view plain(std::uint32_t character, std::string_view itself) {
    if (character >= firstCombining && character <= lastCombining) return {};
    for (const auto& [first, letters] : blocks) {
        if (character < first || character - first >= letters.size()) continue;
        const std::string_view letter = letters.substr(character - first, 1);
        if (letter == "?") return pairOf(character);
        return letter == "." ? itself : letter;
    }
    return itself;
}

std::size_t lengthOf(unsigned char lead) { return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4; }

/// The character that two or three bytes encode; 0 for any other length, which no block contains.
std::uint32_t decoded(std::string_view bytes) {
    const auto bits = [&](std::size_t i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])); };
    if (bytes.size() == 2) return (bits(0) & 0x1FU) << 6U | (bits(1) & 0x3FU);
    if (bytes.size() == 3) return (bits(0) & 0x0FU) << 12U | (bits(1) & 0x3FU) << 6U | (bits(2) & 0x3FU);
    return 0;
}

} // namespace

std::string folded(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const char c = utf8[i];
        if (static_cast<unsigned char>(c) < 0x80) {
            text += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            ++i;
            continue;
        }
        const std::string_view character = utf8.substr(i, lengthOf(static_cast<unsigned char>(c)));
        text += plain(decoded(character), character);
        i += character.size();
    }
    return text;
}

SortKey::SortKey(std::string_view utf8) : m_text(folded(utf8)) {
    for (std::size_t i = 0; i < sizeof m_start; ++i)
        m_start = m_start << 8U | (i < m_text.size() ? static_cast<unsigned char>(m_text[i]) : 0U);
}

} // namespace base
