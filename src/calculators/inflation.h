#pragma once

#include "assessment/assessment.h"

namespace calculators {

struct InflationResult {
    double futureValue = 0; ///< what the present cost grows to
    double buyingPower = 0; ///< what the present amount shrinks to
};

/// A present cost (rand) increased over `PeriodInflation` whole years at `IntRateInflation` percent a year.
InflationResult LTLINFL(const assessment::Inflation& inputs);

} // namespace calculators
