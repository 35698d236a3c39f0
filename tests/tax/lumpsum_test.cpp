#include "tax/lumpsum.h"

#include <gtest/gtest.h>

namespace {

// T, at retirement to 2009, resignation to 28/02/2021; resignation, retrenchment, retirement this year; the tax
using Case = std::array<double, 7>;
const Case cases[] = {
    // no T, or nothing this year
    {0, 0, 0, 0, 0, 9e5, 0},
    {1.5, 0, 0, 9e5, 0, 0, 0},
    {1, 0, 5e5, -5e4, 0, 0, 0},
    // withdrawal
    {1, 0, 0, 27501, 0, 0, 0.18},
    {1, 0, 0, 726001, 0, 0, 125730.27},
    {1, 0, 0, 1089001, 0, 0, 223740.36},
    // the amount before 2009 has no part in the first test, but in the tax
    {1, 1e6, 0, 27500, 0, 0, 0},
    {1, 1e6, 0, 27501, 0, 0, 7425.27},
    {1, 0, -5e4, 4e4, 0, 0, 0},
    // 22 050 on 150 000 less 13 050; 58 050 on 350 000 less 49 050, since the other kinds stay among the earlier
    {1, 0, 1e5, 5e4, 0, 0, 9000},
    {1, 0, 0, 5e4, 1e5, 2e5, 9000},
    // benefit
    {3, 0, 0, 0, 0, 6e5, 9000},
    {2, 0, 0, 0, 6e5, 0, 9000},
    {3, 0, 0, 0, 0, 550001, 0.18},
    {3, 0, 0, 0, 0, 770001, 39600.27},
    {3, 0, 0, 0, 0, 1155001, 143550.36},
    {3, 1e6, 0, 0, 0, 1, 0.27},
    {3, 1e6, -6e5, 0, 0, 6e5, 0},
    // the resignation stays among the earlier: below 550 000, then 74 700 on 900 000 less 9 000
    {3, 0, 0, 1e5, 0, 6e5, 27000},
    {3, 0, 0, 6e5, 1e5, 2e5, 65700}};

assessment::LumpSums client(const Case& c) {
    assessment::LumpSums sums;
    sums.FstLumpTaken = c[0], sums.RetireLumpSumBefore = c[1];
    sums.RRExGrtCTY0204[tax::firstLumpSumYear] = c[2], sums.RRExGrtCTY0204[tax::currentLumpSumYear] = c[3];
    sums.RetrenchmentLumps[tax::currentLumpSumYear] = c[4], sums.RetireDeathAfter[tax::currentLumpSumYear] = c[5];
    sums.RRExGrtCTY0204[tax::firstLumpSumYear - 1] = 5e6; // kept from an older version, without a part
    return sums;
}

TEST(LumpSumCalc, TaxesAllAmountsByTheChosenTableAndDeductsTheTaxOnThoseBefore) {
    for (const Case& c : cases)
        EXPECT_NEAR(tax::LumpSumCalc(client(c)).taxDue, c[6], 1e-6) << &c - cases;
    // Up to 300 000 no benefit is looked up, which no tax shows: the table is free up to 550 000.
    for (const auto& [amount, table] :
         {std::pair{3e5, (const tax::LumpSumTable*)nullptr}, {300001.0, &tax::benefitTable2027}})
        EXPECT_EQ(tax::LumpSumCalc(client({3, 0, 0, 0, 0, amount})).table, table);
}

} // namespace
