#pragma once

#include <array>

#include "assessment/assessment.h"
#include "calculators/amortisation.h"

namespace calculators {

/// Existing loans beside the one loan that replaces them. Rand; repayments a month.
struct DebtComparison {
    std::array<double, 5> repayments{}; ///< of each loan, over the period of the consolidated one
    double BeforeTotal = 0;             ///< sum of these
    /// The consolidated loan: `DCPrin`, `ConPeriod`, `DCRate` and its repayment `DCRep`, which is `AfterRep`.
    RepaidLoan consolidated;

    double AfterRep() const { return consolidated.repayment; }
    /// What the client saves a month; 0 for none, and for less than half a cent.
    double saving() const;
    /// False for a rate so near 0, or amounts so large, that no double holds the answer.
    bool isFinite() const;
};

/// The sum of the five amounts, rand.
double totalDebt(const assessment::DebtConsolidation& debts);

/// Compares the repayments of up to five loans with that of one loan for their sum.
///
/// The existing loans have no term of their own: each is repaid over ConPeriod months too. A loan without a rate has no
/// repayment, but its amount is in the sum.
DebtComparison DCCalc(const assessment::DebtConsolidation& debts);

} // namespace calculators
