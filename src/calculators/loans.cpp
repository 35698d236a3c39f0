#include "calculators/loans.h"

#include "base/text.h"
#include "calculators/loansearch.h"

#include <cmath>

namespace calculators {

using assessment::Loans;

namespace {

/// The search for the period starts a cent below the repayment: where it fits exactly, the cents that the search adds
/// lead back to what was typed. A loan that never clears keeps the repayment a cent lower.
void solvePeriod(Loans& loan) {
    loan.Num2 = 0;
    loan.Num4 -= 0.01;
    PER(loan);
}

void solve(LoanMode mode, Loans& loan) {
    switch (mode) {
    case LoanMode::MonthlyRepayment: return RPAYMENT(loan);
    case LoanMode::PrincipalAmount: return PAMOUNT(loan);
    case LoanMode::RepaymentPeriod: return solvePeriod(loan);
    case LoanMode::InterestRate: return Rate(loan);
    }
}

} // namespace

double Loans::*unknownOf(LoanMode mode) {
    switch (mode) {
    case LoanMode::PrincipalAmount: return &Loans::Num1;
    case LoanMode::RepaymentPeriod: return &Loans::Num2;
    case LoanMode::InterestRate: return &Loans::Num3;
    case LoanMode::MonthlyRepayment: break;
    }
    return &Loans::Num4;
}

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

LoanAnswer LoanCalc(Loans& loan) {
    const auto mode = loanMode(loan.Heading);
    if (!mode) return LoanAnswer::solved;
    Loans answer = loan;
    solve(*mode, answer);
    if (!std::isfinite(answer.*unknownOf(*mode))) {
        loan.*unknownOf(*mode) = 0;
        return LoanAnswer::notFinite;
    }
    loan = answer;
    return *mode == LoanMode::InterestRate && loan.Num3 > highestEnteredRate ? LoanAnswer::rateTooHigh
                                                                             : LoanAnswer::solved;
}

double totalRepayments(const Loans& loan) { return loan.Num4 * loan.Num2; }

double totalInterest(const Loans& loan) { return loan.Num4 * loan.Num2 - loan.Num1; }

} // namespace calculators
