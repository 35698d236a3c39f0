#pragma once

#include <filesystem>
#include <string>

#include "calculators/drawdown.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes a draw-down annuity into Print.mdb: its inputs and costs, and years 1, 5, 10, 15 and 20; years not reached
/// are 0. amortised: all years too, one row each.
datastore::Printout feedDrawDown(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::DrawDown& annuity, const assessment::DrawDownPhases& phases,
                                 const assessment::DrawDownCosts& costs, const DrawDownResult& result, bool amortised);

} // namespace calculators
