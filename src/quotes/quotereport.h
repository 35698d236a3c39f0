#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "finance/lifeofcapital.h"
#include "quotes/projection.h"

namespace quotes {

struct QuoteReportOptions {
    bool commissions = false; ///< with the sentences on commissions
    bool amortised = false;   ///< with a line for each month
};

/// Everything that a quotation's report shows.
struct QuoteReport {
    const KwikQuotes& inputs;
    const FundDefaults& funds;
    const ShownQuote& shown; ///< as ShowQuote gives it for these inputs and rates
    const assessment::LifeOfCapital& capital;
    const finance::CapitalLife& life; ///< of that capital; a blank one if it was not worked out, and is not printed
};

/// Writes a quotation into Print.mdb and returns the report to run, that of its kind. Without a kind it is the
/// endowment's. If it throws store::Error, which figures that are not finite make it do, nothing is written. A report
/// without months leaves `Amort` as it was.
datastore::Printout feedQuote(const std::filesystem::path& printDbPath, const std::string& client,
                              const QuoteReport& report, const QuoteReportOptions& options);

} // namespace quotes
