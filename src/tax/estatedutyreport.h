#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "tax/estateduty.h"

namespace tax {

/// Writes an estimate of estate duty, with the rates used, into Print.mdb and returns the report to run. If it throws
/// store::Error, nothing is written.
datastore::Printout feedEstateDuty(const std::filesystem::path& printDbPath, const std::string& client,
                                   const assessment::EstateDuty& estate, const EstateDutyRates& rates,
                                   const EstateDutyEstimate& result);

} // namespace tax
