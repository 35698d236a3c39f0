#pragma once

#include "calculators/loans.h"
#include "calculators/loansearch.h"
#include "screenkit/numberkind.h"

/// The entries that the screens of loans, bonds and debts share.
namespace calculators {

inline const screenkit::NumberKind loanMonths =
    screenkit::whole.upTo(longestPeriod, "The maximum period  allowed is 600 months", "Incorrect Period!");
inline const screenkit::NumberKind loanRate =
    screenkit::percent.upTo(highestEnteredRate, "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!");

} // namespace calculators
