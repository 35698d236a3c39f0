#include "quotes/premiums.h"

#include <utility>

#include "quotes/projection.h"

namespace quotes {

using finance::Plan, finance::PremiumFound;
using Outcome = PremiumFound::Outcome;

std::string Premiums::unreached() const {
    std::string names;
    for (const auto& [name, found] :
         {std::pair{"Endowment", &endowment}, {"Retirement Annuity", &retirement}, {"Unit Trusts", &unitTrust}})
        if (found->outcome == Outcome::never) names += (names.empty() ? "" : ", ") + std::string(name);
    if (names.empty()) return {};
    return names + ": no monthly investment reaches the value required. Check the growth rate, the escalation and the "
                   "commissions and fees under Default Rates.";
}

Premiums FindPremiums(const assessment::PremiumQuote& inputs, const assessment::FundDefaults& funds) {
    if (inputs.PremTarget == 0 || inputs.PremTerm < 1 || inputs.PremGrowth == 0) return {};
    const auto plan = [&](double premium) {
        return Plan{.monthly = premium,
                    .months = inputs.PremTerm,
                    .growth = inputs.PremGrowth,
                    .escalation = inputs.PremEscalation};
    };
    const auto insured = [&](const InsurerRates& rates) {
        return finance::premiumFor(inputs.PremTarget, [&](double premium) {
            InsuredPlan run(plan(premium), rates);
            for (int month = 1; month <= inputs.PremTerm; ++month)
                run.goOn();
            return run.FundValue;
        });
    };
    Premiums found;
    found.endowment = insured(endowmentRates(funds));
    found.retirement = insured(retirementRates(funds));
    found.unitTrust = finance::premiumFor(inputs.PremTarget, [&](double premium) {
        finance::UnitTrust run(plan(premium), funds, finance::Trail::atYearEnd);
        for (int month = 2; month <= inputs.PremTerm; ++month)
            run.goOn();
        return run.UTValueNoFee;
    });
    return found;
}

double shownPremium(const PremiumFound& found, double before) {
    return found.outcome == Outcome::exact ? before : found.premium;
}

} // namespace quotes
