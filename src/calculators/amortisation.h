#pragma once

#include "assessment/assessment.h"

#include <array>
#include <vector>

namespace calculators {

/// How a level loan is repaid, month by month and year by year. Index 0 is unused.
struct Amortisation {
    static constexpr int mostMonths = 1000;
    using Column = std::array<double, mostMonths + 1>;

    Column MonthCapital{};  ///< capital repaid, by month, rand
    Column MonthInterest{}; ///< interest paid, by month
    Column MonthBalance{};  ///< owed at the end of the month; `CalcAnnAmort` lays that of each year over its front
    Column YearCapital{};   ///< capital repaid, by year
    Column YearInterest{};  ///< interest paid, by year
    int months = 0;         ///< months that the monthly columns hold
    int AmortShape = 1;     ///< 1: whole years; 2: a part year follows them
    int AmortYears = 0;     ///< whole years

    /// Years that the annual columns hold, a part year counted.
    int years() const { return AmortShape == 2 ? AmortYears + 1 : AmortYears; }
};

/// One line of an amortisation table, on screen or in a report.
struct AmortisationRow {
    int number = 0; ///< of the month or year, from 1
    double capital = 0;
    double interest = 0;
    double balance = 0;
};

/// The monthly columns alone of a loan's repayment.
///
/// `months` is taken to the nearest whole number; below 1 there is no row. Only the first 1000 months are held. The
/// balance is without sign, so that one which ends a hair below nothing does not show as negative.
Amortisation monthlyAmortisation(double principal, double months, double percentAYear);

/// Monthly and annual columns, the annual balances laid over the front of `MonthBalance`: MonthBalance(y) for year y.
///
/// The part year that may remain takes what is left: its capital of `principal`, its interest of all interest at the
/// `repayment` entered, which need not be the one that the formula gives; its balance is that of the last month.
Amortisation annualAmortisation(double principal, double months, double percentAYear, double repayment);

/// `annualAmortisation` of the loan.
Amortisation CalcAnnAmort(const assessment::Loans& loan);

/// The lines of the monthly table, for `monthlyAmortisation` only: `CalcAnnAmort` loses the first balances.
std::vector<AmortisationRow> monthRows(const Amortisation& table);

/// The lines of the annual table.
std::vector<AmortisationRow> yearRows(const Amortisation& table);

} // namespace calculators
