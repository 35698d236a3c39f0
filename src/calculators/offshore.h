#pragma once

#include "assessment/assessment.h"

namespace calculators {

/// What one amount becomes abroad and at home: rand.
struct OffShoreResult {
    double OSMatVal = 0;     ///< offshore, after tax
    double LMatVal = 0;      ///< local, after tax
    double OSRealMatVal = 0; ///< offshore, after the currency's change
    double LRealMatVal = 0;  ///< the local value: no currency changes it

    /// False if a figure is larger than any field or report has room for: a thousand million million rand or more.
    bool fits() const;
};

/// Invests InvAmount (rand) for OSPeriod whole years, offshore at OFInvRate taxed at OFTaxRate, and locally at LInvRate
/// taxed at LTaxRate (percent a year; tax is on each year's growth). The offshore value then loses LCurrChange percent
/// for each year: above 0 the rand gains on the other currency. No rate of exchange is used, since both begin with the
/// same rand. A period below 1 leaves the amount as it is.
OffShoreResult compareOffShore(const assessment::OffShore& inputs);

} // namespace calculators
