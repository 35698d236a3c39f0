#pragma once

#include <filesystem>

#include "calculators/inflation.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes a cost and its value after inflation into Print.mdb and returns the report to run. If it throws store::Error,
/// which figures that are not finite make it do, nothing is written.
datastore::Printout feedInflation(const std::filesystem::path& printDbPath, const std::string& client,
                                  const assessment::Inflation& inputs, const InflationResult& result);

} // namespace calculators
