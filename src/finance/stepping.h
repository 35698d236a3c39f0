#pragma once

#include <cstdint>
#include <functional>
#include <optional>

/// Searches that are defined step by step, without taking each step.
namespace finance {

/// start + step + step + ..., `steps` times, with exactly the bits that adding them one by one gives.
///
/// Within a power of two every further step adds exactly the same amount, so that one multiplication covers all of
/// them: ten thousand million steps cost about fifty additions.
double stepped(double start, double step, std::int64_t steps);

/// The first of the steps 1 to `most` at which `holds` is true; nothing if it is false at all of them.
///
/// Once true, holds must stay true: it is called at steps 1, 2, 4, ... and then between the last two.
std::optional<std::int64_t> firstStep(std::int64_t most, const std::function<bool(std::int64_t)>& holds);

} // namespace finance
