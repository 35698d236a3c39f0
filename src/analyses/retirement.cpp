#include "analyses/retirement.h"

#include <algorithm>
#include <cmath>

#include "analyses/itemise.h"
#include "analyses/retirementflows.h"
#include "base/finite.h"
#include "base/rounding.h"
#include "client/policyschedule.h"
#include "client/years.h"

namespace analyses {

namespace {

/// Steps of 100 000 in both directions, refined by 10 000 upwards only. Downwards a refinement would start and end at
/// the first capital that does not suffice, so an excess is known to 100 000. Ten fine steps equal a coarse one.
constexpr NeedsRules rules{{.coarse = 100000, .fine = 10000, .mostFinePasses = 20}, retirementSentences};

double incomeAtRetirement(const assessment::NARetirement& needs) {
    double income = needs.IncomePD;
    for (int year = wholeYears(needs.YearsToRet); year > 0; --year)
        income = income * needs.InflationRA / 100 + income;
    return base::roundHalfEven(income);
}

/// The required and the available amounts, before anything is run.
RetirementAnalysis statement(const assessment::Assessment& record) {
    const assessment::NARetirement& needs = record.retirement;
    RetirementAnalysis analysis;
    analysis.IncomeReqFV = incomeAtRetirement(needs);
    analysis.PolicyMonthlyIncome = base::roundHalfEven(record.PolicyMonthlyIncome);
    analysis.TotalAssets = totalCapital(needs);
    analysis.TotalLiabilities = totalExpenses(needs);
    analysis.NetCapital = analysis.TotalAssets - analysis.TotalLiabilities;
    analysis.yearsAsked = std::min<double>(needs.CoverYears, mostYears);
    analysis.firstNumber = needs.AgeRetiment;
    return analysis;
}

/// Runs the years from a given capital; the years run from `NetCapital` are those of table, graph and report.
YearRun NARAProjectCapital(const assessment::NARetirement& needs, const RetirementAnalysis& analysis, double capital) {
    return projectCapital(analysis.flows, capital, needs.BankInvestRate);
}

} // namespace

RetirementAnalysis NARACalc(assessment::Assessment& record) {
    const bool isFolded = client::isFinite(client::CalculatePolInv(record));
    assessment::NARetirement& needs = record.retirement;
    capRates(needs.InflationRA, needs.BankInvestRate);
    RetirementAnalysis analysis = statement(record);
    analysis.flows = retirementFlows(record, analysis.IncomeReqFV, analysis.PolicyMonthlyIncome);
    analysis.monthlyAvailable = analysis.flows.IncomeRA[1] + analysis.PolicyMonthlyIncome;
    const auto run = [&](double capital) { return NARAProjectCapital(needs, analysis, capital); };
    runAndSearch(analysis, rules, run, isFolded);
    const YearRun last = run(analysis.found.lastTried);
    base::keepFinite(needs.IncomeRA, analysis.flows.IncomeRA[static_cast<std::size_t>(last.YearsCovered) + 1]);
    return analysis;
}

void prepareRetirement(assessment::Assessment& record, double today) {
    if (base::isShownOnScreen(record.client.BirthDate))
        record.retirement.CurrAge = client::ageOn(today, record.client.BirthDate);
    retireNotBeforeToday(record.retirement);
    followAges(record);
}

RetirementAnalysis runRetirement(assessment::Assessment& record, double today) {
    prepareRetirement(record, today);
    return NARACalc(record);
}

void retireNotBeforeToday(assessment::NARetirement& needs) {
    if (needs.CurrAge <= client::oldestAge) needs.AgeRetiment = std::max(needs.AgeRetiment, needs.CurrAge);
}

void followAges(assessment::Assessment& record) {
    updateYearsToRet(record.retirement);
    deriveItemised(record, assessment::Analysis::retirement);
}

void updateYearsToRet(assessment::NARetirement& needs) {
    needs.YearsToRet = std::clamp<double>(needs.AgeRetiment - needs.CurrAge, 0, mostYears);
}

double totalCapital(const assessment::NARetirement& needs) {
    return needs.ANSLAss1 + needs.ANSLAss2 + needs.ANSLAss3 + std::floor(needs.ANSLAss4) + needs.ANSLAss5;
}

double totalExpenses(const assessment::NARetirement& needs) {
    return needs.ANSLLib1 + needs.ANSLLib2 + needs.ANSLLib3 + needs.ANSLLib4 + needs.ANSLLib5;
}

} // namespace analyses
