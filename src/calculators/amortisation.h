#pragma once

#include "assessment/assessment.h"

#include <array>
#include <string>
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

/// A loan with level repayments, as its amortisation needs it.
struct RepaidLoan {
    double principal = 0; ///< rand
    double months = 0;
    double percentAYear = 0; ///< nominal, compounded monthly
    double repayment = 0;    ///< rand a month

    /// True if none of the four is 0: only then is there anything to show by month.
    bool hasMonths() const;
    /// True if there is anything to show by year too: twelve months fill one year only, nothing to compare.
    bool hasYears() const;
};

/// The amortisation that a report includes.
struct AmortisationChoice {
    bool included = false;
    bool monthly = false; ///< by month rather than by year

    /// The head of the first column: "Month" or "Year"; empty without an amortisation.
    std::string unit() const;
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
/// `months` is rounded to a whole number; below 1 there are no rows. Only the first 1000 months are kept. The payment
/// is the formula's, whatever `repayment` is. The balance has no sign, so that a last balance a hair below 0 does not
/// show as negative.
Amortisation monthlyAmortisation(const RepaidLoan& loan);

/// Monthly and annual columns. The annual balances overwrite the start of `MonthBalance`: MonthBalance(y) is of year y.
///
/// A part year at the end takes what is left over: its capital is the rest of `principal`, its interest the rest of all
/// interest at `repayment`, which may differ from the formula's; its balance is that of the last month.
Amortisation annualAmortisation(const RepaidLoan& loan);

/// `annualAmortisation` of the loan.
Amortisation CalcAnnAmort(const assessment::Loans& loan);

/// The loan calculator's loan.
RepaidLoan repaid(const assessment::Loans& loan);

/// The lines of the monthly table. Only for `monthlyAmortisation`: `annualAmortisation` overwrites the first balances.
std::vector<AmortisationRow> monthRows(const Amortisation& table);

/// The lines of the annual table.
std::vector<AmortisationRow> yearRows(const Amortisation& table);

/// The lines of the table that was chosen.
std::vector<AmortisationRow> chosenRows(const RepaidLoan& loan, const AmortisationChoice& choice);

/// The same lines as figures for a table on a screen: number, capital, interest, balance.
std::vector<std::vector<double>> tableRows(const std::vector<AmortisationRow>& lines);

} // namespace calculators
