#include <gtest/gtest.h>

#include <cmath>

#include "base/rounding.h"
#include "calculators/nominalrate.h"

namespace {

using base::roundHalfEven;

double byPlainSteps(double rate, bool& met) {
    const double target = 100 + rate, cents = 10000 + roundHalfEven(rate * 100);
    double inCents = 0, below = 0;
    for (double n = rate - 0.01;; n -= 0.01) {
        if (100 + n + n * n * 11 / 2400 > target + 0.1) continue; // these two terms of the growth are too much already
        double v = 100;
        for (int month = 0; month < 12; ++month)
            v += (n / 12) * v / 100;
        met = roundHalfEven(v - 0.001, 2) <= target && target <= roundHalfEven(v + 0.001, 2);
        if (met) return roundHalfEven(n, 2);
        const double low = roundHalfEven((v - 0.001) * 100), high = roundHalfEven((v + 0.001) * 100);
        if (inCents == 0 && low <= cents && cents <= high) inCents = n;
        if (below == 0 && high < cents) below = n;
        if (v < target - 0.05) return roundHalfEven(inCents != 0 ? inCents : below, 2);
    }
}

TEST(NominalRate, IsThatOfPlainStepsAtEveryRate) {
    int unmet = 0;
    for (int hundredths = 106; hundredths <= 9900; ++hundredths) {
        bool met = false;
        ASSERT_EQ(calculators::nominalRate(hundredths / 100.0), byPlainSteps(hundredths / 100.0, met)) << hundredths;
        unmet += met ? 0 : 1;
        EXPECT_FALSE(met && (hundredths == 804 || hundredths == 3800));
    }
    EXPECT_EQ(unmet, 2416);
}

TEST(NominalRate, LeavesSomeRatesAlone) {
    const double cases[][2] = {{12.004, 11.39}, {1.052, 1.04}, {1.05, 7},       {0, 7},        {-1, 7},
                               {99.01, 7},      {1.04, 1.03},  {0.005, -0.005}, {HUGE_VAL, 7}, {std::nan(""), 7}};
    for (const auto& [rate, expected] : cases) {
        double NomRate = 7;
        calculators::EffNomCalc(rate, NomRate);
        EXPECT_DOUBLE_EQ(NomRate, expected) << rate;
        EXPECT_EQ(calculators::nominalRate(rate).has_value(), rate > 1.05 && rate <= 99) << rate;
    }
}

} // namespace
