#include "analyses/cover.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "analyses/itemflows.h"

namespace analyses {

namespace {

using assessment::ItemList;
using assessment::ItemRow;
using assessment::Policy;

// Both ways, without finer steps. Retirement's steps are ten times larger; the difference is deliberate.
constexpr CapitalSteps steps{.coarse = 10000};

/// Inflates an amount in today's money over this many years.
double inflated(double amount, double percent, std::size_t years) {
    for (; years > 0; --years)
        amount = amount * percent / 100 + amount;
    return amount;
}

/// The monthly need of a later year from the list of needs.
///
/// The last row in the list that is in force decides. Only the first row of the list ever sets its own amount, in the
/// year in which it starts: in today's money, inflated to that year. In all other cases last year's need grows: by the
/// row's escalation after its start, by inflation otherwise. That later rows never set their amounts is deliberate,
/// unlike in the retirement analysis: clients' figures depend on it.
double itemisedNeed(const CoverNeeds& needs, std::size_t year, double last) {
    const std::vector<ItemRow>& rows = needs.required->rows;
    const auto now = static_cast<double>(year);
    const auto found =
        std::find_if(rows.rbegin(), rows.rend(), [&](const ItemRow& row) { return isInForce(row, now); });
    const ItemRow* row = found == rows.rend() ? nullptr : &*found;
    const bool starts = row != nullptr && row->FromAge == now;
    if (starts && row == &rows.front()) return inflated(row->Amount, needs.inflation, year - 1);
    return last + last * (row == nullptr || starts ? needs.inflation : row->Escalation) / 100;
}

/// Income and spending by year. The whole sum of a list of capital or debts counts on the first day, and each amount
/// again in its own year. This is deliberate: both analyses have always calculated this way.
YearlyFlows coverFlows(const CoverNeeds& needs) {
    YearlyFlows flows;
    flows.IncomeRA = itemisedIncome(*needs.sources, 1);
    if (needs.sources->flag == 0) flows.IncomeRA.fill(needs.available);
    flows.IncomeRA[1] = needs.available;
    for (const ItemList* list : needs.sales)
        addDue(flows.sold, *list, 1); // added after the year's interest, unlike a policy paid at retirement
    Yearly debts{};
    for (const ItemList* list : needs.debts)
        addDue(debts, *list, 1);
    Yearly& monthly = flows.MonthlyRequiredByYear;
    for (std::size_t year = 1; year <= lastYear; ++year) {
        const double policies = year == 1 ? needs.policies.firstYear : needs.policies.later[year];
        if (year == 1)
            monthly[year] = needs.income;
        else if (needs.required->flag != 0)
            monthly[year] = itemisedNeed(needs, year, monthly[year - 1]);
        else
            monthly[year] = monthly[year - 1] + monthly[year - 1] * needs.inflation / 100;
        flows.RequiredByYear[year] = monthly[year] * 12 + debts[year];
        flows.AvailableByYear[year] = flows.IncomeRA[year] * 12 + policies * 12;
    }
    return flows;
}

/// Adds what a benefit of one policy pays in each year, rand a month.
void addBenefit(Yearly& incomes, const Policy& policy, const PolicyBenefit& benefit) {
    double income = 0;
    for (std::size_t year = 1; year <= lastYear; ++year) {
        if (benefit.years != nullptr && !(static_cast<double>(year) <= benefit.years(policy))) return;
        income = year == 1 ? policy.*benefit.monthly : policy.*benefit.escalation * income / 100 + income;
        incomes[year] += income;
    }
}

double sum(const std::array<double, 5>& lines) { return std::accumulate(lines.begin(), lines.end(), 0.0); }

} // namespace

PolicyIncome policyIncome(const std::vector<Policy>& policies, std::initializer_list<PolicyBenefit> benefits,
                          bool isFlagOn) {
    PolicyIncome income;
    for (const Policy& policy : policies) {
        double monthly = 0;
        for (const PolicyBenefit& benefit : benefits)
            monthly += policy.*benefit.monthly;
        income.firstYear += monthly;
    }
    if (!isFlagOn) return income;
    for (const PolicyBenefit& benefit : benefits)
        for (const Policy& policy : policies)
            addBenefit(income.later, policy, benefit);
    return income;
}

NeedsAnalysis analyseCover(const CoverNeeds& needs, const SentenceRules& sentences, bool isFinite) {
    NeedsAnalysis analysis;
    analysis.IncomeReqFV = needs.income;
    analysis.PolicyMonthlyIncome = needs.policies.firstYear;
    analysis.monthlyAvailable = needs.available + needs.policies.firstYear;
    analysis.TotalAssets = sum(needs.assets);
    analysis.TotalLiabilities = sum(needs.liabilities);
    analysis.NetCapital = analysis.TotalAssets - analysis.TotalLiabilities;
    analysis.yearsAsked = std::min<double>(needs.years, mostYears);
    analysis.flows = coverFlows(needs);
    const auto run = [&](double capital) { return projectCapital(analysis.flows, capital, needs.rate); };
    runAndSearch(analysis, {steps, sentences}, run, isFinite);
    return analysis;
}

} // namespace analyses
