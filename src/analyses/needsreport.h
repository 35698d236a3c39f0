#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "analyses/needs.h"
#include "assessment/assessment.h"
#include "datastore/row.h"

/// The common part of the reports of the three needs analyses.
namespace analyses {

/// What a report includes besides the analysis itself.
struct NeedsReportOptions {
    bool amortised = false; ///< the year-by-year table
    bool notes = false;
};

/// The definition and the window title of a report.
struct NeedsReport {
    std::string definition, title;
};

/// Texts in which the reports differ.
struct NeedsReportWords {
    const char *excess, *shortfall; ///< captions for the first month
    const char* worth;              ///< caption of a net capital of 0 or more
};

/// The client, the first month's incomes and their difference, the totals, the net capital and the sentences.
datastore::Row commonLines(const assessment::Client& client, const NeedsAnalysis& analysis,
                           const NeedsReportWords& words);

/// Writes the row of an analysis, put together from parts, into its table of Print.mdb, and its years if asked for. If
/// it throws store::Error, nothing is written.
void feedNeeds(const std::filesystem::path& printDbPath, const assessment::Client& client, const char* table,
               const std::vector<datastore::Row>& parts, const NeedsAnalysis& analysis,
               const NeedsReportOptions& options);

} // namespace analyses
