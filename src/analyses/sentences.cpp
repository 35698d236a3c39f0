#include "analyses/sentences.h"

#include "analyses/amounts.h"
#include "analyses/yearrun.h"

namespace analyses {

namespace {

constexpr const char* lasts = "Funds available will provide income for ";

/// True if the sentence says that a capital that does not carry the first year does not last it either.
bool fallsShort(const SentenceRules& rules, const Prospect& of) {
    const bool isCapital = rules.nothingFalls ? of.capital >= 0 : of.capital > 0;
    return of.monthlyNeed > 0 && isCapital;
}

bool carriesFirstYear(const SentenceRules& rules, const Prospect& of) {
    const double held = of.capital + of.firstYearIncome, needed = 12 * of.monthlyNeed;
    return rules.exactYearCarries ? held >= needed : held > needed;
}

} // namespace

std::string lastingSentence(const SentenceRules& rules, const Prospect& of) {
    if (rules.needsRealShortfall && of.monthlyNeed < 0) return "Cannot process unless monthly Shortfall is real.";
    if (carriesFirstYear(rules, of)) {
        if (of.covered == 1) return lasts + std::string("less than 2 years.");
        return lasts + std::to_string(of.covered > of.asked ? wholeYears(of.asked) : of.covered) + rules.years;
    }
    return fallsShort(rules, of) ? lasts + std::string("less than 1 year.") : std::string();
}

std::string excessSentence(const SentenceRules& rules, double excess) {
    const bool isTold = rules.exactExcessTold ? excess >= rules.excess : excess > rules.excess;
    return isTold ? "(capital excess available of " + amountText(excess) + " detected)" : std::string();
}

std::string shortfallSentence(double missing) { return amountText(missing) + " additional cover required."; }

} // namespace analyses
