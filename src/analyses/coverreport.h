#pragma once

#include "analyses/needsreport.h"

/// The reports of the death and the disability analysis. Both use the table `NADeath`, and each its own definitions.
namespace analyses {

/// Writes an analysis into Print.mdb, with its years if asked for, and returns the report to run. If it throws
/// store::Error, nothing is written.
datastore::Printout feedDeath(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                              const NeedsAnalysis& analysis, const NeedsReportOptions& options);
datastore::Printout feedDisability(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                   const NeedsAnalysis& analysis, const NeedsReportOptions& options);

} // namespace analyses
