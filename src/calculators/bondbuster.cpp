#include "calculators/bondbuster.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/rounding.h"
#include "calculators/loans.h"
#include "calculators/loansearch.h"

namespace calculators {

namespace {

constexpr double mostRepayments = 10; // the highest extra payment, in agreed repayments

double notBelow0(double amount) { return amount < 0 ? 0 : amount; }

/// The field shows cents: what it shows as 0.00 is no extra payment.
bool readsZero(double amount) { return base::roundHalfEven(amount, 2) == 0; }

void repayAsAgreed(BondBuster& result, double term) {
    result.extra = ExtraPayment::none;
    result.NewTerm = term;
    result.NewRep = result.BondRep;
    result.XTotInt = result.TotInt;
    result.XTotPaid = result.TotPaid;
    result.Saving = 0;
}

} // namespace

bool BondBuster::isFinite() const {
    const std::array figures{BondRep, TotInt, TotPaid, VOLUN, NewTerm, NewRep, XTotInt, XTotPaid, Saving};
    return std::all_of(figures.begin(), figures.end(), [](double figure) { return std::isfinite(figure); });
}

BondBuster BBCalc(const assessment::Bond& bond) {
    const double principal = bond.BMBP2, term = bond.OMBP3, rate = static_cast<double>(bond.BMBP4);
    BondBuster result;
    result.BondRep = repaymentFor(principal, term, rate);
    result.TotInt = notBelow0(term * result.BondRep - principal);
    result.TotPaid = notBelow0(term * result.BondRep);
    if (bond.VOLUN > result.BondRep * mostRepayments) {
        result.extra = ExtraPayment::tooHigh;
        return result;
    }
    if (readsZero(bond.VOLUN)) {
        repayAsAgreed(result, term);
        return result;
    }
    // The search starts a cent below: where the payment fits exactly, the cents that it adds lead back to it.
    const LoanPeriod found = periodFor(principal, rate, (bond.VOLUN - 0.01) + result.BondRep);
    result.VOLUN = found.repayment - result.BondRep;
    result.NewTerm = found.months;
    result.NewRep = found.repayment;
    result.XTotInt = notBelow0(result.NewTerm * result.NewRep - principal);
    result.XTotPaid = notBelow0(result.NewTerm * result.NewRep);
    result.Saving = term * result.BondRep - result.NewTerm * result.NewRep;
    result.extra = result.NewTerm == 0 ? ExtraPayment::neverClears : ExtraPayment::applied;
    if (result.VOLUN == 0) repayAsAgreed(result, term);
    return result;
}

bool keepExtra(assessment::Bond& bond, const BondBuster& result) {
    const double extra = result.keptExtra(bond.VOLUN);
    if (!result.isFinite() || extra == bond.VOLUN) return false;
    bond.VOLUN = extra;
    return true;
}

} // namespace calculators
