#include "analyses/retirementflows.h"

#include "analyses/itemflows.h"
#include "client/years.h"

namespace analyses {

namespace {

using assessment::ItemRow;
using assessment::Policy;

double ageIn(const assessment::Assessment& record, std::size_t year) {
    return record.retirement.AgeRetiment + static_cast<double>(year - 1);
}

/// The policies' pensions in each year, rand a month. Each year adds one more escalation step than the year before, on
/// top of all earlier steps; a step is a percentage of the initial pension.
Yearly policyIncomes(const assessment::Assessment& record, double pensions) {
    Yearly incomes{};
    double income = pensions;
    for (std::size_t year = 1; year <= lastYear; ++year) {
        const int steps = static_cast<int>(year) - 2; // from the age after retirement to the age before this one
        for (const Policy& policy : record.policies) {
            const double step = (static_cast<double>(policy.RBMonAvaibleEscFor) / 100) * policy.RBMonAvaible;
            if (step == 0) continue;
            for (int k = 0; k < steps; ++k)
                income += step;
        }
        incomes[year] = income;
    }
    return incomes;
}

/// Inflates a need in today's money over the years from the next birthday to an age, both included.
double inflatedTo(double age, double amount, const assessment::NARetirement& needs) {
    for (int year = client::yearsFromTo(needs.CurrAge + 1, age); year > 0; --year)
        amount = amount * needs.InflationRA / 100 + amount;
    return amount;
}

/// The monthly need of a year from the itemised needs in force; without one, last year's need plus inflation. If rows
/// overlap, the last one counts.
void setItemisedNeed(const assessment::Assessment& record, std::size_t year, Yearly& monthly) {
    const auto& needs = record.retirement;
    const std::vector<ItemRow>& rows = record.itemised.RNAMonIncReq.rows;
    const double age = ageIn(record, year);
    bool isNeeded = false;
    for (const ItemRow& row : rows) {
        if (!isInForce(row, age)) continue;
        isNeeded = true;
        if (row.FromAge != age) {
            monthly[year] = monthly[year - 1] + monthly[year - 1] * row.Escalation / 100;
        } else if (&row == &rows.front()) {
            // The first need also replaces the previous year's figure, and both get the value of that earlier year.
            monthly[year] = monthly[year - 1] = inflatedTo(age - 2, row.Amount, needs);
        } else {
            monthly[year] = inflatedTo(age - 1, row.Amount, needs);
        }
    }
    if (!isNeeded) monthly[year] = monthly[year - 1] + monthly[year - 1] * needs.InflationRA / 100;
}

/// Policies that pay out after retirement, at their value at that age. Unlike those paid by retirement, an endowment
/// counts even without its tick, and a cash value whatever the death benefit.
void addLumpSums(const assessment::Assessment& record, Yearly& paidOut) {
    const auto add = [&](double value, double age) {
        if (const std::size_t year = laterYearAt(age, record.retirement.AgeRetiment); year > 0) paidOut[year] += value;
    };
    for (const Policy& policy : record.policies)
        if (policy.DeathBenUseCashAtRet == 1) add(policy.DeathBenCashVal, policy.DeathBenCashValAge);
    for (const Policy& policy : record.policies)
        add(policy.RBEMV, policy.RBEMVAge);
    for (const Policy& policy : record.policies)
        add(policy.RBPenLump, policy.RBPenLumpAge);
    for (const Policy& policy : record.policies)
        add(policy.RBProvFLump, policy.RBProvFLumpAge);
    for (const Policy& policy : record.policies)
        add(policy.EndowEMV, policy.EndowEMVAge);
}

} // namespace

YearlyFlows retirementFlows(const assessment::Assessment& record, double incomeRequired, double pensions) {
    YearlyFlows flows;
    const double first = record.retirement.AgeRetiment;
    flows.IncomeRA = itemisedIncome(record.itemised.RNAFutMonInc, first);
    addLumpSums(record, flows.paidOut);
    const Yearly policies = policyIncomes(record, pensions);
    Yearly expenses{}; // itemised, each in its year
    addDue(expenses, record.itemised.RNAOtherExp, first);
    Yearly& monthly = flows.MonthlyRequiredByYear;
    for (std::size_t year = 1; year <= lastYear; ++year) {
        if (year == 1)
            monthly[year] = incomeRequired;
        else if (record.itemised.RNAMonIncReq.flag != 0)
            setItemisedNeed(record, year, monthly);
        else
            monthly[year] = monthly[year - 1] + monthly[year - 1] * record.retirement.InflationRA / 100;
        flows.RequiredByYear[year] = monthly[year] * 12 + expenses[year];
        flows.AvailableByYear[year] = (flows.IncomeRA[year] + policies[year]) * 12;
    }
    return flows;
}

} // namespace analyses
