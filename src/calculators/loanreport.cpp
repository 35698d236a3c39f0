#include "calculators/loanreport.h"

#include <array>

#include "calculators/amortisationfeed.h"
#include "calculators/loans.h"

namespace calculators {

namespace {

struct ModeReport {
    const char* definition;
    const char* annualTitle;
    const char* monthlyTitle;
};

// In the order of the modes on the screen.
constexpr std::array<ModeReport, 4> reports{{
    {"Lonrepa", "Annual repayment of Loan with Amortisation", "Annual repayment of Loan with Monthly Amortisation"},
    {"LonPrAm", "Principal calculation of Loan with Annual Amortisation",
     "Principal calculation of Loan with Monthly Amortisation"},
    {"LonRPer", "Repayment period calculation of Loan with Annual Amortisation",
     "Repayment period calculation of Loan with Monthly Amortisation"},
    {"LonInRt", "Interest rate calculation of Loan with Annual Amortisation",
     "Interest rate calculation of Loan with Monthly Amortisation"},
}};

} // namespace

datastore::Printout loanReport(const assessment::Loans& loan, const LoanReportOptions& options) {
    const auto mode = loanMode(loan.Heading).value_or(LoanMode::MonthlyRepayment);
    const ModeReport& report = reports[static_cast<std::size_t>(mode)];
    const std::string suffix = options.table.included ? "A" : "";
    return {"\\" + (report.definition + suffix) + ".rpt",
            options.table.included && options.table.monthly ? report.monthlyTitle : report.annualTitle};
}

void feedLoanReport(const std::filesystem::path& printDbPath, const std::string& client, const assessment::Loans& loan,
                    const LoanReportOptions& options) {
    const std::string none;
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("Loans", {{"Heading", loan.Heading},
                           {"Num1", loan.Num1},
                           {"Num2", loan.Num2},
                           {"Num3", loan.Num3},
                           {"Num4", loan.Num4},
                           {"FinText1", options.charges ? "Total Interest" : none},
                           {"FinText1A", options.charges ? ": " : none},
                           {"FinNum1", options.charges ? totalInterest(loan) : 0},
                           {"FinText2", options.charges ? "Total Repayments" : none},
                           {"FinNum2", options.charges ? totalRepayments(loan) : 0},
                           {"YearMon", options.table.unit()}});
    feedAmortisation(feed, repaid(loan), options.table);
    feed.commit();
}

} // namespace calculators
