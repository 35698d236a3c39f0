#pragma once

#include <vector>

#include "assessment/assessment.h"

namespace client {

/// What one policy or investment comes to at the age of retirement, rand. 0 where it is not taken then.
struct ValuesAtRetirement {
    double cashValue = 0;
    double raMaturity = 0;
    double pensionLump = 0;
    double providentLump = 0;
    double monthlyIncome = 0; ///< the pensions of all records up to this one, a month; 0 for a record without
    double endowment = 0;
    double investment = 0;

    /// What it adds to the capital at retirement: all but the income.
    double capital() const { return cashValue + raMaturity + pensionLump + providentLump + endowment + investment; }
};

/// What one record comes to at an age of retirement; its `monthlyIncome` is its own pension alone.
ValuesAtRetirement valuesAtRetirement(const assessment::Policy& policy, double ageOfRetirement);

/// What the policies add to the capital on death and on disability, rand; not finite for figures that no sum holds.
double capitalOnDeath(const std::vector<assessment::Policy>& policies);
double capitalOnDisability(const std::vector<assessment::Policy>& policies);

/// Folds the schedule of policies into the capital lines of the needs analyses.
///
/// Reads the policies and `AgeRetiment`. Writes `ANSLAss4` (capital at retirement), `ANSAss5` (on death) and `DisaASS5`
/// (on disability), each cut down to whole rand, `PolicyMonthlyIncome` (rand a month), and the flags
/// `RNAPoliciesItemise`, `DTHLifeAssItemise`, `DISALifeAssItemise` and `NARAPolicyIncomeItemise`. Gives the values at
/// retirement, record by record. An empty schedule gives totals of 0. More than 999 years between two ages, which only
/// a damaged file holds, count as 999.
std::vector<ValuesAtRetirement> CalculatePolInv(assessment::Assessment& record);

/// False if a value is too large to reckon with: a total that would not be finite has kept the figure from before.
bool isFinite(const std::vector<ValuesAtRetirement>& values);

} // namespace client
