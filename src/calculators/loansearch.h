#pragma once

#include "assessment/assessment.h"

namespace calculators {

/// The longest period, months, that a loan is solved for.
inline constexpr int longestPeriod = 600;

/// What `rateFor` returns if at every rate up to 1 000 000 percent the repayment stays within the one asked for.
inline constexpr double unsolvableRate = 1000005;

/// A period and the repayment that clears the loan in it.
struct LoanPeriod {
    double months = 0;    ///< 0 if the loan can't be cleared
    double repayment = 0; ///< rand a month
};

/// Months that a repayment needs to clear a loan, and the repayment that clears it in exactly these months.
///
/// Finds the whole months that the repayment fully covers, then raises it cent by cent until the loan clears in that
/// term. A repayment that fits a term exactly is not raised. Returns 0 months and the repayment unchanged if any
/// argument is 0, if 600 months are too few, or if no number of cents clears the loan (less than a month is needed, or
/// the repayment is so large that a cent no longer changes it). Computes some hundreds of powers at most.
LoanPeriod periodFor(double principal, double percentAYear, double repayment);

/// The highest rate, percent a year on the grid of 0.01, at which the repayment of the loan does not exceed
/// `repayment`. It keeps the rounding errors of the additions that lead to it.
///
/// 0 if any argument is 0, or if even a rate of 0.01 needs a higher repayment. `unsolvableRate` if the rate exceeds 1
/// 000 000, or if the search takes over 20 000 steps, as for a period of a thousandth of a month.
double rateFor(double principal, double months, double repayment);

/// Solves Num2, the period, from Num1, Num3 and Num4, and raises Num4 to clear the loan in it (see `periodFor`).
void PER(assessment::Loans& loan);

/// Solves Num3, the rate, from Num1, Num2 and Num4 (see `rateFor`).
void Rate(assessment::Loans& loan);

} // namespace calculators
