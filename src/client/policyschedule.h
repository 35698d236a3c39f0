#pragma once

#include <vector>

#include "assessment/assessment.h"

namespace client {

/// The worth at retirement of one policy or investment, rand. A value that is not taken then is 0.
struct ValuesAtRetirement {
    double cashValue = 0;
    double raMaturity = 0;
    double pensionLump = 0;
    double providentLump = 0;
    double monthlyIncome = 0; ///< pensions of all records up to this one, rand a month; 0 if it has no pension
    double endowment = 0;
    double investment = 0;

    /// What it adds to the capital at retirement: all values except the income.
    double capital() const { return cashValue + raMaturity + pensionLump + providentLump + endowment + investment; }
};

/// The worth of one record at an age of retirement; `monthlyIncome` is its own pension only.
ValuesAtRetirement valuesAtRetirement(const assessment::Policy& policy, double ageOfRetirement);

/// What the policies add to the capital on death and on disability, rand; not finite if a figure is too large to add.
double capitalOnDeath(const std::vector<assessment::Policy>& policies);
double capitalOnDisability(const std::vector<assessment::Policy>& policies);

/// Totals the schedule of policies for the capital lines of the needs analyses.
///
/// Reads the policies and `AgeRetiment`. Writes `ANSLAss4` (capital at retirement), `ANSAss5` (on death) and `DisaASS5`
/// (on disability), each truncated to whole rand, `PolicyMonthlyIncome` (rand a month), and the flags
/// `RNAPoliciesItemise`, `DTHLifeAssItemise`, `DISALifeAssItemise` and `NARAPolicyIncomeItemise`. Returns the values at
/// retirement of each record. An empty schedule gives totals of 0. At most 999 years between two ages are counted; only
/// a damaged file holds more.
std::vector<ValuesAtRetirement> CalculatePolInv(assessment::Assessment& record);

/// False if a value is too large to calculate with. A total that would not be finite keeps its earlier figure.
bool isFinite(const std::vector<ValuesAtRetirement>& values);

} // namespace client
