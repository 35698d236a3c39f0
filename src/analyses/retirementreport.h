#pragma once

#include <filesystem>

#include "analyses/retirement.h"

namespace analyses {

/// What the retirement report takes beside the analysis itself.
struct RetirementReportOptions {
    bool amortised = false; ///< the years one by one
    bool notes = false;
};

/// Writes an analysis into Print.mdb, and its years if asked for. The premium's block stays blank: no premium is solved
/// yet. Throws store::Error; nothing is written then.
void feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const RetirementAnalysis& analysis, const RetirementReportOptions& options);

} // namespace analyses
