#include "tax/taxreports.h"

#include "base/day.h"
#include "datastore/settings.h"

namespace tax {

datastore::Printout feedQuickTaxReport(const std::filesystem::path& printDbPath, const std::string& client,
                                       const assessment::KwikTax& income, const QuickTax& result) {
    const TaxYear& year = (choosesFebruary2026(income) ? quickTaxFebruary2026 : quickTaxFebruary2027).scale;
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("kwiktax", {{"AGE", income.Age},
                             {"TAXINCOME", income.Salary},
                             {"TAXTOPAY", result.TaxOnLowerLimit},
                             {"MARGRATE", result.MarginalRate},
                             {"PORTION", result.PortionAtRate},
                             {"TOTTAX", result.TotalTax},
                             {"REBATE", result.TotalRebates},
                             {"TAXCOM4", result.TaxCommitment},
                             {"AVRATE", result.AverageBefore},
                             {"AVRATEAFT", result.AverageAfter},
                             {"TAXCOM4/2", result.TaxCommitment / 12},
                             {"YR9798", std::string("Tax calculation used if for the tax year ending ") + year.ends},
                             {"TaxYear", year.ends}});
    feed.commit();
    return {"\\kwiktep.rpt", ""};
}

datastore::Printout feedMonthlyReport(const std::filesystem::path& printDbPath, const std::string& client,
                                      const MonthShown& shown) {
    const auto& [employee, month, setup, result] = shown;
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace(payeSetupTable().name(), datastore::rowOf(payeSetupTable(), setup));
    // The captions that the report prints beside the figures.
    feed.replace("IRP5Mon", {{"TypeAM", "Monthly Check"},
                             {"Employee", " For : " + employee},
                             {"EmployeeName", employee},
                             {"Age", "Age : "},
                             {"AgeNum", month.age},
                             {"Sal", "Remuneration/salary"},
                             {"SalNum", month.salary},
                             {"DirFees", "Commissions"},
                             {"DirFeesNum", month.commissions},
                             {"TravAll", "Travel allowance "},
                             {"TravOne", month.travel},
                             {"TravTwo", result.taxableTravel},
                             {"Bonus", "Bonus"},
                             {"BonusNum", month.bonus},
                             {"MedExp", "Medical expenses"},
                             {"MedExpNum", 0}, // credits have replaced this deduction, but the report keeps its line
                             {"PenCont", "Employer's R/Fund contributions "},
                             {"PenContNum", month.employerFund},
                             {"RACont", "Employee's R/Fund contributions"},
                             {"RAContNum", month.employeeFund},
                             {"AllowableFund", "Allowable R/Fund deduction"},
                             {"AllowableFundNum", result.allowableFund},
                             {"SDATE", "Start date"},
                             {"SDateNum", base::reportDate(month.startDate)},
                             {"EDATE", "End date"},
                             {"EDateNum", base::reportDate(month.endDate)},
                             {"UIFEMPE", "U.I.F. contribution employee"},
                             {"UIFEMPENum", result.employeeUIF},
                             {"UIFEMPR", "U.I.F. contribution employer"},
                             {"UIFEMPRNum", result.employerUIF},
                             {"SDL", "S.D.L."},
                             {"SDLNum", result.skillsLevy},
                             {"EOE", "(E.& O.E.)"},
                             {"Taxliability", "Tax liability"},
                             {"Taxliabilitynum", result.taxLiability},
                             {"TaxCredit", "Tax credits for beneficiaries"},
                             {"Taxcreditnum", result.beneficiaryCredit},
                             {"TaxCreditCons", "Tax credits for contributions"},
                             {"TaxcreditnumCons", result.contributionCredit},
                             {"EmpERMedAidCont", "Employer's med aid contrib."},
                             {"EmpERMedAidContnum", month.employerMedical},
                             {"EmpEEMedAidCont", "Employee's med aid contrib."},
                             {"EmpEEMedAidContnum", month.employeeMedical},
                             {"AnnCalcBens3", "Medical aid fund beneficiaries"},
                             {"AnnCalcBens3num", month.medAidBens},
                             {"MedAidBens", "Med Aid contribution deduction"},
                             {"total", "Total tax deduction"},
                             {"TotalNum", result.totalTaxDeduction}});
    feed.commit();
    return {"\\Monthly.rpt", "Monthly - To export printout click on the suitcase button or goto Help"};
}

} // namespace tax
