#pragma once

#include <filesystem>

#include "analyses/education.h"
#include "datastore/printfeed.h"

namespace analyses {

/// Writes an analysis into Print.mdb, with its years if amortised, and returns the report to run. The lines of the
/// premium stay blank, since no premium can be calculated yet. If it throws store::Error, nothing is written.
datastore::Printout feedEducation(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                  const EducationAnalysis& analysis, bool amortised);

} // namespace analyses
