#include "tax/monthlytax.h"

#include <algorithm>
#include <cmath>

#include "base/day.h"
#include "tax/kwiktax.h"

namespace tax {

namespace {

// For the year to February 2027, Income Tax Act, section 6B.
constexpr double contributionFree = 3;      // times the beneficiaries' credit
constexpr double contributionShare = 0.333; // as printed in the deduction tables, not exactly a third
constexpr double monthsAYear = 12;

double beneficiaryCredit(const MonthlyInputs& month) {
    if (month.employerMedical <= 0 && month.employeeMedical <= 0) return 0;
    const MedicalCredits& credits = medicalCredits2027;
    if (month.medAidBens <= 2) return credits.firstTwo * month.medAidBens;
    return credits.firstTwo * 2 + credits.further * (month.medAidBens - 2);
}

double contributionCredit(const MonthlyInputs& month, double beneficiaries) {
    const bool contributes = month.employerMedical > 0 || month.employeeMedical > 0;
    if (!contributes || !(beneficiaries > 0) || month.age < 65) return 0;
    const double excess = month.employerMedical + month.employeeMedical - contributionFree * beneficiaries;
    return std::max(0.0, excess * contributionShare);
}

double allowableFund(const MonthlyInputs& month, double inclusionRate) {
    const double income = month.salary + month.employerMedical + month.commissions + month.bonus +
                          month.travel * inclusionRate + month.employerFund;
    const double contributions = month.employerFund + month.employeeFund;
    const double allowed = std::min(contributions, fundDeduction2027.share * income);
    return std::min(allowed, fundDeduction2027.cap / monthsAYear);
}

/// Commissions count for the skills levy but not for UIF; only UIF has a limit.
void workLevies(const MonthlyInputs& month, const PAYESetup& setup, MonthlyTax& result) {
    const double insurable =
        month.salary + month.employerMedical + month.bonus + result.taxableTravel + month.employerFund;
    const double insured = insurable <= setup.UIFLimit ? insurable : setup.UIFLimit;
    result.employeeUIF = insured * setup.EmployeeUIF / 100;
    result.employerUIF = insured * setup.EmployerUIF / 100;
    result.skillsLevy = (insurable - result.allowableFund + month.commissions) * (setup.SkillLevy / 100);
}

} // namespace

DateFault dateFault(const MonthlyInputs& inputs) {
    const auto start = base::isShownOnScreen(inputs.startDate) ? base::calendarDate(inputs.startDate) : std::nullopt;
    const auto end = base::isShownOnScreen(inputs.endDate) ? base::calendarDate(inputs.endDate) : std::nullopt;
    if (!start) return DateFault::noStart;
    if (!end) return DateFault::noEnd;
    if (start->month != end->month) return DateFault::otherMonth;
    return start->day > end->day ? DateFault::startAfterEnd : DateFault::none;
}

double monthLength(double startDate) {
    const int month = base::calendarDate(startDate).value_or(base::CalendarDate{}).month;
    switch (month) {
    case 2: return 29;
    case 4:
    case 6:
    case 9:
    case 11: return 30;
    default: return 31;
    }
}

ScaleTax TABLEVIEW(assessment::KwikTax& client) { return taxSalary(client, monthlyTaxRules.scale); }

MonthlyTax monthlyTax(const MonthlyInputs& month, const PAYESetup& setup, double& previousInclusionRate,
                      assessment::KwikTax& client) {
    MonthlyTax result;
    result.beneficiaryCredit = beneficiaryCredit(month);
    result.allowableFund = allowableFund(month, previousInclusionRate);
    previousInclusionRate = setup.TAIncRate8020;
    result.taxableTravel = month.travel * setup.TAIncRate8020;

    const double kept = client.Salary;
    const double days = monthLength(month.startDate);
    const double worked = month.endDate - month.startDate + 1;
    client.Salary = (month.salary + month.commissions + result.taxableTravel - result.allowableFund +
                     month.employerMedical + month.employerFund) *
                        (days / worked) * monthsAYear +
                    month.bonus; // a bonus is paid once a year
    const double rebates = totalRebates(monthlyTaxRules, month.age);
    const double withBonus = std::max(0.0, TABLEVIEW(client).tax - rebates);
    client.Salary -= month.bonus;
    const double withoutBonus = std::max(0.0, TABLEVIEW(client).tax - rebates);
    if (!std::isfinite(client.Salary)) client.Salary = kept; // a result that is not finite could never be saved
    result.taxLiability = std::max(0.0, withoutBonus / monthsAYear * worked / days + (withBonus - withoutBonus));
    workLevies(month, setup, result);
    result.contributionCredit = contributionCredit(month, result.beneficiaryCredit);
    result.totalTaxDeduction =
        std::max(0.0, result.taxLiability - (result.beneficiaryCredit + result.contributionCredit));
    return result;
}

} // namespace tax
