#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <set>

#include "base/rounding.h"
#include "calculators/nominalrate.h"

namespace {

using base::roundHalfEven;

double grown(double n) {
    double v = 100;
    for (int month = 0; month < 12; ++month)
        v += (n / 12) * v / 100;
    return v;
}

std::optional<double> metByPlainSteps(double rate) {
    const double target = 100 + rate;
    for (double n = rate - 0.01;; n -= 0.01) {
        const double v = grown(n);
        if (target >= roundHalfEven(v - 0.001, 2) && target <= roundHalfEven(v + 0.001, 2)) return roundHalfEven(n, 2);
        if (v < target - 0.05) return {};
    }
}

double metInCents(double rate) {
    const double target = 10000 + roundHalfEven(rate * 100);
    std::optional<double> below;
    for (double n = rate - 0.01;; n -= 0.01) {
        const double low = std::nearbyint((grown(n) - 0.001) * 100), high = std::nearbyint((grown(n) + 0.001) * 100);
        if (low <= target && target <= high) return roundHalfEven(n, 2);
        if (!below && high < target) below = n;
        if (high < target - 10) return roundHalfEven(*below, 2);
    }
}

TEST(NominalRate, IsThatOfPlainStepsAtEveryRate) {
    std::set<int> unmet;
    for (int hundredths = 106; hundredths <= 9900; ++hundredths) {
        const double rate = hundredths / 100.0;
        const auto met = metByPlainSteps(rate);
        if (!met) unmet.insert(hundredths);
        ASSERT_EQ(calculators::nominalRate(rate), met ? *met : metInCents(rate)) << rate;
    }
    EXPECT_EQ(unmet.size(), 2416u);
    EXPECT_TRUE(unmet.contains(804) && unmet.contains(3800));
}

TEST(NominalRate, LeavesSomeRatesAlone) {
    for (const double rate : {1.05, 1.0, 0.0, -3.0, 99.01, HUGE_VAL, std::nan("")})
        EXPECT_FALSE(calculators::nominalRate(rate)) << rate;
    struct {
        double rate, NomRate;
    } const cases[] = {
        {12, 11.39},  {12.004, 11.39},                     // two places count
        {1.06, 1.05}, {1.052, 1.04},                       // above 1.05, though it rounds to it
        {1.05, 7},    {0, 7},          {-1, 7}, {99.5, 7}, // left alone
        {1.04, 1.03}, {0.005, -0.005},
    };
    for (const auto& each : cases) {
        double NomRate = 7;
        calculators::EffNomCalc(each.rate, NomRate);
        EXPECT_DOUBLE_EQ(NomRate, each.NomRate) << each.rate;
    }
}

} // namespace
