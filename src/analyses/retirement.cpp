#include "analyses/retirement.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "analyses/amounts.h"
#include "analyses/capitalsearch.h"
#include "analyses/retirementflows.h"
#include "base/rounding.h"
#include "client/policyschedule.h"

namespace analyses {

namespace {

constexpr double coarseStep = 100000; ///< rand; the other analyses step by 10 000 throughout
constexpr double fineStep = 10000;
constexpr int mostFinePasses = 20; ///< ten lead back to the coarse step; of a damaged file's billions none might
constexpr double excessWorthTelling = 100000; ///< half as much on the other analyses

int wholeYears(double years) {
    const double whole = base::roundHalfEven(years);
    return whole >= 0 ? static_cast<int>(std::min<double>(whole, mostYears)) : 0;
}

double incomeAtRetirement(const assessment::NARetirement& needs) {
    double income = needs.IncomePD;
    for (int year = wholeYears(needs.YearsToRet); year > 0; --year)
        income = income * needs.InflationRA / 100 + income;
    return base::roundHalfEven(income);
}

/// How long the capital lasts. Of a need that begins below nothing there is no telling.
std::string lastingSentence(const assessment::NARetirement& needs, const RetirementAnalysis& analysis) {
    const int covered = analysis.run.YearsCovered;
    const double firstYear = 12 * analysis.IncomeReqFV;
    const bool carriesFirstYear = analysis.NetCapital + analysis.flows.AvailableByYear[1] > firstYear;
    std::string sentence;
    // With no capital at all nothing is said of it here, though on death something is: there 0 counts as capital.
    if (analysis.IncomeReqFV > 0 && analysis.NetCapital > 0 && !carriesFirstYear)
        sentence = "Funds available will provide income for less than 1 year.";
    if (covered > 1 && carriesFirstYear) {
        const int years = covered > yearsAsked(needs) ? wholeYears(yearsAsked(needs)) : covered;
        sentence = "Funds available will provide income for " + std::to_string(years) + " year/s.";
    }
    if (covered == 1 && carriesFirstYear) sentence = "Funds available will provide income for less than 2 years.";
    if (analysis.IncomeReqFV < 0) sentence = "Cannot process unless monthly Shortfall is real.";
    return sentence;
}

/// The capital that a search ended with.
struct Found {
    std::optional<double> solved; ///< nothing if there is none
    double lastTried = 0;         ///< what the last run was made with
};

class CapitalSearch {
public:
    CapitalSearch(const assessment::NARetirement& needs, const RetirementAnalysis& analysis)
        : m_flows(analysis.flows), m_percent(needs.BankInvestRate), m_years(yearsAsked(needs)),
          m_start(analysis.NetCapital) {}

    /// The least capital, by steps of 100 000, that would have done.
    ///
    /// A finer stage follows the first capital that does not do, but it begins on that very capital and so ends on its
    /// first pass: the excess is found to 100 000 and no closer.
    Found excess() const {
        const auto capital = [this](std::int64_t step) { return stepped(m_start, -coarseStep, step); };
        const auto ends = [&](std::int64_t step) { return capital(step) < 0 || !covers(capital(step)); };
        const auto step = firstStep(stepsPast(-m_start, 0, coarseStep) + 1, ends);
        const double last = capital(step.value_or(0));
        return {step && last >= 0 ? std::optional(last + coarseStep) : std::nullopt, last};
    }

    /// The least capital, by steps of 10 000 within the last 100 000, that does.
    Found shortfall() const {
        const auto capital = [this](std::int64_t step) { return stepped(m_start, coarseStep, step); };
        const std::int64_t most = stepsPast(m_start, highestCapital, coarseStep);
        const auto step = firstStep(most, [&](std::int64_t number) { return covers(capital(number)); });
        if (!step || capital(*step) > highestCapital) return {{}, capital(most)};
        double tried = capital(*step) - coarseStep + fineStep;
        for (int pass = 1; pass < mostFinePasses && !covers(tried); ++pass)
            tried += fineStep;
        return {tried, tried};
    }

private:
    bool covers(double capital) const { return projectCapital(m_flows, capital, m_percent).YearsCovered >= m_years; }

