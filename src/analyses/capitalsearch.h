#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace analyses {

/// Where a search for more capital ends without an answer, rand.
inline constexpr double highestCapital = 1e15;

/// start + step + step + ..., `steps` times, bit for bit as adding them one by one would round it.
///
/// Within a power of two every further step adds the same amount exactly, so that it is taken in leaps of one power of
/// two each: ten thousand million steps cost some fifty additions.
double stepped(double start, double step, std::int64_t steps);

/// The first of the steps 1 to `most` at which `holds` is true; nothing if it holds at none of them.
///
/// holds must not fall back to false at a later step: it is asked at steps 1, 2, 4, ... and then between the last two.
std::optional<std::int64_t> firstStep(std::int64_t most, const std::function<bool(std::int64_t)>& holds);

/// Steps of this size that lead from a capital past another; 0 if it lies the other way.
std::int64_t stepsPast(double from, double to, double step);

} // namespace analyses
