#include "calculators/investcomparison.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "calculators/comparisonscale.h"

namespace {

using assessment::InvestComparison;
using calculators::compareInvestments, calculators::comparisonTax;

InvestComparison offer(double taxable, double taxFree, double annuityTaxFree, double annuityTaxed, double amount,
                       double rate) {
    return {taxFree, taxable, 0, {}, annuityTaxFree, annuityTaxed, amount, rate, {}};
}

TEST(InvestmentComparison, TaxesBothOffersByItsOwnScaleAndFindsTheBreakEven) {
    const struct {
        InvestComparison inputs;
        double age, lessAnnuity, afterAnnuity, interest, lessInterest, afterInterest;
        const char* breakEven;
    } cases[] = {
        // 240 000 is taxed at 25 965 after the rebate, 300 000 at 41 157
        {offer(240000, 0, 3000, 5000, 1e6, 8), 60, 1266, 6734, 6666.666667, 1183.666667, 5483, "10.1"},
        // the tax-free income counts with the interest
        {offer(240000, 12000, 3000, 5000, 1e6, 8), 66, 1266, 6734, 6666.666667, 1211.833333, 5454.833333, "10.1"},
        {offer(240000, 0, 3000, 5000, 1e6, 8), 75, 1266, 6734, 6666.666667, 951.833333, 5714.833333, "9.7"},
        {offer(0, 0, 500, 1500, 200000, 5), 64.9, 0, 2000, 833.333333, 0, 833.333333, "12.1"}, // below the rebate
        {offer(500000, 0, 0, 10000, 1e6, 12.5), 70, 3474.166667, 6525.833333, 10416.666667, 2589.166667, 7827.5, ""},
        // interest below its exemption lowers no tax; 1441.45 is a hair less after so many steps
        {offer(300000, 0, 2000, 4000, 5000, 7.25), 50, 1040, 4960, 30.208333, 0, 30.208333, "1441.4"},
        {offer(-50000, 0, 10, 0, 1000, 1), 50, 0, 10, 0.833333, 0, 0.833333, "12.1"},
        {offer(0, 0, 0, 1000, 100000, 12), 50, 0, 1000, 1000, 0, 1000, ""}, // the deposit pays as much
        {offer(0, 0, 0, 1000, 0, 12), 50, 0, 1000, 0, 0, 0, ""},            // no deposit, no rate
        {offer(0, 0, 0, 1000, -5000, 12), 50, 0, 1000, -50, 0, -50, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.age << " " << c.inputs.CTaxInc << " " << c.inputs.FDAmount);
        const auto result = compareInvestments(c.inputs, c.age);
        EXPECT_NEAR(result.LessMonAnn, c.lessAnnuity, 1e-6);
        EXPECT_NEAR(result.MonAfterAnn, c.afterAnnuity, 1e-6);
        EXPECT_NEAR(result.deposit.FXMonInc, c.interest, 1e-6);
        EXPECT_NEAR(result.deposit.FXLessTax, c.lessInterest, 1e-6);
        EXPECT_NEAR(result.deposit.FXMonAftTax, c.afterInterest, 1e-6);
        EXPECT_EQ(result.breakEven.has_value(), *c.breakEven != 0);
        if (!result.breakEven) continue;
        EXPECT_EQ(result.breakEven->sentence(),
                  std::string("Only a fixed deposit rate of ") + c.breakEven + " %p.a. would beat the annuity!");
    }
}

TEST(InvestmentComparison, ItsScaleKeepsTheRebateOfAYearBeforeAndItsEdges) {
    for (const auto& [age, rebates, exemption] :
         {std::tuple{64.999, 17235, 23800}, {65.0, 27000, 34500}, {74.999, 27000, 34500}, {75.0, 30249, 34500}}) {
        EXPECT_EQ(compareInvestments({}, age).rebates, rebates);
        EXPECT_EQ(compareInvestments({}, age).exemption, exemption);
    }
    const std::tuple<double, double, double> edges[] = {{245100, 44118, 26},  {383100, 79998, 31},
                                                        {530200, 125599, 36}, {695800, 185215, 39},
                                                        {887000, 259783, 41}, {1878600, 666339, 45}};
    for (const auto& [limit, tax, rateAbove] : edges) {
        EXPECT_NEAR(comparisonTax(limit, 0), tax, 1e-8);
        EXPECT_NEAR(comparisonTax(limit + 0.5, 0), tax + rateAbove / 200, 1e-8);
    }
    EXPECT_EQ(comparisonTax(95750, 17235), 0);
    EXPECT_EQ(comparisonTax(-1000, 0), 0);
}

/// The search as it is defined: tenths of a percent added until the deposit pays more.
double steppedRate(InvestComparison inputs, double age, double annuity) {
    inputs.MonTAnn = inputs.MonTFAnn = 0; // without an annuity nothing is searched
    while (compareInvestments(inputs, age).deposit.FXMonAftTax <= annuity)
        inputs.FXInt += 0.1;
    return inputs.FXInt;
}

TEST(InvestmentComparison, TheBreakEvenIsTheOneOfPlainStepsBitForBit) {
    std::mt19937_64 random{20261123};
    const auto any = [&](double most) { return std::uniform_real_distribution(0.0, most)(random); };
    int found = 0, far = 0;
    for (int number = 0; number < 400; ++number) {
        const double age = any(100);
        auto inputs = offer(any(900000), any(50000), any(9000), any(30000), any(2e6) + 5000, any(40) - 20);
        if (number % 10 == 0) inputs.FDAmount /= 100;
        const auto result = compareInvestments(inputs, age);
        if (!result.breakEven) continue;
        ++found;
        if (result.RATE() > 1000) ++far;
        ASSERT_EQ(result.RATE(), steppedRate(inputs, age, result.MonAfterAnn)) << number;
        EXPECT_EQ(result.breakEven->rateBelow + 0.1, result.RATE());
        EXPECT_GT(result.breakEven->deposit.FXMonAftTax, result.MonAfterAnn);
    }
    EXPECT_GT(found, 200);
    EXPECT_GT(far, 5);
}

TEST(InvestmentComparison, AnyFiguresEndTheSearchAtOnce) {
    const auto start = std::chrono::steady_clock::now();
    for (const double amount : {1e-300, 1e-12, 1e-6, 0.01, 1.0, 1e300})
        for (const double annuity : {1.0, 1e9, 1e16, 1e300})
            for (const double income : {-1e15, 0.0, 1e6, 1e12, 1e308})
                for (const double rate : {-1e20, 0.0, 1e13, 1e300})
                    compareInvestments(offer(income, 0, annuity, annuity, amount, rate), 50);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    // The rounding of such an income is that of thousands of steps of a cent's interest.
    EXPECT_TRUE(compareInvestments(offer(1e12, 0, 0, 100, 0.01, 0), 50).breakEven);
    EXPECT_FALSE(compareInvestments(offer(0, 0, 0, 1e16, 1, 0), 50).breakEven) << "no rate grows that far by tenths";
    EXPECT_FALSE(compareInvestments(offer(0, 0, 0, 1e308, 1, 0), 50).isFinite());
}

} // namespace
