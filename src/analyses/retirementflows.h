#pragma once

#include "analyses/yearrun.h"
#include "assessment/assessment.h"

namespace analyses {

/// Incomes, needs and payouts from the year of retirement on, by year; year 1 is at the age `AgeRetiment`.
///
/// incomeRequired: rand a month at retirement; pensions: of all policies, rand a month. Itemised lists replace the
/// plain figures while their flag is on.
YearlyFlows retirementFlows(const assessment::Assessment& record, double incomeRequired, double pensions);

} // namespace analyses
