#include "analyses/needs.h"

#include <algorithm>
#include <cmath>

namespace analyses {

namespace {

constexpr const char* noFigure = "   Error";

void search(NeedsAnalysis& analysis, const CapitalSteps& steps, const CapitalRun& run) {
    const auto covers = [&](double capital) { return run(capital).YearsCovered >= analysis.yearsAsked; };
    const bool lasts = analysis.run.YearsCovered >= analysis.yearsAsked;
    analysis.sought = lasts ? CapitalSought::less : CapitalSought::more;
    analysis.found = (lasts ? searchDown : searchUp)(analysis.NetCapital, steps, covers);
    analysis.CapitalSolved = analysis.found.solved.value_or(0);
}

void say(NeedsAnalysis& analysis, const SentenceRules& rules) {
    analysis.txtAns1 =
        lastingSentence(rules, {analysis.IncomeReqFV, analysis.NetCapital, analysis.flows.AvailableByYear[1],
                                analysis.run.YearsCovered, analysis.yearsAsked});
    if (analysis.sought == CapitalSought::less)
        analysis.txtAns2 = excessSentence(rules, analysis.NetCapital - analysis.CapitalSolved);
    else if (analysis.yearsAsked > 0 && analysis.found.solved)
        analysis.txtAns2 = shortfallSentence(*analysis.found.solved - analysis.NetCapital);
}

bool canBeTold(const NeedsAnalysis& analysis) {
    return std::isfinite(analysis.NetCapital) && std::isfinite(analysis.monthlyDifference()) &&
           std::isfinite(analysis.flows.AvailableByYear[1]);
}

} // namespace

std::optional<double> NeedsAnalysis::capitalToProvide() const {
    if (!isFinite || (sought == CapitalSought::more && !found.solved)) return {};
    return CapitalSolved - NetCapital;
}

void runAndSearch(NeedsAnalysis& analysis, const NeedsRules& rules, const CapitalRun& run, bool isFinite) {
    analysis.run = run(analysis.NetCapital);
    search(analysis, rules.steps, run);
    say(analysis, rules.sentences);
    analysis.isFinite = isFinite && canBeTold(analysis);
    if (!analysis.isFinite) analysis.txtAns1 = analysis.txtAns2 = noFigure;
}

void capRates(double& inflation, double& investment) {
    inflation = std::min(inflation, highestInflation);
    investment = std::min(investment, highestBankInvest);
}

} // namespace analyses
