#pragma once

#include <filesystem>

#include "calculators/offshore.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes an offshore and a local investment into Print.mdb and returns the report to run. If it throws store::Error,
/// nothing is written.
datastore::Printout feedOffShore(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::OffShore& inputs, const OffShoreResult& result);

} // namespace calculators
