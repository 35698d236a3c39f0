#pragma once

#include <array>
#include <initializer_list>
#include <vector>

#include "analyses/needs.h"
#include "assessment/itemised.h"
#include "assessment/policy.h"

/// The run of years that the death and the disability analysis share: both begin today and count years from 1. Their
/// differences are in death.cpp, disability.cpp and their sentences.
namespace analyses {

/// Income paid by the policies.
struct PolicyIncome {
    double firstYear = 0; ///< rand a month
    Yearly later{};       ///< rand a month from the second year on
};

/// The inputs of a death or disability analysis. The lists must outlive it.
struct CoverNeeds {
    double income = 0;    ///< required, rand a month in the first year
    double years = 0;     ///< that the income is required for; more than 50 count as 50
    double inflation = 0; ///< percent a year
    double rate = 0;      ///< return, percent a year
    double available = 0; ///< income besides the policies', rand a month; constant unless itemised
    PolicyIncome policies;
    std::array<double, 5> assets{}, liabilities{};         ///< rand, in the order of the screen
    const assessment::ItemList* required = nullptr;        ///< itemised income required
    const assessment::ItemList* sources = nullptr;         ///< itemised income available
    std::vector<const assessment::ItemList*> sales, debts; ///< itemised capital and debts, each amount in its year
};

/// A monthly benefit of a policy; each year it rises by a percentage of itself.
struct PolicyBenefit {
    double assessment::Policy::*monthly;                  ///< rand
    float assessment::Policy::*escalation;                ///< percent a year
    double (*years)(const assessment::Policy&) = nullptr; ///< its term; without one it is paid as long as the run goes
};

/// The income from these benefits of all policies.
///
/// In the first year all of it counts, whatever the terms and the flag of the policies' line; later only within each
/// term and only while the flag is on. This is deliberate. Later years add one benefit of all policies before the next.
PolicyIncome policyIncome(const std::vector<assessment::Policy>& policies,
                          std::initializer_list<PolicyBenefit> benefits, bool isFlagOn);

/// How long the capital provides the income, and how much more or less capital the years asked for need, to 10 000
/// rand. isFinite: false if a figure that the caller calculated is too large to calculate with.
NeedsAnalysis analyseCover(const CoverNeeds& needs, const SentenceRules& sentences, bool isFinite);

} // namespace analyses