    const YearlyFlows& m_flows;
    double m_percent, m_years, m_start;
};

void capRates(assessment::NARetirement& needs) {
    needs.InflationRA = std::min(needs.InflationRA, highestInflation);
    needs.BankInvestRate = std::min(needs.BankInvestRate, highestBankInvest);
}

/// The itemised income of the last year that a run got to.
double lastIncome(const RetirementAnalysis& analysis, const YearRun& run) {
    return analysis.flows.IncomeRA[static_cast<std::size_t>(run.YearsCovered) + 1];
}

/// The last year covered as the analysis leaves it: without the pensions, and with the need that the year after may
/// have written back. Table, report and graph run the years once more and never show it.
void overwriteLastYear(const assessment::NARetirement& needs, RetirementAnalysis& analysis) {
    const auto year = static_cast<std::size_t>(analysis.run.YearsCovered);
    analysis.flows.RequiredByYear[year] = analysis.flows.MonthlyRequiredByYear[year] * 12;
    analysis.flows.AvailableByYear[year] = needs.IncomeRA * 12;
}

} // namespace

RetirementAnalysis NARACalc(assessment::Assessment& record) {
    client::CalculatePolInv(record);
    assessment::NARetirement& needs = record.retirement;
    capRates(needs);
    RetirementAnalysis analysis;
    analysis.IncomeReqFV = incomeAtRetirement(needs);
    analysis.TotalAssets = totalCapital(needs);
    analysis.TotalLiabilities = totalExpenses(needs);
    analysis.NetCapital = analysis.TotalAssets - analysis.TotalLiabilities;
    NARAProjectCapital(record, analysis);
    analysis.txtAns1 = lastingSentence(needs, analysis);

    const bool covered = analysis.run.YearsCovered >= yearsAsked(needs);
    const CapitalSearch search(needs, analysis);
    const Found found = covered ? search.excess() : search.shortfall();
    analysis.CapitalSolved = found.solved.value_or(0);
    if (const double excess = analysis.NetCapital - analysis.CapitalSolved; covered && excess > excessWorthTelling)
        analysis.txtAns2 = "(capital excess available of " + amountText(excess) + " detected)";
    needs.IncomeRA = lastIncome(analysis, projectCapital(analysis.flows, found.lastTried, needs.BankInvestRate));
    overwriteLastYear(needs, analysis);
    if (yearsAsked(needs) > 0 && !covered && found.solved)
        analysis.txtAns2 = amountText(*found.solved - analysis.NetCapital) + " additional cover required.";
    return analysis;
}

void NARAProjectCapital(assessment::Assessment& record, RetirementAnalysis& analysis) {
    record.PolicyMonthlyIncome = base::roundHalfEven(record.PolicyMonthlyIncome);
    analysis.flows = retirementFlows(record, analysis.IncomeReqFV, record.PolicyMonthlyIncome);
    analysis.run = projectCapital(analysis.flows, analysis.NetCapital, record.retirement.BankInvestRate);
    analysis.monthlyAvailable = analysis.flows.IncomeRA[1] + record.PolicyMonthlyIncome;
    record.retirement.IncomeRA = lastIncome(analysis, analysis.run);
}

double ageOn(double today, double birthDate) { return std::floor((today - birthDate) / 365.25); }

void updateYearsToRet(assessment::NARetirement& needs) {
    needs.YearsToRet = std::clamp<double>(needs.AgeRetiment - needs.CurrAge, 0, mostYears);
}

double totalCapital(const assessment::NARetirement& needs) {
    return needs.ANSLAss1 + needs.ANSLAss2 + needs.ANSLAss3 + std::floor(needs.ANSLAss4) + needs.ANSLAss5;
}

double totalExpenses(const assessment::NARetirement& needs) {
    return needs.ANSLLib1 + needs.ANSLLib2 + needs.ANSLLib3 + needs.ANSLLib4 + needs.ANSLLib5;
}

double yearsAsked(const assessment::NARetirement& needs) { return std::min<double>(needs.CoverYears, mostYears); }

std::vector<RetirementYear> retirementYears(const assessment::NARetirement& needs, const RetirementAnalysis& analysis) {
    const int covered = analysis.run.YearsCovered;
    const int count = std::min(covered < mostYears ? covered + 1 : mostYears, wholeYears(needs.CoverYears) + 1);
    std::vector<RetirementYear> years;
    for (std::size_t year = 1; year <= static_cast<std::size_t>(count); ++year)
        years.push_back({needs.AgeRetiment + static_cast<double>(year - 1), analysis.run.CapitalByYear[year],
                         analysis.run.InterestByYear[year], analysis.flows.AvailableByYear[year],
                         analysis.flows.RequiredByYear[year]});
    return years;
}

int graphPoints(const assessment::NARetirement& needs, const RetirementAnalysis& analysis) {
    return analysis.run.YearsCovered < mostYears ? analysis.run.YearsCovered : wholeYears(needs.CoverYears);
}

} // namespace analyses
