#pragma once

#include "analyses/needsreport.h"
#include "analyses/retirement.h"

namespace analyses {

NeedsReport retirementReport(const NeedsReportOptions& options);

/// Writes an analysis into Print.mdb, and its years if asked for. The block for the premium stays blank: no premium is
/// solved yet. If it throws store::Error, nothing is written.
void feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const RetirementAnalysis& analysis, const NeedsReportOptions& options);

} // namespace analyses
