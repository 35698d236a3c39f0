#pragma once

#include "analyses/needsreport.h"
#include "analyses/retirement.h"

namespace analyses {

/// Writes an analysis into Print.mdb, with its years if asked for, and returns the report to run. The block for the
/// premium stays blank: no premium is solved yet. If it throws store::Error, nothing is written.
datastore::Printout feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                   const RetirementAnalysis& analysis, const NeedsReportOptions& options);

} // namespace analyses
