#include "calculators/amortisation.h"

#include "base/rounding.h"
#include "calculators/loans.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace calculators {

namespace {

constexpr double monthsOfAnAnnualTable = 13;

std::size_t at(int index) { return static_cast<std::size_t>(index); }

/// The number of months in a table. An old file may hold a period that is no number of months at all.
int tableMonths(double wholeMonths) {
    if (!(wholeMonths >= 1)) return 0;
    return static_cast<int>(std::min<double>(wholeMonths, Amortisation::mostMonths));
}

double sumOfYear(const Amortisation::Column& monthly, int lastMonth) {
    const auto end = monthly.begin() + lastMonth + 1;
    return std::accumulate(end - 12, end, 0.0);
}

AmortisationRow row(const Amortisation& table, const Amortisation::Column& capital,
                    const Amortisation::Column& interest, int i) {
    return {i, capital[at(i)], interest[at(i)], table.MonthBalance[at(i)]};
}

} // namespace

bool RepaidLoan::hasMonths() const { return principal != 0 && months != 0 && percentAYear != 0 && repayment != 0; }

bool RepaidLoan::hasYears() const { return hasMonths() && months >= monthsOfAnAnnualTable; }

std::string AmortisationChoice::unit() const {
    if (!included) return {};
    return monthly ? "Month" : "Year";
}

Amortisation monthlyAmortisation(const RepaidLoan& loan) {
    Amortisation table;
    const double whole = base::roundHalfEven(loan.months);
    table.months = tableMonths(whole);
    const double growth = 1 + monthlyRate(loan.percentAYear);
    const double pay = repaymentFor(loan.principal, loan.months, loan.percentAYear);
    double balance = loan.principal;
    for (int i = 1; i <= table.months; ++i) {
        const double capital = pay * std::pow(growth, -((whole + 1) - i));
        balance = std::fabs(balance - capital);
        table.MonthCapital[at(i)] = capital;
        table.MonthInterest[at(i)] = pay - capital;
        table.MonthBalance[at(i)] = balance;
    }
    return table;
}

Amortisation annualAmortisation(const RepaidLoan& loan) {
    Amortisation table = monthlyAmortisation(loan);
    double capitalSoFar = 0, interestSoFar = 0;
    for (int month = 12; month <= table.months; month += 12) {
        const int year = table.AmortYears = month / 12;
        capitalSoFar += table.YearCapital[at(year)] = sumOfYear(table.MonthCapital, month);
        interestSoFar += table.YearInterest[at(year)] = sumOfYear(table.MonthInterest, month);
        table.MonthBalance[at(year)] = table.MonthBalance[at(month)];
    }
    if (table.months % 12 == 0) return table;
    table.AmortShape = 2;
    const int partYear = table.years();
    table.YearCapital[at(partYear)] = loan.principal - capitalSoFar;
    table.YearInterest[at(partYear)] = (loan.repayment * loan.months - loan.principal) - interestSoFar;
    table.MonthBalance[at(partYear)] = table.MonthBalance[at(table.months)];
    return table;
}

Amortisation CalcAnnAmort(const assessment::Loans& loan) { return annualAmortisation(repaid(loan)); }

RepaidLoan repaid(const assessment::Loans& loan) { return {loan.Num1, loan.Num2, loan.Num3, loan.Num4}; }

std::vector<AmortisationRow> monthRows(const Amortisation& table) {
    std::vector<AmortisationRow> rows;
    for (int i = 1; i <= table.months; ++i)
        rows.push_back(row(table, table.MonthCapital, table.MonthInterest, i));
    return rows;
}

std::vector<AmortisationRow> yearRows(const Amortisation& table) {
    std::vector<AmortisationRow> rows;
    for (int i = 1; i <= table.years(); ++i)
        rows.push_back(row(table, table.YearCapital, table.YearInterest, i));
    return rows;
}

std::vector<AmortisationRow> chosenRows(const RepaidLoan& loan, const AmortisationChoice& choice) {
    return choice.monthly ? monthRows(monthlyAmortisation(loan)) : yearRows(annualAmortisation(loan));
}

std::vector<std::vector<double>> tableRows(const std::vector<AmortisationRow>& lines) {
    std::vector<std::vector<double>> rows;
    rows.reserve(lines.size());
    for (const AmortisationRow& line : lines)
        rows.push_back({static_cast<double>(line.number), line.capital, line.interest, line.balance});
    return rows;
}

} // namespace calculators
