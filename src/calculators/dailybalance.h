#pragma once

#include "assessment/assessment.h"

namespace calculators {

struct DailyBalanceResult {
    double days = 0;     ///< from the start to the end, below 0 if the end comes first; 0 without both dates
    double interest = 0; ///< rand, over a year of 365 days, leap years or not
};

/// Simple interest on CapAmount (rand) at IntRate (percent a year) from StartDateDB to EndDateDB.
DailyBalanceResult dailyBalance(const assessment::DailyBalance& inputs);

/// True unless both are dates and the end is more than 360 calendar months after the start. In a month without the
/// start's day the last day counts: 360 months after 29 February 2024 is 28 February 2054.
bool isWithin360Months(double start, double end);

} // namespace calculators
