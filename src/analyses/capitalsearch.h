#pragma once

#include <functional>
#include <optional>

namespace analyses {

/// The steps, in rand, by which a needs analysis searches for a capital.
struct CapitalSteps {
    double coarse = 0;
    double fine = 0;        ///< refines the last coarse step upwards; 0: coarse steps only
    int mostFinePasses = 1; ///< limit, because rounding can keep the fine steps from meeting the coarse one
    double highest = 1e15;  ///< an upward search stops here without an answer
};

/// The result of a search.
struct CapitalFound {
    std::optional<double> solved; ///< the capital that suffices; nothing if there is none
    std::optional<double> failed; ///< the last lower capital tried that does not suffice; nothing if all do
    double lastTried = 0;         ///< the capital of the last run
};

/// True if a capital suffices for the years asked for. Once true, it must stay true for larger capitals.
using CapitalTest = std::function<bool(double capital)>;

/// The least capital that still suffices, by coarse steps down from `start`; nothing if even 0 suffices.
CapitalFound searchDown(double start, const CapitalSteps& steps, const CapitalTest& covers);

/// The least capital that suffices, by fine steps within the last coarse step up from `start`; nothing if even the
/// highest does not. `start` itself is not tried, since it is known not to suffice.
CapitalFound searchUp(double start, const CapitalSteps& steps, const CapitalTest& covers);

} // namespace analyses
