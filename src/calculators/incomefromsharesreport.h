#pragma once

#include <filesystem>

#include "calculators/incomefromshares.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes an income from shares and its first seven years into Print.mdb and returns the report to run. commissions:
/// also say which commissions are payable. If it throws store::Error, nothing is written.
datastore::Printout feedIncomeFromShares(const std::filesystem::path& printDbPath, const std::string& client,
                                         const assessment::IncomeShares& inputs, const IncomeSharesCosts& costs,
                                         const IncomeSharesRun& run, bool commissions);

} // namespace calculators
