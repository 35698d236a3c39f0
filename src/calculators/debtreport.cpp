#include "calculators/debtreport.h"

#include "base/numberformat.h"
#include "calculators/amortisationfeed.h"

namespace calculators {

namespace {

/// The consolidated loan in words.
std::string described(const RepaidLoan& loan) {
    return base::formatNumber(loan.principal, "# ### ### ##0.00") + " at " +
           base::formatNumber(loan.percentAYear, "##0.###") + " %p.a. for " + base::formatNumber(loan.months, "##0") +
           " months.";
}

datastore::Printout printoutOf(const AmortisationChoice& table) {
    if (!table.included) return {"\\DebtCons.rpt", "Debt Consolidation"};
    return {"\\DCMonAnn.rpt", table.monthly ? "Debt Consolidation With Monthly Amortisation"
                                            : "Debt Consolidation With Annual Amortisation"};
}

} // namespace

datastore::Printout feedDebts(const std::filesystem::path& printDbPath, const std::string& client,
                              const assessment::DebtConsolidation& debts, const DebtComparison& result,
                              const AmortisationChoice& table) {
    const double saving = result.saving();
    const std::string none;
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("DebtCon", {{"Loan1Amt", debts.Loan1Amt},
                             {"Loan2Amt", debts.Loan2Amt},
                             {"Loan3Amt", debts.Loan3Amt},
                             {"Loan4Amt", debts.Loan4Amt},
                             {"Loan5Amt", debts.Loan5Amt},
                             {"Loan1Int", debts.Loan1Int},
                             {"Loan2Int", debts.Loan2Int},
                             {"Loan3Int", debts.Loan3Int},
                             {"Loan4Int", debts.Loan4Int},
                             {"Loan5Int", debts.Loan5Int},
                             {"LoanAmtTot", described(result.consolidated)},
                             {"ANS1", result.BeforeTotal},
                             {"ANS2", result.AfterRep()},
                             {"ANS3Text1", saving == 0 ? none : "Monthly saving after consolidation"},
                             {"ANS3Text2", saving == 0 ? none : ": "},
                             {"ANS3", saving == 0 ? store::Value{} : store::Value{saving}},
                             {"YearMon", table.unit()}});
    feedAmortisation(feed, result.consolidated, table);
    feed.commit();
    return printoutOf(table);
}

} // namespace calculators
