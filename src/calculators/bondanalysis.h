#pragma once

#include <array>
#include <string>

#include "assessment/assessment.h"

namespace calculators {

/// What a bond costs over one term.
struct BondCost {
    int months = 0;
    double repayment = 0; ///< rand a month
    double interest = 0;  ///< over the whole term, rand; the principal as a negative amount if there is no repayment
    double paid = 0;      ///< all repayments, rand

    /// "5 yrs."
    std::string label() const;
};

/// One bond over 5, 10, 15, 20, 25 and 30 years.
struct BondAnalysis {
    std::array<BondCost, 6> terms;

    /// False for a rate so near 0, or a principal so large, that no double holds the answer.
    bool isFinite() const;
};

/// Costs of a bond of BCMBP2 rand at BCMBP4 percent a year. Repayments are 0 if either is 0.
BondAnalysis compareBondTerms(const assessment::Bond& bond);

} // namespace calculators
