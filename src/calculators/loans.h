#pragma once

#include "assessment/assessment.h"

#include <array>
#include <optional>
#include <string_view>

namespace calculators {

/// What a loan is solved for, in the order of the choices on the screen.
enum class LoanMode { MonthlyRepayment, PrincipalAmount, RepaymentPeriod, InterestRate };

/// The `Heading` of each mode, by its index.
inline constexpr std::array<std::string_view, 4> loanHeadings{"Monthly repayment", "Principal amount",
                                                              "Repayment period", "Interest rate"};

/// The highest rate, percent a year, that may be entered for a loan. A solved rate may be higher.
inline constexpr double highestEnteredRate = 50;

/// The mode that a `Heading` names, ignoring case and surrounding blanks. Nothing if it names none.
std::optional<LoanMode> loanMode(std::string_view heading);

/// The field that holds a mode's answer.
double assessment::Loans::*unknownOf(LoanMode mode);

/// Interest of one month as a fraction: 12 percent a year gives 0.01.
double monthlyRate(double percentAYear);

/// Level repayment, rand a month, that clears `principal` in `months` at a rate in percent a year.
///
/// 0 if any of the three is exactly 0. All other values, also negative ones, go into the formula as they are.
double repaymentFor(double principal, double months, double percentAYear);

/// Principal, rand, that a level `repayment` (rand a month) clears in `months` at a rate in percent a year.
///
/// 0 if any of the three is exactly 0. All other values, also negative ones, go into the formula as they are.
double principalFor(double repayment, double months, double percentAYear);

/// Solves Num4, the repayment, from Num1 to Num3.
void RPAYMENT(assessment::Loans& loan);

/// Solves Num1, the principal, from Num2 to Num4.
void PAMOUNT(assessment::Loans& loan);

/// The outcome of solving a loan.
enum class LoanAnswer {
    solved,
    rateTooHigh, ///< above `highestEnteredRate`: the figure stays, but the screen marks it as an error
    notFinite,   ///< the figures give no finite answer: the unknown is 0 and the others are unchanged
};

/// Solves the loan for what its Heading names; a Heading that names no mode changes nothing.
///
/// The period is searched with the repayment less a cent, and the search adds the cent again if the loan clears: it may
/// change Num4 as well as Num2. A figure that is not finite is never left in the loan, since it could not be saved.
LoanAnswer LoanCalc(assessment::Loans& loan);

/// Total of all repayments over the loan's life, rand.
double totalRepayments(const assessment::Loans& loan);

/// What is repaid in excess of the principal, rand.
double totalInterest(const assessment::Loans& loan);

} // namespace calculators
