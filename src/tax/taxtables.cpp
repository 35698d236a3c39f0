#include "tax/taxtables.h"

#include <algorithm>

namespace tax {

ScaleTax taxOn(const TaxYear& year, double income) {
    const auto holds = [income](const Bracket& bracket) { return income <= bracket.upTo; };
    const auto last = std::prev(year.scale.end());
    const Bracket& bracket = *std::find_if(year.scale.begin(), last, holds);
    ScaleTax result{bracket.over, bracket.upTo, bracket.rate, bracket.taxOnOver};
    result.portion = (income - bracket.over) * bracket.rate / 100;
    result.tax = result.taxOnLowerLimit + result.portion;
    return result;
}

double totalRebates(const TaxRules& rules, double age) {
    const double primary = rules.primaryRebate.primaryRebate;
    if (age >= 75) return primary + rules.ageRebates.rebateFrom75;
    if (age >= 65) return primary + rules.ageRebates.rebateFrom65;
    return primary;
}

} // namespace tax
