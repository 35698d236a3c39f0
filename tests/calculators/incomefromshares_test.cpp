#include <gtest/gtest.h>

#include <cmath>

#include "calculators/incomefromshares.h"

namespace {

using calculators::incomeFromShares;
using calculators::IncomeSharesCosts;

constexpr IncomeSharesCosts shipped{1, 0, 0, 1, 0.5};
constexpr IncomeSharesCosts dear{2.5, 1500, 1.25, 0.75, 1.1};

TEST(IncomeFromShares, PaysUntilTheNextIncomeIsMoreThanTheCapital) {
    struct Month {
        int month;
        double capital, income, tax;
    };
    const struct {
        assessment::IncomeShares inputs; // amount, growth, income, escalation, tax rate
        IncomeSharesCosts costs;
        double nominal;
        int months;
        Month shown[4];
        const char* sentence;
    } cases[] = {
        // The first year's tax counts one month of the income. The income rises after month 13 is paid.
        {{20000000, 9.125, 150000, 7.255, 45, "monthly"},
         dear,
         8.76,
         151,
         {{12, 19394539.57002813, 150000, 10008.6404},
          {13, 19220723.548937965, 160890, 10008.6404},
          {24, 19209666.55016873, 160890, 181709.4081},
          {150, 556147.3594831453, 347812.1672919891, 370755.1517}},
         "The capital lasts 12 years and 6 months."},
        // An annual income is drawn at the year's end and rises just before. Month 180 could not pay the next one.
        {{20000000, 9.125, 1500000, 7.255, 45, "annually"},
         dear,
         8.76,
         192,
         {{1, 19424827.17868875, 1500000, 0},
          {12, 19776037.841904677, 1500000, 140181.4038},
          {13, 19752869.889373958, 1500000, 140181.4038},
          {84, 19446347.6675129, 2284115.257464, 215789.1445}},
         "The capital lasts 15 years and 11 months."},
        // An income that should fall does so only if it is annual.
        {{500000, 10, 4000, -5, 30, "monthly"},
         shipped,
         9.57,
         290,
         {{1, 492420.986875, 4000, 0},
          {12, 491220.6133746412, 4000, 0},
          {84, 438288.4449710948, 4000, 267.8664},
          {289, 5538.747784614501, 4000, 267.8664}},
         "The capital lasts 24 years and 1 month."},
        {{500000, 10, 40000, -5, 30, "annually"},
         shipped,
         9.57,
         600,
         {{12, 501464.04417156347, 40000, 0},
          {24, 507569.15882399265, 38000, 0},
          {84, 577606.6564137089, 29403.675625, 0},
          {600, 14408130.071236428, 3239.788432703717, 0}},
         "The capital lasts more than 50 years."},
        {{1000000, 0, 20000, 0, 40, "monthly"},
         shipped,
         0,
         48,
         {{1, 965050, 20000, 0}, {13, 717291.9210085, 20000, 0}, {47, 29488.48768397965, 20000, 0}, {84, 0, 0, 0}},
         "The capital lasts 3 years and 11 months."},
        {{1000, 12, 8000, 6, 40, "monthly"}, shipped, 11.39, 1, {}, "The income is more than the capital."},
        {{3100, 12, 1000, 0, 40, "monthly"}, {}, 0, 3, {{2, 1100, 1000, 0}}, "The capital lasts 2 months."},
        {{0, 12, 8000, 6, 40, "monthly"}, shipped, 11.39, 0, {}, ""},
        {{1000, 12, 0, 6, 40, "annually"}, shipped, 11.39, 0, {}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.sentence);
        const auto run = incomeFromShares(c.inputs, c.costs, c.nominal);
        EXPECT_EQ(run.months, c.months);
        EXPECT_EQ(run.sentence(), c.sentence);
        for (const auto& [month, capital, income, tax] : c.shown) {
            const auto i = static_cast<std::size_t>(month);
            EXPECT_NEAR(run.ISCapital[i], capital, 1e-9 * capital) << month;
            EXPECT_NEAR(run.ISIncome[i], income, 1e-9 * income) << month;
            EXPECT_DOUBLE_EQ(run.ISTax[i], tax) << month;
            EXPECT_EQ(run.ISYear[i], month <= run.months ? month / 12.0 : 0);
        }
        const auto end = static_cast<std::size_t>(run.months);
        EXPECT_EQ(run.ISCapital[end] == 0 && run.ISIncome[end] == 0, run.ranOut || run.months == 0);
    }
}

TEST(IncomeFromShares, ShowsYearsAndHowTheTaxCameAbout) {
    const auto monthly = incomeFromShares({1000000, 0, 20000, 0, 40, "monthly"}, shipped, 0);
    ASSERT_EQ(monthly.years().size(), 4u); // the fourth ran out in its last month
    EXPECT_EQ(monthly.year(3).incomeDrawn, 240000);
    EXPECT_EQ(monthly.year(4).incomeDrawn, 0) << "eleven months were paid, but nothing is left";
    EXPECT_EQ(monthly.sampleYears()[6].year, 7);
    EXPECT_EQ(monthly.taxes[1].income, 20000) << "the first year counts one month";
    EXPECT_EQ(monthly.taxes[2].income, 240000);
    const auto annual = incomeFromShares({20000000, 9.125, 1500000, 7.255, 45, "annually"}, dear, 8.76);
    EXPECT_DOUBLE_EQ(annual.invested, 19284053.5875);
    EXPECT_EQ(annual.years().size(), 16u);
    EXPECT_DOUBLE_EQ(annual.taxes[7].discounted, 800989.705); // 12 steps, each rounded to four places
    EXPECT_DOUBLE_EQ(annual.year(7).tax, 215789.1445);
    EXPECT_DOUBLE_EQ(annual.year(7).incomeDrawn, annual.taxes[7].income);
    EXPECT_FALSE(incomeFromShares({1e308, 12, 1, 0, 40, "annually"}, {0, 0, 100, 0, 0}, 11.39).isFinite());
    EXPECT_TRUE(annual.isFinite());
}

} // namespace
