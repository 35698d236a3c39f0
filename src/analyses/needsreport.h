#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "analyses/needs.h"
#include "assessment/assessment.h"
#include "datastore/row.h"

/// What the reports of the three large analyses have in common.
namespace analyses {

/// What a report includes besides the analysis itself.
struct NeedsReportOptions {
    bool amortised = false; ///< the year-by-year table
    bool notes = false;
};

/// The definition and the window title that a report runs under.
struct NeedsReport {
    std::string definition, title;
};

/// Texts in which the reports differ.
struct NeedsReportWords {
    const char *excess, *shortfall; ///< of the first month
    const char* worth;              ///< before a net capital of 0 and more
};

/// Who it is about, the first month's incomes and their difference, the totals, the net capital and the sentences.
datastore::Row commonLines(const assessment::Client& client, const NeedsAnalysis& analysis,
                           const NeedsReportWords& words);

/// Writes the one row of an analysis into its table of Print.mdb, put together from parts, and its years if asked for.
/// Throws store::Error; nothing is written then.
void feedNeeds(const std::filesystem::path& printDbPath, const assessment::Client& client, const char* table,
               const std::vector<datastore::Row>& parts, const NeedsAnalysis& analysis,
               const NeedsReportOptions& options);

} // namespace analyses
