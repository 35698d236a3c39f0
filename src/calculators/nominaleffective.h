#pragma once

#include <string>

#include "assessment/assessment.h"

namespace calculators {

/// How often interest is compounded, in the order of the options on the screen.
enum class Compounding { monthly, daily, biMonthly, threeMonthly, semiAnnually };

/// The compounding for a number of periods a year: 12, 365, 24 (twice a month), 4 or 2. Any other number, such as the
/// 0 of an old file, counts as 12.
Compounding compoundingOf(double periodsAYear);
/// Compounding periods a year.
double periodsAYear(Compounding compounding);
/// "monthly.", "daily.", "bi-monthly.", "3-monthly." or "Semi-Annually.": the end of a printed sentence.
std::string compoundingText(Compounding compounding);

/// What an amount earns at a nominal rate, and the rates that describe it. All 0 if an input is 0.
struct NominalEffectiveResult {
    double EffRate = 0;      ///< percent a year, with the interest of the year's compounding
    double ActualInt = 0;    ///< interest over the period, rand
    double SimpleRate = 0;   ///< percent a year without compounding that earns the same over the period
    double IntEarned = 0;    ///< interest at the simple rate, rand: ActualInt again
    bool isComplete = false; ///< false if an input is 0

    bool isFinite() const;
};

/// Sets PeriodNomEff back to 12 months if it is not a whole number of compounding periods: half-years for semi-annual,
/// quarters for 3-monthly compounding. A period of 0 stays.
void snapPeriod(assessment::NominalEffective& inputs);

/// Interest on `amount` (rand) over PeriodNomEff months at NomRate (percent a year, nominal), compounded IntComp times
/// a year. Writes PeriodNomEff: 12 if it was 0, otherwise see `snapPeriod`. Then an empty period answers at the second
/// run only, when the user has seen the 12 months.
NominalEffectiveResult NomEffCalc(assessment::NominalEffective& inputs);

} // namespace calculators
