#include "finance/premiumsearch.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using finance::premiumFor, finance::PremiumFound;
using Outcome = PremiumFound::Outcome;

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
