#pragma once

#include <string>

#include "assessment/assessment.h"
#include "finance/premiumsearch.h"

namespace quotes {

/// The initial monthly investment that reaches a maturity value, for three products.
struct Premiums {
    finance::PremiumFound endowment, retirement, unitTrust; ///< of unit trusts with dividends re-invested

    /// Says which products never reach the value; empty if all do.
    std::string unreached() const;
};

/// Searches the premiums with the month runs of the quotations, in which only the monthly premium is paid. Answers
/// `notAsked` for all three if PremTarget or PremGrowth is 0 or PremTerm below 1. Takes a few milliseconds at most.
Premiums FindPremiums(const assessment::PremiumQuote& inputs, const assessment::FundDefaults& funds);

/// What an answer line shows after a search: an exact hit leaves what it showed before.
double shownPremium(const finance::PremiumFound& found, double before);

} // namespace quotes
