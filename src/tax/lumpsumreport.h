#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "tax/lumpsum.h"

namespace tax {

/// Writes a client's lump sums and the tax on them into Print.mdb and returns the report to run. If it throws
/// store::Error, nothing is written.
datastore::Printout LumpSumsPrint(const std::filesystem::path& printDbPath, const std::string& client,
                                  const assessment::LumpSums& lumpSums, const LumpSumTax& result);

} // namespace tax
