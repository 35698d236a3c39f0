#pragma once

#include <filesystem>
#include <optional>

#include "calculators/nominaleffective.h"
#include "datastore/printfeed.h"

namespace calculators {

/// True if interest was earned over a period above 0: there is no report otherwise.
bool isPrintable(const assessment::NominalEffective& inputs, const NominalEffectiveResult& result);

/// Writes the nominal and the effective rate into Print.mdb and returns the report to run. Nothing, and nothing
/// written, unless it is printable. If it throws store::Error, nothing is written.
std::optional<datastore::Printout> feedNominalEffective(const std::filesystem::path& printDbPath,
                                                        const std::string& client,
                                                        const assessment::NominalEffective& inputs,
                                                        const NominalEffectiveResult& result);

} // namespace calculators
