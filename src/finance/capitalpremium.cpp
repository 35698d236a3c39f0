#include "finance/capitalpremium.h"

#include <algorithm>
#include <cmath>

#include "finance/plan.h"

namespace finance {

using assessment::CapitalPremium;
using assessment::FundDefaults;

namespace {

PremiumFound search(const CapitalPremium& premium, const FundDefaults& funds) {
    if (funds.UTCOM >= 100) return {PremiumFound::Outcome::never};
    return premiumFor(premium.PremTarget, [&](double monthly) {
        const Plan plan{.monthly = monthly,
                        .months = premium.PremTerm * 12,
                        .growth = premium.PremGrowth,
                        .escalation = premium.PremEscalation};
        UnitTrust run(plan, funds, Trail::monthly);
        for (int month = 2; month <= plan.months; ++month)
            run.goOn();
        return run.UTValueNoFee;
    });
}

} // namespace

void carryCapital(CapitalPremium& premium, std::optional<double> capital, double years) {
    premium.isFound = capital ? 1 : 0;
    premium.capital = premium.PremTarget = capital.value_or(0);
    premium.years = years;
    premium.PremTerm = static_cast<std::int16_t>(std::clamp(std::nearbyint(years), 0.0, double{mostPremiumYears}));
    premium.premium = 0;
    premium.isSolved = 0;
}

bool isReduced(const CapitalPremium& premium) {
    return premium.years > mostPremiumYears && premium.PremTerm == mostPremiumYears;
}

SolvedPremium solvePremium(CapitalPremium& premium, const FundDefaults& funds) {
    premium.premium = 0;
    premium.isSolved = 0;
    const bool isOther = premium.isFound == 0 || premium.PremTarget != premium.capital;
    if (premium.isFound == 0 && !(premium.PremTarget > 0)) return {PremiumState::noCapital, {}};
    if (!(premium.PremTarget > 0)) return {PremiumState::noneNeeded, {}};
    if (premium.PremTerm < 1 || premium.PremGrowth == 0) return {PremiumState::figuresMissing, {}};
    const PremiumFound found = search(premium, funds);
    if (found.outcome == PremiumFound::Outcome::never) return {PremiumState::never, found};
    premium.premium = found.premium;
    premium.isSolved = isOther ? 0 : 1;
    return {isOther ? PremiumState::solvedForOther : PremiumState::solved, found};
}

std::string SolvedPremium::sentence() const {
    switch (state) {
    case PremiumState::noCapital: return "The analysis found no capital. Check its figures.";
    case PremiumState::noneNeeded: return "No premium is needed.";
    case PremiumState::figuresMissing: return "Please enter a growth rate and an investment period.";
    case PremiumState::never: return "No premium reaches this value. Check the rates here and those of the unit trust.";
    case PremiumState::solvedForOther:
        return "This value is not the capital of the analysis: its report leaves the premium out.";
    case PremiumState::solved: break;
    }
    return {};
}

bool isSolvedFor(const CapitalPremium& premium, std::optional<double> capital, double years) {
    return premium.isSolved == 1 && capital == premium.capital && years == premium.years;
}

} // namespace finance
