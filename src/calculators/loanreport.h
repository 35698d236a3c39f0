#pragma once

#include <filesystem>
#include <string>

#include "assessment/assessment.h"

namespace calculators {

/// What the loan report is to show beside the loan itself.
struct LoanReportOptions {
    bool charges = false;   ///< total interest and total repayments
    bool amortised = false; ///< a table of the repayment, ...
    bool monthly = false;   ///< ... by month rather than by year
};

/// The definition and the window title that a loan's report runs under.
struct LoanReport {
    std::string definition;
    std::string title;
};

/// Chosen by the loan's mode. Without a table the title is the annual one: no plain title was ever set.
LoanReport loanReport(const assessment::Loans& loan, const LoanReportOptions& options);

/// Writes the client's loan, and its table if asked for, into Print.mdb. Throws store::Error; nothing is written then.
void feedLoanReport(const std::filesystem::path& printDbPath, const std::string& client, const assessment::Loans& loan,
                    const LoanReportOptions& options);

} // namespace calculators
