#pragma once

#include <functional>
#include <optional>

namespace calculators {

/// The first of the sums amount + 0.01, amount + 0.01 + 0.01, ... that `reached` accepts, with exactly the bits (and
/// rounding errors) that adding cent by cent gives. Nothing if adding a cent no longer changes the sum.
///
/// `reached` must not accept a sum and refuse a larger one. It is called some hundred times, however many millions of
/// cents the search covers.
std::optional<double> firstCentThat(double amount, const std::function<bool(double)>& reached);

} // namespace calculators
