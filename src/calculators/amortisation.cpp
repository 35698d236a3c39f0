#include "calculators/amortisation.h"

#include "base/rounding.h"
#include "calculators/loans.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace calculators {

namespace {

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

Amortisation monthlyAmortisation(double principal, double months, double percentAYear) {
    Amortisation table;
    const double whole = base::roundHalfEven(months);
    table.months = tableMonths(whole);
    const double growth = 1 + monthlyRate(percentAYear);
    const double pay = repaymentFor(principal, months, percentAYear);
    double balance = principal;
    for (int i = 1; i <= table.months; ++i) {
        const double capital = pay * std::pow(growth, -((whole + 1) - i));
        balance = std::fabs(balance - capital);
        table.MonthCapital[at(i)] = capital;
        table.MonthInterest[at(i)] = pay - capital;
        table.MonthBalance[at(i)] = balance;
    }
    return table;
}

Amortisation annualAmortisation(double principal, double months, double percentAYear, double repayment) {
    Amortisation table = monthlyAmortisation(principal, months, percentAYear);
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
    table.YearCapital[at(partYear)] = principal - capitalSoFar;
    table.YearInterest[at(partYear)] = (repayment * months - principal) - interestSoFar;
    table.MonthBalance[at(partYear)] = table.MonthBalance[at(table.months)];
    return table;
}

Amortisation CalcAnnAmort(const assessment::Loans& loan) {
    return annualAmortisation(loan.Num1, loan.Num2, loan.Num3, loan.Num4);
}

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

std::vector<std::vector<double>> tableRows(const std::vector<AmortisationRow>& lines) {
    std::vector<std::vector<double>> rows;
    rows.reserve(lines.size());
    for (const AmortisationRow& line : lines)
        rows.push_back({static_cast<double>(line.number), line.capital, line.interest, line.balance});
    return rows;
}

} // namespace calculators
