#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "datastore/printfeed.h"

/// The pages before the parts of the client file. If a feed throws store::Error, nothing is written.
namespace clientfile {

/// Writes the cover into Print.mdb and returns the report to run: the client, the identity number, and the day in words
/// ("23 November 2026"; empty for a day without a calendar date). The practice stands in the page's own lines.
datastore::Printout feedCover(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                              double today);

/// Writes where stored results differ from the record into Print.mdb, a line for each remark, and returns the report to
/// run. client: the name printed on each page.
datastore::Printout feedRemarks(const std::filesystem::path& printDbPath, const std::string& client,
                                const std::vector<std::string>& remarks);

} // namespace clientfile
