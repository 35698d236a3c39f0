#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "finance/lifeofcapital.h"

namespace calculators {

/// Writes a life of capital into Print.mdb, with its years if amortised, and returns the report to run. If it throws
/// store::Error, which figures that are not finite make it do, nothing is written.
datastore::Printout feedLifeOfCapital(const std::filesystem::path& printDbPath, const std::string& client,
                                      const assessment::LifeOfCapital& inputs, const finance::CapitalLife& life,
                                      bool amortised);

} // namespace calculators
