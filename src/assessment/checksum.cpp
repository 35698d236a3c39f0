#include "assessment/checksum.h"

namespace assessment {

void Checksum::addBytes(const void* bytes, std::size_t count) {
    constexpr std::uint64_t prime = 0x100000001b3;
    const auto* byte = static_cast<const unsigned char*>(bytes);
    for (std::size_t i = 0; i < count; ++i)
        m_sum = (m_sum ^ byte[i]) * prime;
}

void Checksum::add(const store::Value& value) {
    const std::size_t kind = value.index(); // an empty text and Null must give different sums
    addBytes(&kind, sizeof kind);
    if (const auto* number = std::get_if<double>(&value)) {
        const double stored = *number + 0.0; // the file does not store the sign of a zero
        addBytes(&stored, sizeof stored);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        const std::size_t length = text->size();
        addBytes(&length, sizeof length);
        addBytes(text->data(), length);
    }
}

} // namespace assessment
