#include <gtest/gtest.h>

#include "calculators/incomefromshares.h"

namespace {

using calculators::incomeFromShares;
using Costs = calculators::IncomeSharesCosts;

// Worked out by an independent program. A last month's capital depends on every month before it.
TEST(IncomeFromShares, PaysUntilTheNextIncomeIsMoreThanTheCapital) {
    constexpr Costs few{1, 0, 0, 1, 0.5}, all{2.5, 1500, 1.25, 0.75, 1.1};
    const struct {
        assessment::IncomeShares inputs; // amount, growth, income, escalation, tax rate
        Costs costs;
        double nominal;
        int months;
        std::size_t month;
        double capital, income, tax;
    } cases[] = {
        {{2e7, 9.125, 150000, 7.255, 45, "monthly"}, all, 8.76, 151, 1, 19273732.178689, 150000, 0},
        {{2e7, 9.125, 150000, 7.255, 45, "monthly"}, all, 8.76, 151, 13, 19220723.548938, 160890, 10008.6404},
        {{2e7, 9.125, 150000, 7.255, 45, "monthly"}, all, 8.76, 151, 150, 556147.359483, 347812.167292, 370755.1517},
        {{2e7, 9.125, 1.5e6, 7.255, 45, "annually"}, all, 8.76, 192, 13, 19752869.889374, 1500000, 140181.4038},
        {{2e7, 9.125, 1.5e6, 7.255, 45, "annually"}, all, 8.76, 192, 84, 19446347.667513, 2284115.257464, 215789.1445},
        {{500000, 10, 4000, -5, 30, "monthly"}, few, 9.57, 290, 289, 5538.747785, 4000, 267.8664}, // never falls
        {{500000, 10, 40000, -5, 30, "annually"}, few, 9.57, 600, 600, 14408130.071236, 3239.788433, 0},
        {{1000, 12, 8000, 6, 40, "monthly"}, few, 11.39, 1, 1, 0, 0, 0},
        {{0, 12, 8000, 6, 40, "monthly"}, few, 11.39, 0, 1, 0, 0, 0},
        {{1000, 12, 0, 6, 40, "annually"}, few, 11.39, 0, 1, 0, 0, 0},
    };
    for (const auto& c : cases) {
        const auto run = incomeFromShares(c.inputs, c.costs, c.nominal);
        EXPECT_EQ(run.months, c.months);
        EXPECT_NEAR(run.ISCapital[c.month], c.capital, 1e-6) << c.inputs.InitPercRequire;
        EXPECT_NEAR(run.ISIncome[c.month], c.income, 1e-6) << c.inputs.InitPercRequire;
        EXPECT_DOUBLE_EQ(run.ISTax[c.month], c.tax) << c.inputs.InitPercRequire;
        EXPECT_EQ(run.ISYear[c.month], run.months > 0 ? static_cast<double>(c.month) / 12 : 0);
    }
    const auto run = incomeFromShares({1000000, 0, 20000, 0, 40, "monthly"}, few, 0); // 48 months
    EXPECT_EQ(run.years().size(), 4u);
    EXPECT_EQ(run.year(3).incomeDrawn, 240000);
    EXPECT_EQ(run.year(4).incomeDrawn, 0) << "eleven months were paid, but nothing is left";
    EXPECT_EQ(run.taxes[2].discounted, 240000);
    EXPECT_FALSE(incomeFromShares({1e308, 12, 1, 0, 40, "annually"}, {0, 0, 100, 0, 0}, 11.39).isFinite());
    calculators::IncomeSharesRun out{.ranOut = true};
    std::string said;
    for (const int months : {0, 1, 3, 14, 25}) {
        out.months = months;
        said += out.sentence() + "\n";
    }
    EXPECT_EQ(said, "\nThe income is more than the capital.\nThe capital lasts 2 months.\n"
                    "The capital lasts 1 year and 1 month.\nThe capital lasts 2 years.\n");
}

} // namespace
