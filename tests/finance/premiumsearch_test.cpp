#include "finance/premiumsearch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using finance::premiumFor, finance::PremiumFound;
using Outcome = PremiumFound::Outcome;

/// The search as it is told, step by step.
PremiumFound stepped(double target, const std::function<double(double)>& endValue) {
    double premium = 0;
    for (const double step : {20000.0, 2000.0, 1000.0, 100.0, 10.0, 1.0}) {
        do {
            premium += step;
            if (endValue(premium) == target) return {Outcome::exact, premium};
        } while (endValue(premium) < target);
        if (step > 1) premium -= step;
    }
    return {Outcome::above, premium};
}

TEST(PremiumSearch, AnswersAsItsStepsDo) {
    for (const double slope : {0.37, 1.0, 12.5, 8190.0})
        for (const double fee : {0.0, 100.0, 4321.25})
            for (const double target : {-50.0, 1.0, 19999.0, 20000.0, 123456.789, 8190000.0, 81900000.0}) {
                const auto value = [&](double premium) { return slope * premium - fee; };
                const PremiumFound steps = stepped(target, value);
                const PremiumFound found = premiumFor(target, value);
                EXPECT_EQ(found.outcome, steps.outcome) << slope << ' ' << fee << ' ' << target;
                EXPECT_EQ(found.premium, steps.premium) << slope << ' ' << fee << ' ' << target;
                EXPECT_EQ(found.value, value(steps.premium));
                EXPECT_EQ(found.valueBelow, value(steps.premium - 1));
            }
}

TEST(PremiumSearch, EndsForValuesThatNoPremiumReaches) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const std::function<double(double)> hopeless[] = {[](double premium) { return -36 * premium - 100; },
                                                      [](double) { return 0.0; }, [=](double) { return nothing; }};
    for (const auto& value : hopeless) {
        EXPECT_EQ(premiumFor(1000, value).outcome, Outcome::never);
        EXPECT_EQ(premiumFor(1000, value).premium, 0);
    }
    const auto same = [](double premium) { return premium; };
    EXPECT_EQ(premiumFor(finance::highestPremium - 0.5, same).premium, finance::highestPremium);
    EXPECT_EQ(premiumFor(finance::highestPremium, same).outcome, Outcome::exact);
    EXPECT_EQ(premiumFor(finance::highestPremium + 1, same).outcome, Outcome::never);
}

} // namespace
