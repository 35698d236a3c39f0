#include "finance/capitalpremium.h"

#include <gtest/gtest.h>

namespace {

using assessment::CapitalPremium, assessment::FundDefaults;
using finance::PremiumState;

FundDefaults trust(double commission, double dividend, double fee, double trail) {
    FundDefaults funds;
    funds.UTCOM = commission, funds.UTDiv = dividend, funds.UTAMFee = fee, funds.UTAComPortVal = trail;
    return funds;
}
const FundDefaults shipped = trust(3, 3, 1, 0.5);

CapitalPremium carried(std::optional<double> capital, double years, double growth, double escalation) {
    CapitalPremium premium;
    finance::carryCapital(premium, capital, years);
    premium.PremGrowth = growth;
    premium.PremEscalation = escalation;
    return premium;
}

TEST(CapitalPremium, IsTheFirstRandWhoseUnitTrustGrowsAboveTheCapital) {
    const struct {
        double capital, years, growth, escalation;
        FundDefaults funds;
        double premium;
        PremiumState state = PremiumState::solved;
    } cases[] = {
        {1080000, 20, 10, 5, shipped, 858},
        {12000, 1, 10, 0, shipped, 961}, // the trail comes off from month 2 on, a twelfth each month
        {34200, 10, 9.5, 6, shipped, 128},
        {34200, 10, -5, 0, shipped, 347}, // a loss is a growth too
        {100000, 2, 12, 10, trust(5, 2, 1.5, 0.25), 3675},
        {1e9, 1, 10, 0, shipped, 80010642},
        {1e6, 63, 8, 0, shipped, 73},    // reduced to 50 years
        {8190000, 1, 1200, 0, {}, 1000}, // met to the last bit: that amount, not the next rand
        {0, 20, 10, 5, shipped, 0, PremiumState::noneNeeded},
        {-250000, 20, 10, 5, shipped, 0, PremiumState::noneNeeded},
        {1000, 0, 10, 5, shipped, 0, PremiumState::figuresMissing},
        {1000, 20, 0, 5, shipped, 0, PremiumState::figuresMissing},
        {1000, 20, 10, 5, trust(100, 3, 1, 0.5), 0, PremiumState::never},
        {1000, 20, 10, 5, trust(300, 3, 150, 0.5), 0, PremiumState::never}, // two losses make no gain
        {1000, 20, -1200, 5, shipped, 0, PremiumState::never},
        {2e15 * 50, 1, 10, 0, shipped, 0, PremiumState::never}, // beyond the highest premium
    };
    for (const auto& c : cases) {
        CapitalPremium premium = carried(c.capital, c.years, c.growth, c.escalation);
        const auto solved = finance::solvePremium(premium, c.funds);
        const testing::Message which = testing::Message() << c.capital << " in " << c.years << " at " << c.growth;
        EXPECT_EQ(premium.premium, c.premium) << which;
        EXPECT_EQ(solved.state, c.state) << which;
        EXPECT_EQ(premium.isSolved == 1, c.state == PremiumState::solved) << which;
        EXPECT_EQ(solved.sentence().empty(), c.state == PremiumState::solved) << which;
    }
}

TEST(CapitalPremium, HoldsForItsCapitalAndYearsAlone) {
    CapitalPremium premium = carried(34200.5, 10, 9.5, 6);
    EXPECT_FALSE(finance::isSolvedFor(premium, 34200.5, 10)) << "not solved yet";
    finance::solvePremium(premium, shipped);
    EXPECT_TRUE(finance::isSolvedFor(premium, 34200.5, 10));
    EXPECT_FALSE(finance::isSolvedFor(premium, 34200.25, 10));
    EXPECT_FALSE(finance::isSolvedFor(premium, 34200.5, 11));
    EXPECT_FALSE(finance::isSolvedFor(premium, {}, 10));

    premium.PremGrowth = 0;
    finance::solvePremium(premium, shipped);
    EXPECT_FALSE(finance::isSolvedFor(premium, 34200.5, 10)) << "no longer solved";

    premium.PremGrowth = 9.5;
    premium.PremTarget = 50000; // typed over the capital: an answer, but not for the analysis
    EXPECT_EQ(finance::solvePremium(premium, shipped).state, PremiumState::solvedForOther);
    EXPECT_GT(premium.premium, 128);
    EXPECT_FALSE(finance::isSolvedFor(premium, 34200.5, 10));

    finance::carryCapital(premium, 34200.5, 10);
    EXPECT_EQ(premium.premium, 0) << "carried in afresh";
    EXPECT_EQ(premium.PremTarget, 34200.5);
    EXPECT_EQ(premium.PremGrowth, 9.5);
    EXPECT_EQ(premium.PremEscalation, 6);

    finance::carryCapital(premium, {}, 10);
    for (const double typed : {0.0, -1.0}) {
        premium.PremTarget = typed;
        EXPECT_EQ(finance::solvePremium(premium, shipped).state, PremiumState::noCapital) << "never none needed";
    }
    premium.PremTarget = 1000;
    EXPECT_EQ(finance::solvePremium(premium, shipped).state, PremiumState::solvedForOther);
}

TEST(CapitalPremium, SaysThatAPeriodWasReducedOnlyOfTheFiftyYears) {
    for (const auto& [years, term, reduced] :
         {std::tuple{50.0, 50, false}, {50.5, 50, true}, {63.0, 50, true}, {-3.0, 0, false}, {7.0, 7, false}}) {
        CapitalPremium premium = carried(1000, years, 10, 0);
        EXPECT_EQ(premium.PremTerm, term) << years;
        EXPECT_EQ(finance::isReduced(premium), reduced) << years;
        premium.PremTerm = 20; // typed
        EXPECT_FALSE(finance::isReduced(premium));
    }
}

} // namespace
