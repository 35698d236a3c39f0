#pragma once

#include <cstdint>

#include "store/value.h"

namespace assessment {

/// A checksum over stored values in their order: equal values give equal sums, and a change of a single bit gives
/// another. It detects a change by another program, not a forgery (FNV-1a, 64 bits).
class Checksum {
public:
    void add(const store::Value& value);
    std::uint64_t value() const { return m_sum; }

private:
    void addBytes(const void* bytes, std::size_t count);
    std::uint64_t m_sum = 0xcbf29ce484222325;
};

} // namespace assessment
