#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "datastore/reportlanguage.h"
#include "tax/rataxadvantage.h"

namespace tax {

/// Writes the advantage of a contribution into Print.mdb and returns the report to run. If it throws store::Error,
/// nothing is written.
datastore::Printout PrintRATaxAdvantage(const std::filesystem::path& printDbPath, const std::string& client,
                                        const assessment::RATaxAdvantage& inputs, const RATaxResult& result,
                                        datastore::ReportLanguage language);

} // namespace tax
