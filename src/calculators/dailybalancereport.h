#pragma once

#include <filesystem>

#include "calculators/dailybalance.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes the interest between two dates into Print.mdb and returns the report to run. If it throws store::Error,
/// nothing is written.
datastore::Printout feedDailyBalance(const std::filesystem::path& printDbPath, const std::string& client,
                                     const assessment::DailyBalance& inputs, const DailyBalanceResult& result);

} // namespace calculators
