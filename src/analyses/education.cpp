#include "analyses/education.h"

#include <algorithm>
#include <cmath>

#include "analyses/amounts.h"

namespace analyses {

namespace {

constexpr CapitalSteps steps{.coarse = 100};
constexpr const char* noFigure = "   Error";

double costAtStart(const assessment::NAEducation& needs) {
    double cost = needs.FundsPD;
    for (int year = wholeYears(needs.YearsToEdu); year > 0; --year)
        cost = cost * needs.InflationEDU / 100 + cost;
    return std::floor(cost);
}

YearlyFlows educationFlows(double cost, double inflation) {
    YearlyFlows flows;
    Yearly& required = flows.RequiredByYear;
    required[1] = cost;
    for (std::size_t year = 2; year <= lastYear; ++year)
        required[year] = required[year - 1] + required[year - 1] * inflation / 100;
    return flows;
}

/// Runs the years from a given capital. A capital below the first year's cost covers no year. One of exactly that cost
/// keeps the count of the capital tried before it, which was smaller: so it also covers no year.
YearRun NAEdProjectCapital(const EducationAnalysis& analysis, double capital, double rate) {
    if (capital > analysis.FundsFV) return projectCapital(analysis.flows, capital, rate);
    YearRun none;
    none.YearsCovered = 0;
    return none;
}

void search(EducationAnalysis& analysis, double rate) {
    analysis.found = searchUp(0, steps, [&](double capital) {
        return NAEdProjectCapital(analysis, capital, rate).YearsCovered >= analysis.yearsAsked;
    });
    analysis.CapitalTried = analysis.found.solved.value_or(0);
}

void say(EducationAnalysis& analysis) {
    if (analysis.FundsFV < 0)
        analysis.txtAns = analysis.FundsReq = "Cannot compute unless monthly Shortfall is real";
    else if (analysis.found.solved) {
        const std::string amount = amountText(analysis.CapitalTried);
        analysis.txtAns = amount + " capital required to invest to provide funds.";
        analysis.FundsReq = amount + " required to invest to provide funds."; // as always, reports leave out "capital"
    } else if (analysis.found.failed)
        analysis.txtAns = noFigure;
}

} // namespace

EducationAnalysis NAEdCalc(assessment::NAEducation& needs) {
    needs.InflationEDU = std::min(needs.InflationEDU, highestInflation);
    needs.BankRate = std::min(needs.BankRate, highestBankInvest);
    EducationAnalysis analysis;
    analysis.FundsFV = costAtStart(needs);
    analysis.yearsAsked = std::min<double>(needs.FundsForYears, mostYears);
    analysis.flows = educationFlows(analysis.FundsFV, needs.InflationEDU);
    if (!std::isfinite(analysis.flows.RequiredByYear[lastYear])) {
        analysis.run.YearsCovered = 0;
        analysis.txtAns = noFigure;
        return analysis;
    }
    analysis.YearsCovered = NAEdProjectCapital(analysis, 0, needs.BankRate).YearsCovered;
    if (analysis.YearsCovered < analysis.yearsAsked) search(analysis, needs.BankRate);
    analysis.run = NAEdProjectCapital(analysis, analysis.CapitalTried, needs.BankRate);
    say(analysis);
    return analysis;
}

std::optional<double> EducationAnalysis::capitalToProvide() const {
    const bool isFinite = std::isfinite(flows.RequiredByYear[lastYear]);
    if (!isFinite || FundsFV < 0 || (found.failed && !found.solved)) return {};
    return CapitalTried;
}

int EducationAnalysis::points() const { return std::min(run.YearsCovered, wholeYears(yearsAsked)); }

} // namespace analyses
