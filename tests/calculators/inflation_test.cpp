#include "calculators/inflation.h"

#include <gtest/gtest.h>

namespace {

TEST(Inflation, GrowsTheCostAndShrinksTheBuyingPower) {
    struct Case {
        assessment::Inflation inputs; // cost, years, percent a year
        double futureValue, buyingPower;
    };
    for (const Case& c : {Case{{10000, 10, 10}, 25937.424601, 3855.432894},
                          {{10000, 40, 0}, 10000, 10000},
                          {{10000, 1, -5}, 9500, 10526.315789}, // falling prices
                          {{10000, 2, 6.125}, 11262.515625, 8879.010989},
                          {{10000, 0, 10}, 10000, 10000},
                          {{10000, -3, 10}, 10000, 10000}}) {
        const auto result = calculators::LTLINFL(c.inputs);
        EXPECT_NEAR(result.futureValue, c.futureValue, 1e-6) << c.inputs.IntRateInflation;
        EXPECT_NEAR(result.buyingPower, c.buyingPower, 1e-6) << c.inputs.IntRateInflation;
    }
}

} // namespace
