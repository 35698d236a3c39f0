#include "calculators/loans.h"

#include "base/text.h"
#include "calculators/loansearch.h"

#include <cmath>

namespace calculators {

using assessment::Loans;

namespace {

/// The search for the period starts a cent low: the cents that it adds then bring an exact fit back to the repayment
/// as typed, and only a loan that never clears stays a cent below it.
void solvePeriod(Loans& loan) {
    loan.Num2 = 0;
    loan.Num4 -= 0.01;
    PER(loan);
}

} // namespace

std::optional<LoanMode> loanMode(std::string_view heading) {
    for (std::size_t i = 0; i < loanHeadings.size(); ++i)
        if (base::sameWord(heading, loanHeadings[i])) return static_cast<LoanMode>(i);
    return std::nullopt;
}

double monthlyRate(double percentAYear) { return percentAYear / 12 / 100; }

double repaymentFor(double principal, double months, double percentAYear) {
    if (principal == 0 || months == 0 || percentAYear == 0) return 0;
    const double r = monthlyRate(percentAYear);
    return (r * principal) / (1 - std::pow(1 + r, -months));
}

double principalFor(double repayment, double months, double percentAYear) {
    if (months == 0 || percentAYear == 0 || repayment == 0) return 0;
    const double r = monthlyRate(percentAYear);
    return (1 - std::pow(1 + r, -months)) * repayment / r;
}

void RPAYMENT(Loans& loan) { loan.Num4 = repaymentFor(loan.Num1, loan.Num2, loan.Num3); }

void PAMOUNT(Loans& loan) { loan.Num1 = principalFor(loan.Num4, loan.Num2, loan.Num3); }

bool LoanCalc(Loans& loan) {
    const auto mode = loanMode(loan.Heading);
    if (mode == LoanMode::MonthlyRepayment) RPAYMENT(loan);
    if (mode == LoanMode::PrincipalAmount) PAMOUNT(loan);
    if (mode == LoanMode::RepaymentPeriod) solvePeriod(loan);
    if (mode != LoanMode::InterestRate) return false;
    Rate(loan);
    return loan.Num3 > highestEnteredRate;
}

double totalRepayments(const Loans& loan) { return loan.Num4 * loan.Num2; }

double totalInterest(const Loans& loan) { return loan.Num4 * loan.Num2 - loan.Num1; }

} // namespace calculators
