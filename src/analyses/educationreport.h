#pragma once

#include <filesystem>

#include "analyses/education.h"
#include "datastore/printfeed.h"

namespace analyses {

/// What a report includes besides the analysis itself.
struct EducationReportOptions {
    bool amortised = false; ///< the year-by-year table
    bool premium = false;   ///< if one is solved
};

/// Writes an analysis into Print.mdb, with its years if asked for, and returns the report to run. If it throws
/// store::Error, nothing is written.
datastore::Printout feedEducation(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                  const EducationAnalysis& analysis, const EducationReportOptions& options);

} // namespace analyses
