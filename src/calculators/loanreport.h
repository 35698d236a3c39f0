#pragma once

#include <filesystem>
#include <string>

#include "assessment/assessment.h"
#include "calculators/amortisation.h"
#include "datastore/printfeed.h"

namespace calculators {

/// What the loan report shows besides the loan itself.
struct LoanReportOptions {
    bool charges = false; ///< total interest and total repayments
    AmortisationChoice table;
};

/// Chosen by the loan's mode. Without a table the title is that of the annual one; there is no title of its own.
datastore::Printout loanReport(const assessment::Loans& loan, const LoanReportOptions& options);

/// Writes the client's loan, and its table if asked for, into Print.mdb. If it throws store::Error, nothing is written.
void feedLoanReport(const std::filesystem::path& printDbPath, const std::string& client, const assessment::Loans& loan,
                    const LoanReportOptions& options);

} // namespace calculators
