#pragma once

#include <filesystem>
#include <string>

#include "calculators/bondanalysis.h"
#include "calculators/bondbuster.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes the client's bond and what the extra payment saves into Print.mdb. If it throws store::Error, nothing is
/// written.
///
/// The figures with the extra payment are 0 if it is too high, and empty if the bond would never be repaid with it.
datastore::Printout feedBondBuster(const std::filesystem::path& printDbPath, const std::string& client,
                                   const assessment::Bond& bond, const BondBuster& result);

/// Writes the costs of the client's bond over six terms into Print.mdb, in the same way.
datastore::Printout feedBondAnalysis(const std::filesystem::path& printDbPath, const std::string& client,
                                     const assessment::Bond& bond, const BondAnalysis& result);

} // namespace calculators
