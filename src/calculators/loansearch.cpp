#include "calculators/loansearch.h"

#include "calculators/centsearch.h"
#include "calculators/loans.h"

#include <cmath>

namespace calculators {

using assessment::Loans;

namespace {

constexpr double highestRate = 1000000;
constexpr int coarseSteps = 200000; // steps of 5 up to the highest rate
constexpr int mostSteps = 20000;    // a real loan needs about thirty; senseless figures could go on for millions

/// The whole months that the repayment covers. If the discounted amount equals the principal in every digit, that month
/// is `exact`; otherwise it is the month before the first one whose amount exceeds the principal.
struct CoveredMonths {
    int months = 0;
    bool exact = false;
};

CoveredMonths coveredMonths(double principal, double percentAYear, double repayment) {
    for (int month = 1; month <= longestPeriod; ++month) {
        const double cleared = principalFor(repayment, month, percentAYear);
        if (cleared == principal) return {month, true};
        if (cleared > principal) return {month - 1, false};
    }
    return {0, true};
}

/// A start for the rate search: a multiple of 5 below which no computed repayment exceeds `repayment`.
///
/// The true repayment rises with the rate (falls, for a negative principal), and from 5 percent up the computed one is
/// within 1e-10 of it. So if it is below `repayment` by 1e-9 at one rate, it is below at every lower (higher) rate.
/// This does not hold for a very short or negative fraction of a month, nor for the smallest doubles: then the search
/// starts at 0.
double safeStartRate(double principal, double months, double repayment) {
    const bool isReliable = (months >= 0.01 || months <= -1) && std::fabs(repayment) >= 1e-290;
    if (!isReliable) return 0;
    const double bound = repayment > 0 ? repayment / (1 + 1e-9) : repayment * (1 + 1e-9);
    const auto isBelow = [=](int step) { return repaymentFor(principal, months, 5.0 * step) <= bound; };
    if (principal < 0) return repaymentFor(principal, months, 5) <= repayment && isBelow(2) ? highestRate : 0;
    int below = 0, above = coarseSteps + 1;
    while (above - below > 1) {
        const int middle = (below + above) / 2;
        (isBelow(middle) ? below : above) = middle;
    }
    return 5.0 * below;
}

} // namespace

LoanPeriod periodFor(double principal, double percentAYear, double repayment) {
    if (principal == 0 || percentAYear == 0 || repayment == 0) return {0, repayment};
    const CoveredMonths covered = coveredMonths(principal, percentAYear, repayment);
    const int months = covered.months;
    if (covered.exact) return {static_cast<double>(months), repayment};
    const double r = monthlyRate(percentAYear);
    const double factor = 1 - std::pow(1 + r, -static_cast<double>(months));
    const auto clears = [=](double raised) {
        const double cleared = months == 0 || raised == 0 ? 0 : factor * raised / r;
        return !(cleared < principal);
    };
    const auto raised = firstCentThat(repayment, clears);
    if (!raised) return {0, repayment};
    return {static_cast<double>(months), *raised};
}

double rateFor(double principal, double months, double repayment) {
    if (principal == 0 || months == 0 || repayment == 0) return 0;
    double rate = safeStartRate(principal, months, repayment);
    int steps = 0;
    for (const double step : {5.0, 1.0, 0.1, 0.01}) {
        do {
            rate += step;
            if (rate > highestRate || ++steps > mostSteps) return unsolvableRate;
        } while (repaymentFor(principal, months, rate) <= repayment);
        rate -= step;
    }
    return rate;
}

void PER(Loans& loan) {
    const LoanPeriod found = periodFor(loan.Num1, loan.Num3, loan.Num4);
    loan.Num2 = found.months;
    loan.Num4 = found.repayment;
}

void Rate(Loans& loan) { loan.Num3 = rateFor(loan.Num1, loan.Num2, loan.Num4); }

} // namespace calculators
