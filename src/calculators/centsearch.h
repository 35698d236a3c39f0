#pragma once

#include <functional>
#include <optional>

namespace calculators {

/// The first of the sums amount + 0.01, amount + 0.01 + 0.01, ... that `reached` accepts, bit for bit as the additions
/// one by one give it, noise included. Nothing if an addition no longer changes the sum.
///
/// `reached` must never accept a sum and refuse a larger one that it is asked about. It is asked some hundred times,
/// however many millions of cents lie between.
std::optional<double> firstCentThat(double amount, const std::function<bool(double)>& reached);

} // namespace calculators
