#pragma once

#include <filesystem>

#include "calculators/investcomparison.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes a comparison into Print.mdb and returns the report to run. If it throws store::Error, which figures that are
/// not finite make it do, nothing is written.
datastore::Printout feedInvestmentComparison(const std::filesystem::path& printDbPath, const std::string& client,
                                             const assessment::InvestComparison& inputs, double age,
                                             const InvestmentComparison& result);

} // namespace calculators
