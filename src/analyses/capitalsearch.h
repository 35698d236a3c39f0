#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace analyses {

/// How a needs analysis steps to the capital that it looks for, rand.
struct CapitalSteps {
    double coarse = 0;
    double fine = 0;        ///< within the last coarse step upwards; 0: the coarse steps are all
    int mostFinePasses = 1; ///< where rounding keeps the fine steps from ever meeting the coarse one
    double highest = 1e15;  ///< where a search upwards ends without an answer
};

/// What a search came to.
struct CapitalFound {
    std::optional<double> solved; ///< the capital that does; nothing if there is none
    std::optional<double> failed; ///< the last capital below it that was tried and does not; nothing if all do
    double lastTried = 0;         ///< what the last run was made with
};

/// True if a capital carries the years asked for. Must not turn false again for a larger one.
using CapitalTest = std::function<bool(double capital)>;

/// The least capital, by coarse steps down from `start`, that still does; nothing if it does down to 0.
CapitalFound searchDown(double start, const CapitalSteps& steps, const CapitalTest& covers);

/// The least capital, by fine steps within the last coarse step up from `start`, that does; nothing up to the highest.
/// `start` itself is not tried: it is known to fall short.
CapitalFound searchUp(double start, const CapitalSteps& steps, const CapitalTest& covers);

/// start + step + step + ..., `steps` times, bit for bit as adding them one by one would round it.
///
/// Within a power of two every further step adds the same amount exactly, so that it is taken in leaps of one power of
/// two each: ten thousand million steps cost some fifty additions.
double stepped(double start, double step, std::int64_t steps);

} // namespace analyses
