#pragma once

#include "analyses/needsreport.h"

/// The reports of the death and the disability analysis. Both use the table `NADeath`, and each its own definitions.
namespace analyses {

NeedsReport deathReport(const NeedsReportOptions& options);
NeedsReport disabilityReport(const NeedsReportOptions& options);

/// Writes an analysis into Print.mdb, and its years if asked for. If it throws store::Error, nothing is written.
void feedDeath(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
               const NeedsAnalysis& analysis, const NeedsReportOptions& options);
void feedDisability(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const NeedsAnalysis& analysis, const NeedsReportOptions& options);

} // namespace analyses
