#include "analyses/itemflows.h"

#include <vector>

namespace analyses {

using assessment::ItemList;
using assessment::ItemRow;

bool isInForce(const ItemRow& row, double now) { return row.FromAge <= now && now <= row.ToAge; }

Yearly itemisedIncome(const ItemList& list, double first) {
    Yearly incomes{};
    if (list.flag == 0) return incomes;
    std::vector<double> values(list.rows.size()); // each source's income in the current year
    for (std::size_t year = 1; year <= lastYear; ++year) {
        const double now = first + static_cast<double>(year - 1);
        for (std::size_t i = 0; i < list.rows.size(); ++i) {
            const ItemRow& row = list.rows[i];
            double& value = values[i];
            if (now > row.ToAge) value = 0;
            if (isInForce(row, now)) value += now == row.FromAge ? row.Amount : value * row.Escalation / 100;
            if (year > 1)
                incomes[year] += value;
            else if (isInForce(row, now))
                incomes[year] += row.Amount;
        }
    }
    return incomes;
}

void addDue(Yearly& amounts, const ItemList& list, double first) {
    if (list.flag == 0) return;
    for (const ItemRow& row : list.rows)
        if (const std::size_t year = laterYearAt(row.At, first); year > 0) amounts[year] += row.Amount;
}

std::size_t laterYearAt(double when, double first) {
    const double years = when - first;
    if (!(years >= 1 && years <= mostYears)) return 0;
    const auto year = static_cast<std::size_t>(years) + 1;
    return first + static_cast<double>(year - 1) == when ? year : 0;
}

} // namespace analyses
