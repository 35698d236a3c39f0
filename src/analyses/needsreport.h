#pragma once

#include <filesystem>

#include "analyses/needs.h"
#include "assessment/assessment.h"
#include "datastore/printfeed.h"

/// The common part of the reports of the three needs analyses.
namespace analyses {

/// What a report includes besides the analysis itself.
struct NeedsReportOptions {
    bool amortised = false; ///< the year-by-year table
    bool notes = false;
    bool premium = false; ///< if one is solved; reports without a premium leave it out
};

/// Where the reports differ: their table, their captions, and the definitions and titles that they run under.
struct NeedsReportRules {
    const char* table;
    const char *excess, *shortfall; ///< captions for the first month
    const char* worth;              ///< caption of a net capital of 0 or more
    datastore::Printout plain, amortised;
};

/// Writes an analysis into Print.mdb, with its years if asked for, and returns the report to run. All reports have the
/// client, the incomes of the first month and their difference, the totals, the net capital and the sentences; `own` is
/// the rest of the row. If it throws store::Error, nothing is written.
datastore::Printout feedNeeds(const std::filesystem::path& printDbPath, const assessment::Client& client,
                              const NeedsAnalysis& analysis, const datastore::Row& own, const NeedsReportRules& rules,
                              const NeedsReportOptions& options);

} // namespace analyses
