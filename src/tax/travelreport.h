#pragma once

#include <filesystem>

#include "datastore/printfeed.h"
#include "datastore/reportlanguage.h"
#include "tax/travel.h"

namespace tax {

/// Writes a travel claim into Print.mdb and returns the report to run, by the method chosen and the language. If it
/// throws store::Error, nothing is written.
datastore::Printout PrintCarAll1(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::CarAll& car, const TravelClaim& result,
                                 datastore::ReportLanguage language);

} // namespace tax
