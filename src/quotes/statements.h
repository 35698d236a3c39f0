#pragma once

#include <array>
#include <string>

#include "quotes/projection.h"

namespace quotes {

/// The sentences under a quotation's report: element 0 is `ComStatement_1`. Those that do not apply are empty.
using Statements = std::array<std::string, 8>;

/// The sentences on the commissions of a quotation, each only if its percentage and the payment that it is taken from
/// are above 0. A bank investment has no commissions and thus no sentence, nor has a quotation that was not projected.
/// The commission on a single investment is the quotation's, not the reduced one of its graph.
Statements commissionStatements(const KwikQuotes& inputs, const FundDefaults& funds, const Quote& quote);

} // namespace quotes
