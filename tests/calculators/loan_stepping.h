#pragma once

#include "calculators/loans.h"

#include <cmath>
#include <vector>

/// Slow references for the loan searches: one step after the other.
namespace stepping {

using assessment::Loans;

using calculators::PAMOUNT;
using calculators::RPAYMENT;

/// False if `mostCents` cents do not clear the loan.
inline bool PER(Loans& loan, long mostCents) {
    if (loan.Num1 == 0 || loan.Num3 == 0 || loan.Num4 == 0) {
        loan.Num2 = 0;
        return true;
    }
    const double SavedPrincipal = loan.Num1;
    for (loan.Num2 = 1;; loan.Num2 += 1) {
        PAMOUNT(loan);
        if (loan.Num2 > 600) loan.Num2 = 0;
        const bool stop = loan.Num2 == 0 || loan.Num1 == SavedPrincipal;
        const bool passed = loan.Num1 > SavedPrincipal;
        loan.Num1 = SavedPrincipal;
        if (stop) return true;
        if (passed) break;
    }
    loan.Num2 -= 1;
    do {
        if (mostCents-- == 0) return false;
        loan.Num4 += 0.01;
        PAMOUNT(loan);
    } while (loan.Num1 < SavedPrincipal);
    loan.Num1 = SavedPrincipal;
    return true;
}

/// False if the rate exceeds a million percent.
inline bool Rate(Loans& loan) {
    loan.Num3 = 0;
    if (loan.Num1 == 0 || loan.Num2 == 0 || loan.Num4 == 0) return true;
    const double target = loan.Num4;
    for (const double step : {5.0, 1.0, 0.1, 0.01}) {
        do {
            loan.Num3 += step;
            if (loan.Num3 > 1000000) return false;
            RPAYMENT(loan);
        } while (loan.Num4 <= target);
        loan.Num3 -= step;
    }
    loan.Num4 = target;
    return true;
}

/// Monthly and annual columns, index 0 unused.
struct Table {
    std::vector<double> MonthCapital{0}, MonthInterest{0}, MonthBalance{0}, YearCapital{0}, YearInterest{0};
};

inline Table CalcAnnAmort(const Loans& loan) {
    Table t;
    double balance = loan.Num1, C = 0, T = 0;
    const int n = static_cast<int>(loan.Num2);
    for (int i = 1; i <= n; ++i) {
        const double r = loan.Num3 / 12 / 100;
        Loans formula = loan;
        RPAYMENT(formula);
        t.MonthCapital.push_back(formula.Num4 * std::pow(1 + r, -((n + 1) - i)));
        t.MonthInterest.push_back(formula.Num4 - t.MonthCapital.back());
        balance = std::abs(balance - t.MonthCapital.back());
        t.MonthBalance.push_back(balance);
    }
    for (std::size_t i = 12; i < t.MonthCapital.size(); i += 12) {
        double capital = 0, interest = 0;
        for (std::size_t month = i - 11; month <= i; ++month)
            capital += t.MonthCapital[month];
        for (std::size_t month = i - 11; month <= i; ++month)
            interest += t.MonthInterest[month];
        t.YearCapital.push_back(capital);
        t.YearInterest.push_back(interest);
        C += capital;
        T += interest;
        t.MonthBalance[i / 12] = t.MonthBalance[i];
    }
    if (n % 12 == 0) return t;
    t.YearCapital.push_back(loan.Num1 - C);
    t.YearInterest.push_back((loan.Num4 * loan.Num2 - loan.Num1) - T);
    return t;
}

} // namespace stepping
