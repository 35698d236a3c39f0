#pragma once

#include <optional>

namespace calculators {

/// The nominal rate, compounded monthly, that gives an effective one: percent a year, found by steps of 0.01 down from
/// the effective rate, which is rounded to two places.
///
/// The answer is the first step whose year of growth meets the effective rate within a thousandth of a rand in each
/// hundred, as far as doubles of two decimals can be equal. Every fourth rate meets no step so; it gets the first
/// step that meets it in whole cents, or if none does, the first one below it. Nothing for rates up to 1.05 or above
/// 99, and not a number: the caller's rate then stays as it was.
std::optional<double> nominalRate(double effective);

/// The same for a draw-down annuity, which also answers low rates: above 0 and below 1.05, the nominal rate is a
/// hundredth of a percent lower. NomRate stays as it was at 1.05 exactly, at 0 and below, and above 99.
void EffNomCalc(double rate, double& NomRate);

} // namespace calculators
