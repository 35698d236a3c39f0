#include "finance/lifeofcapital.h"

#include <gtest/gtest.h>

namespace {

using assessment::LifeOfCapital;
using finance::CapitalLife;
using finance::LCCalculate;

TEST(LifeOfCapital, YearByYear) {
    const auto years = finance::FINDTERMLIFE({500000, 5000, 9, 25, 6});
    EXPECT_EQ(years.capital[1], 500000);
    EXPECT_EQ(years.earnings[1], 33750); // 9 % less a quarter in tax
    EXPECT_EQ(years.need[1], 60000);
    EXPECT_EQ(years.capital[2], 473750); // the first year's income is paid in any case
    EXPECT_EQ(years.earnings[2], 31978.125);
    EXPECT_EQ(years.need[2], 63600);
    EXPECT_EQ(years.lookedAt, 10);
    EXPECT_NEAR(years.capital[10], 14636.461637, 1e-6);
    EXPECT_NEAR(years.need[10], 101368.737540, 1e-6); // more than the capital and its earnings: 9 years are covered
    EXPECT_EQ(finance::FINDTERM({500000, 5000, 9, 25, 30}, 6).need[10], years.need[10]) << "a quotation's own rise";
}

TEST(LifeOfCapital, ResultsOnBothScreens) {
    struct Case {
        LifeOfCapital of;
        int result, shown, shownInQuotes;
    };
    const Case cases[] = {
        {{100000, 1000, 10, 0, 0}, 18, 18, 18},
        {{1, 1000, 10, 0, 0}, 1, 1, 1},      // far too little, but the first year is never tested
        {{26400, 1000, 10, 0, 0}, 2, 2, 2},  // 26 400, then 17 040 + 1 704, then 6 744: too little
        {{1200, 100, 100, 100, 0}, 1, 1, 1}, // tax takes all earnings: nothing is left for year 2
        {{2400, 100, 9, 100, 0}, 2, 2, 2},   // exactly the need of year 2 is enough
        {{187100, 1000, 6, 0, 0}, 47, 47, 47},
        {{187900, 1000, 6, 0, 0}, 48, 48, 45},  // quotes say "more than" from 48 on, and show 45
        {{188500, 1000, 6, 0, 0}, 49, 50, 45},  // runs out in the last year calculated
        {{500000, 1000, 9, 25, 0}, 49, 50, 45}, // never runs out
        {{0, 1000, 10, 0, 0}, 0, 0, 0},
        {{100000, 0, 10, 0, 0}, 0, 0, 0},
        {{100000, 1000, 0, 0, 0}, 0, 0, 0},
        {{100000, 1000, -10, 0, 0}, 5, 5, 5}, // a loss is used as it is
    };
    for (const Case& c : cases) {
        const CapitalLife life = LCCalculate(c.of, finance::moreThanInLifeOfCapital);
        const CapitalLife quoted = LCCalculate(c.of, finance::moreThanInQuotes);
        EXPECT_EQ(life.result, c.result) << c.of.CAPI;
        EXPECT_EQ(life.shown, c.shown) << c.of.CAPI;
        EXPECT_EQ(quoted.shown, c.shownInQuotes) << c.of.CAPI;
        EXPECT_EQ(life.rows(), std::max(c.shown, 1)) << c.of.CAPI;
        EXPECT_EQ(life.caption.ends_with(" more than "), c.shown == 50) << life.caption;
        EXPECT_EQ(quoted.caption.ends_with(" more than "), c.result >= 48) << quoted.caption;
        EXPECT_TRUE(life.isFinite);
    }
    EXPECT_EQ(LCCalculate(cases[0].of, finance::moreThanInLifeOfCapital).sentence(),
              "Will provide required income for 18 years.");
    EXPECT_EQ(LCCalculate(cases[8].of, finance::moreThanInLifeOfCapital).sentence(),
              "Will provide required income for more than 50 years.");
    EXPECT_FALSE(LCCalculate({1e308, 1, 1e6, 0, 0}, finance::moreThanInLifeOfCapital).isFinite);
}

} // namespace
