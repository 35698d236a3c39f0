#pragma once

#include <filesystem>
#include <vector>

#include "assessment/assessment.h"
#include "datastore/printfeed.h"
#include "tax/capitalgainyear.h"

namespace tax {

/// What the screen of capital gains passes to its printouts besides the record.
struct CapitalGainReportOptions {
    YearResults results;     ///< as shown, after a calculation
    int CurrentAsset = 0;    ///< number of the asset shown, 0 without assets
    bool knownGains = false; ///< also print those of trusts and other sources
};

/// Writes the assets, the summary of the year on the first one's row, and the known gains into Print.mdb. The assets
/// are to have been worked out; their stored gains are printed, and only the words for the methods are found again.
///
/// Returns the reports to run, in this order: the assets, if there are any; the known gains, if asked for and if there
/// are assets or such gains. None if there is nothing to print. If the asset shown is split, the known gains are
/// halved, except what is already split by their list. If it throws store::Error, nothing is written.
std::vector<datastore::Printout> feedCapitalGains(const std::filesystem::path& printDbPath,
                                                  const assessment::Assessment& record,
                                                  const CapitalGainReportOptions& options);

} // namespace tax
