#include "finance/incomescale.h"

#include <algorithm>

namespace finance {

ScaleTax taxOn(const IncomeScale& scale, double income) {
    const auto holds = [income](const Bracket& bracket) { return income <= bracket.upTo; };
    const auto last = std::prev(scale.end());
    const Bracket& bracket = *std::find_if(scale.begin(), last, holds);
    ScaleTax result{bracket.over, bracket.upTo, bracket.rate, bracket.taxOnOver};
    result.portion = (income - bracket.over) * bracket.rate / 100;
    result.tax = result.taxOnLowerLimit + result.portion;
    return result;
}

} // namespace finance
