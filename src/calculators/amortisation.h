#pragma once

#include "assessment/assessment.h"

#include <array>
#include <vector>

namespace calculators {

/// How a loan with level repayments is repaid, by month and by year. Index 0 is unused.
struct Amortisation {
    static constexpr int mostMonths = 1000;
    using Column = std::array<double, mostMonths + 1>;

    Column MonthCapital{};  ///< capital repaid, by month, rand
    Column MonthInterest{}; ///< interest paid, by month
    Column MonthBalance{};  ///< owed at the end of the month; `CalcAnnAmort` puts the years' over its start
    Column YearCapital{};   ///< capital repaid, by year
    Column YearInterest{};  ///< interest paid, by year
    int months = 0;         ///< number of months in the monthly columns
    int AmortShape = 1;     ///< 1: whole years; 2: a part year follows
    int AmortYears = 0;     ///< whole years

    /// Number of years in the annual columns, including a part year.
    int years() const { return AmortShape == 2 ? AmortYears + 1 : AmortYears; }
};

/// One line of an amortisation table, on screen or in a report.
struct AmortisationRow {
    int number = 0; ///< of the month or year, from 1
    double capital = 0;
    double interest = 0;
    double balance = 0;
};

/// Fills the monthly columns only.
///
/// `months` is rounded to a whole number; below 1 there are no rows. Only the first 1000 months are kept. The balance
/// has no sign, so that a last balance a hair below 0 does not show as negative.
Amortisation monthlyAmortisation(double principal, double months, double percentAYear);

/// Monthly and annual columns. The annual balances overwrite the start of `MonthBalance`: MonthBalance(y) is of year y.
///
/// A part year at the end takes what is left over: its capital is the rest of `principal`, its interest the rest of all
/// interest at the `repayment` entered, which may differ from the formula's; its balance is that of the last month.
Amortisation annualAmortisation(double principal, double months, double percentAYear, double repayment);

/// `annualAmortisation` of the loan.
Amortisation CalcAnnAmort(const assessment::Loans& loan);

/// The lines of the monthly table. Only for `monthlyAmortisation`: `CalcAnnAmort` overwrites the first balances.
std::vector<AmortisationRow> monthRows(const Amortisation& table);

/// The lines of the annual table.
std::vector<AmortisationRow> yearRows(const Amortisation& table);

/// The same lines as figures for a table on a screen: number, capital, interest, balance.
std::vector<std::vector<double>> tableRows(const std::vector<AmortisationRow>& lines);

} // namespace calculators
