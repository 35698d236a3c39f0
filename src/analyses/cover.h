#pragma once

#include <array>
#include <vector>

#include "analyses/needs.h"
#include "assessment/itemised.h"

/// The run that the death and the disability analysis share: both begin today, count years from 1, and ask what an
/// income costs from then on. What tells the two apart stands in death.cpp, disability.cpp and their sentences.
namespace analyses {

/// Income that the policies pay.
struct PolicyIncome {
    double firstYear = 0; ///< rand a month
    Yearly later{};       ///< rand a month from the second year on
};

/// What an analysis of cover works with. The lists must outlive it.
struct CoverNeeds {
    double income = 0;    ///< required, rand a month in the first year
    double years = 0;     ///< for so long; above 50 count as 50
    double inflation = 0; ///< percent a year
    double rate = 0;      ///< return, percent a year
    double available = 0; ///< income beside the policies', rand a month; it never rises unless it is itemised
    PolicyIncome policies;
    std::array<double, 5> assets{}, liabilities{};         ///< rand, in the order of the screen
    const assessment::ItemList* required = nullptr;        ///< of the income
    const assessment::ItemList* sources = nullptr;         ///< of the income available
    std::vector<const assessment::ItemList*> sales, debts; ///< of capital and of what is owed, each amount in its year
};

/// Adds what one policy pays in each year, rand a month: from the first year on, rising by `percent` of itself a year,
/// for `years` years.
void addPolicyIncome(Yearly& incomes, double monthly, double percent, double years);

/// How long the capital carries the income, and how much more or less of it the years asked for need, to 10 000 rand.
/// isFinite: false if what the caller worked out beforehand is too large to reckon with.
NeedsAnalysis analyseCover(const CoverNeeds& needs, const SentenceRules& sentences, bool isFinite);

} // namespace analyses
