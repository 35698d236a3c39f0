#pragma once

#include <filesystem>

#include "analyses/retirement.h"

namespace analyses {

/// What the retirement report includes besides the analysis itself.
struct RetirementReportOptions {
    bool amortised = false; ///< the year-by-year table
    bool notes = false;
};

/// Writes an analysis into Print.mdb, and its years if asked for. The block for the premium stays blank: no premium is
/// solved yet. If it throws store::Error, nothing is written.
void feedRetirement(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                    const RetirementAnalysis& analysis, const RetirementReportOptions& options);

} // namespace analyses
