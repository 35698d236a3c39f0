#include "analyses/retirement.h"

#include <algorithm>
#include <cmath>

#include "analyses/itemise.h"
#include "analyses/retirementflows.h"
#include "analyses/sentences.h"
#include "base/finite.h"
#include "base/rounding.h"
#include "client/policyschedule.h"
#include "client/years.h"

namespace analyses {

namespace {

/// By 100 000 both ways. Upwards a finer stage follows; downwards it would begin on the first capital that does not do
/// and end there, so that an excess is found to 100 000 and no closer. Ten fine steps lead back to the coarse one.
constexpr CapitalSteps steps{.coarse = 100000, .fine = 10000, .mostFinePasses = 20};
constexpr const char* noFigure = "   Error";

double incomeAtRetirement(const assessment::NARetirement& needs) {
    double income = needs.IncomePD;
    for (int year = wholeYears(needs.YearsToRet); year > 0; --year)
        income = income * needs.InflationRA / 100 + income;
    return base::roundHalfEven(income);
}

void capRates(assessment::NARetirement& needs) {
    needs.InflationRA = std::min(needs.InflationRA, highestInflation);
    needs.BankInvestRate = std::min(needs.BankInvestRate, highestBankInvest);
}

/// What is asked and what there is, before anything is run.
RetirementAnalysis statement(const assessment::Assessment& record) {
    const assessment::NARetirement& needs = record.retirement;
    RetirementAnalysis analysis;
    analysis.IncomeReqFV = incomeAtRetirement(needs);
    analysis.PolicyMonthlyIncome = base::roundHalfEven(record.PolicyMonthlyIncome);
    analysis.TotalAssets = totalCapital(needs);
    analysis.TotalLiabilities = totalExpenses(needs);
    analysis.NetCapital = analysis.TotalAssets - analysis.TotalLiabilities;
    analysis.yearsAsked = std::min<double>(needs.CoverYears, mostYears);
    analysis.ageOfRetirement = needs.AgeRetiment;
    return analysis;
}

/// One run from any capital; the years of `NetCapital` are those of table, graph and report.
YearRun NARAProjectCapital(const assessment::NARetirement& needs, const RetirementAnalysis& analysis, double capital) {
    return projectCapital(analysis.flows, capital, needs.BankInvestRate);
}

void search(const assessment::NARetirement& needs, RetirementAnalysis& analysis) {
    const auto covers = [&](double capital) {
        return NARAProjectCapital(needs, analysis, capital).YearsCovered >= analysis.yearsAsked;
    };
    const bool lasts = analysis.run.YearsCovered >= analysis.yearsAsked;
    analysis.sought = lasts ? CapitalSought::less : CapitalSought::more;
    analysis.found = (lasts ? searchDown : searchUp)(analysis.NetCapital, steps, covers);
    analysis.CapitalSolved = analysis.found.solved.value_or(0);
}

void say(RetirementAnalysis& analysis) {
    analysis.txtAns1 = lastingSentence(retirementSentences,
                                       {analysis.IncomeReqFV, analysis.NetCapital, analysis.flows.AvailableByYear[1],
                                        analysis.run.YearsCovered, analysis.yearsAsked});
    if (analysis.sought == CapitalSought::less)
        analysis.txtAns2 = excessSentence(retirementSentences, analysis.NetCapital - analysis.CapitalSolved);
    else if (analysis.yearsAsked > 0 && analysis.found.solved)
        analysis.txtAns2 = shortfallSentence(*analysis.found.solved - analysis.NetCapital);
}

bool isFinite(const RetirementAnalysis& analysis) {
    return std::isfinite(analysis.NetCapital) && std::isfinite(analysis.monthlyDifference()) &&
           std::isfinite(analysis.flows.AvailableByYear[1]);
}

} // namespace

RetirementAnalysis NARACalc(assessment::Assessment& record) {
    const bool isFolded = client::isFinite(client::CalculatePolInv(record));
    assessment::NARetirement& needs = record.retirement;
    capRates(needs);
    RetirementAnalysis analysis = statement(record);
    analysis.flows = retirementFlows(record, analysis.IncomeReqFV, analysis.PolicyMonthlyIncome);
    analysis.monthlyAvailable = analysis.flows.IncomeRA[1] + analysis.PolicyMonthlyIncome;
    analysis.run = NARAProjectCapital(needs, analysis, analysis.NetCapital);
    search(needs, analysis);
    say(analysis);
    const YearRun last = NARAProjectCapital(needs, analysis, analysis.found.lastTried);
    base::keepFinite(needs.IncomeRA, analysis.flows.IncomeRA[static_cast<std::size_t>(last.YearsCovered) + 1]);
    if (!isFolded || !isFinite(analysis)) analysis.txtAns1 = analysis.txtAns2 = noFigure;
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
    const assessment::ItemList& list = record.itemised.RNAMonIncReq;
    if (list.flag != 0) deriveIncomeRequired(record.retirement, list.rows);
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
