#include "calculators/bondanalysis.h"

#include <algorithm>
#include <cmath>

#include "calculators/loans.h"

namespace calculators {

namespace {

constexpr int monthsBetween = 60;

BondCost costOver(int months, double principal, double rate) {
    const double repayment = repaymentFor(principal, months, rate);
    return {months, repayment, months * repayment - principal, months * repayment};
}

} // namespace

std::string BondCost::label() const { return std::to_string(months / 12) + " yrs."; }

bool BondAnalysis::isFinite() const {
    return std::all_of(terms.begin(), terms.end(), [](const BondCost& cost) {
        return std::isfinite(cost.repayment) && std::isfinite(cost.interest) && std::isfinite(cost.paid);
    });
}

BondAnalysis compareBondTerms(const assessment::Bond& bond) {
    BondAnalysis analysis;
    int months = 0;
    for (BondCost& cost : analysis.terms)
        cost = costOver(months += monthsBetween, bond.BCMBP2, static_cast<double>(bond.BCMBP4));
    return analysis;
}

} // namespace calculators
