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

/// The highest rate, percent a year, that a loan is entered with. A solved rate may lie above it.
inline constexpr double highestEnteredRate = 50;

/// The mode that a `Heading` names, whatever its case and the blanks around it. Nothing if it names none.
std::optional<LoanMode> loanMode(std::string_view heading);

/// Where the answer of a mode goes.
double assessment::Loans::*unknownOf(LoanMode mode);

/// Interest of one month as a fraction: 12 percent a year gives 0.01.
double monthlyRate(double percentAYear);

/// Level repayment, rand a month, that clears `principal` in `months` at a rate in percent a year.
///
/// 0 if any of the three is exactly 0. Whatever else they are, negative too, the formula is worked out as it stands.
double repaymentFor(double principal, double months, double percentAYear);

/// Principal, rand, that a level `repayment` a month clears in `months` at a rate in percent a year.
///
/// 0 if any of the three is exactly 0. Whatever else they are, negative too, the formula is worked out as it stands.
double principalFor(double repayment, double months, double percentAYear);

/// Solves Num4, the repayment, from Num1 to Num3.
void RPAYMENT(assessment::Loans& loan);

/// Solves Num1, the principal, from Num2 to Num4.
void PAMOUNT(assessment::Loans& loan);

/// How a loan came out.
enum class LoanAnswer {
    solved,
    rateTooHigh, ///< above `highestEnteredRate`: it stands, but the screen marks it as an error
    notFinite,   ///< the figures are none of a loan: the unknown is 0 and the others are as they were
};

/// Solves the loan for what its Heading names; a Heading that names no mode changes nothing.
///
/// The period is sought with a cent less than the repayment, which the search puts back where the loan clears: it may
/// write Num4 as well as Num2. No figure that is not finite is left in the loan: it could not be saved.
LoanAnswer LoanCalc(assessment::Loans& loan);

/// All that is repaid over the loan's life, rand.
double totalRepayments(const assessment::Loans& loan);

/// What is repaid beyond the principal, rand.
double totalInterest(const assessment::Loans& loan);

} // namespace calculators
