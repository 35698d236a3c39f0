#pragma once

#include <filesystem>
#include <string>

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

/// Writes a client's quick tax into Print.mdb for `kwiktep.rpt`. If it throws store::Error, nothing is written.
void feedQuickTaxReport(const std::filesystem::path& printDbPath, const std::string& client,
                        const assessment::KwikTax& income, const QuickTax& result);

/// Writes an employee's month, and the settings used, into Print.mdb for `Monthly.rpt`. If it throws store::Error,
/// nothing is written.
void feedMonthlyReport(const std::filesystem::path& printDbPath, const std::string& client, const std::string& employee,
                       const MonthlyInputs& month, const PAYESetup& setup, const MonthlyTax& result);

} // namespace tax
