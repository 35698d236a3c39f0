#pragma once

#include <filesystem>

#include "calculators/realrate.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes a real rate of return into Print.mdb and returns the report to run. The fields of the other screen are empty.
/// If it throws store::Error, nothing is written.
datastore::Printout feedRealRate(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::RRROld& inputs, const RealRate& result);
datastore::Printout feedRealRate(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::RRRNew& inputs, const RealRate& result);

} // namespace calculators
