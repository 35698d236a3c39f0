#include "calculators/debts.h"

#include <cmath>

#include "calculators/loans.h"

namespace calculators {

namespace {

constexpr double leastSaving = 0.005; // it would show as 0.00

} // namespace

double DebtComparison::saving() const {
    const double saved = BeforeTotal - AfterRep();
    return saved < leastSaving ? 0 : saved;
}

bool DebtComparison::isFinite() const {
    return std::isfinite(BeforeTotal) && std::isfinite(consolidated.principal) && std::isfinite(AfterRep());
}

double totalDebt(const assessment::DebtConsolidation& debts) {
    return debts.Loan1Amt + debts.Loan2Amt + debts.Loan3Amt + debts.Loan4Amt + debts.Loan5Amt;
}

DebtComparison DCCalc(const assessment::DebtConsolidation& debts) {
    const double months = debts.ConPeriod;
    const std::array<std::pair<double, double>, 5> loans{{{debts.Loan1Amt, debts.Loan1Int},
                                                          {debts.Loan2Amt, debts.Loan2Int},
                                                          {debts.Loan3Amt, debts.Loan3Int},
                                                          {debts.Loan4Amt, debts.Loan4Int},
                                                          {debts.Loan5Amt, debts.Loan5Int}}};
    DebtComparison result;
    for (std::size_t i = 0; i < loans.size(); ++i) {
        result.repayments[i] = repaymentFor(loans[i].first, months, loans[i].second);
        result.BeforeTotal += result.repayments[i];
    }
    const double total = totalDebt(debts);
    result.consolidated = {total, months, debts.ConInt, repaymentFor(total, months, debts.ConInt)};
    return result;
}

} // namespace calculators
