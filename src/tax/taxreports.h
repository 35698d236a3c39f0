#pragma once

#include <filesystem>
#include <string>

#include "datastore/printfeed.h"
#include "tax/kwiktax.h"
#include "tax/monthlytax.h"

namespace tax {

/// A month as its screen shows it; no file has it.
struct MonthShown {
    std::string employee; ///< as printed
    MonthlyInputs inputs;
    PAYESetup setup;
    MonthlyTax result;
};

/// Writes a client's quick tax into Print.mdb and returns the report to run, which has its own title. If it throws
/// store::Error, nothing is written.
datastore::Printout feedQuickTaxReport(const std::filesystem::path& printDbPath, const std::string& client,
                                       const assessment::KwikTax& income, const QuickTax& result);

/// Writes an employee's month, and the settings used, into Print.mdb and returns the report to run. If it throws
/// store::Error, nothing is written.
datastore::Printout feedMonthlyReport(const std::filesystem::path& printDbPath, const std::string& client,
                                      const MonthShown& shown);

} // namespace tax
