#include "tax/estateduty.h"

#include <gtest/gtest.h>

namespace {

TEST(EstateDuty, ChargesTheDutiableAmountInTwoTiersThatDoNotMeet) {
    const tax::EstateDutyRates shipped{3500000, 20, 30000000, 25, 3.5};
    // total, accrual, duty: in the first tier up to rebate and tier value together; from there 20 % of 26.5 million and
    // 25 % of the total beyond 30 million, before the accrual
    const double cases[][3] = {{3499999, 0, 0},
                               {3500001, 0, 0.2},
                               {5000000, 6000000, 0},
                               {33500000, 0, 6000000},
                               {33500001, 0, 6175000.25},
                               {40000000, 6499999, 7800000},
                               {40000000, 6500000, 6000000}};
    for (const auto& [total, accrual, duty] : cases) {
        const auto result = tax::estimateEstateDuty({total - 30, 20, 10, accrual, 4, 3, 2, 1}, shipped);
        EXPECT_EQ(result.dutiable, std::max(0.0, total - accrual));
        EXPECT_NEAR(result.duty, duty, 1e-6) << total;
        EXPECT_NEAR(result.fees, 8 * 0.035, 1e-12);
    }
    const auto odd = tax::estimateEstateDuty({2e6, 0, 0, 0, 5, 0, 0, 6}, {31e6, 20, -3e7, 0, 3});
    EXPECT_EQ(odd.duty, 0) << "both tiers below the rebate";
    EXPECT_EQ(odd.fees, 0) << "an accrual above the total";
}

} // namespace
