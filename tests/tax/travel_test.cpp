#include "tax/travel.h"

#include <gtest/gtest.h>

namespace {

using assessment::CarAll;

TEST(Travel, DividesTheKilometresByTheLogBookElseByTheYear) {
    // total, days, logged; business, private. The part of 184 days in 32 000 km is 16 131: up to there the private part
    // is cut to cents, above it the business part, and from 32 001 on the private part again.
    const double cases[][5] = {{32000, 365, 0, 14000, 18000},
                               {32000.5, 365, 0, 14000, 18000.5},
                               {32001, 365, 0, 14000, 18001},
                               {17000, 365, 0, 0, 17000},
                               {17999, 365, 0, 0, 17999},
                               {20000, 365, 0, 2000, 18000},
                               {9000, 184, 0, 0, 9000},
                               {33000, 184, 0, 7057.534246575343, 25942.46},
                               {32000.5, 184, 0, 7057.53, 24942.97},
                               {20000, 184, 0, 7057.53, 12942.47},
                               {16000, 184, 0, 6926.03, 9073.97},
                               {20000, 365, 1234, 1234, 18766},
                               {33000, 365, 1234, 1234, 31766},
                               {20000, 184, 15000, 15000, 5000}};
    for (const auto& [total, days, logged, business, privateKm] : cases) {
        const auto driven = tax::divideKilometres(total, days, logged);
        EXPECT_NEAR(driven.business, business, 1e-9) << total << ' ' << days;
        EXPECT_NEAR(driven.privateKm, privateKm, 1e-9) << total << ' ' << days;
    }
}

TEST(Travel, ALimitOfTheCostTableBelongsToTheRowBelowAndTheLastRowToAllAbove) {
    const double rows[][4] = {{100000, 33940, 1.467, 0.474},  {200000, 60688, 1.638, 0.593},
                              {300000, 87497, 1.779, 0.654},  {400000, 111273, 1.914, 0.714},
                              {500000, 135048, 2.048, 0.839}, {600000, 159934, 2.349, 0.985},
                              {700000, 184867, 2.389, 1.105}, {800000, 211121, 2.429, 1.225}};
    for (const auto& [value, fixed, fuel, maintenance] : rows)
        for (const double at : {value, value - 99999.99, value == 800000 ? 9e5 : value}) {
            const tax::TravelCost& cost = tax::TravelCostTable(at);
            EXPECT_TRUE(cost.fixed == fixed && cost.fuel == fuel && cost.maintenance == maintenance) << at;
        }
}

CarAll car(double value, double kilometres, double business, double days, double allowance, bool fuel,
           bool maintenance) {
    CarAll made;
    made.vehicleValue = value, made.allowance = allowance, made.businessKm = business;
    made.openKm = kilometres == 0 ? 0 : 10000, made.closeKm = made.openKm + kilometres;
    made.endDate = made.startDate + days - 1, made.includeFuel = fuel, made.includeMaintenance = maintenance;
    return made;
}

TEST(Travel, ClaimsByDeemedCosts) {
    // value, kilometres, business, days, fuel, maintenance; cents a kilometre: fixed cost, in all, as shown; the claim
    const double cases[][10] = {{385000, 30000, 12000, 365, 1, 1, 370.91, 633.71, 633.7, 76045.2},
                                {385000, 30000, 12000, 184, 1, 0, 186.9792, 378.3792, 378.4, 45405.504},
                                {900000, 0.5, 12000, 365, 0, 1, 0, 122.5, 122.5, 14700},
                                {250000, 25000, 9000, 365, 0, 0, 349.988, 349.988, 350, 31498.92},
                                {700000, 41234, 20000, 100, 1, 1, 122.8318, 472.2318, 472.2, 94446.36}};
    for (const auto& c : cases) {
        const auto result =
            tax::travelClaim(car(c[0], c[1], c[2], c[3], 5, c[4] == 1, c[5] == 1)); // 5 is no limit here
        EXPECT_NEAR(result.fixed, c[6], 1e-9) << c[0];
        EXPECT_NEAR(result.rate, c[7], 1e-9) << c[0];
        EXPECT_EQ(result.shownRate(), c[8]) << c[0];
        EXPECT_NEAR(result.claim, c[9], 1e-6) << c[0];
    }
    for (const CarAll& lacking : {car(0, 3e4, 1e4, 365, 0, true, true), car(4e5, 3e4, 0, 365, 0, true, true),
                                  car(4e5, 3e4, 1e4, base::NoDate, 0, true, true)})
        EXPECT_EQ(tax::travelClaim(lacking).method, tax::TravelMethod::none);
}

TEST(Travel, ClaimsByActualCostsUpToTheAllowance) {
    // value, kilometres, business, days, allowance, fuel, maintenance, costs; private use, claim. Without kilometres
    // private use is that of a company car, but no more than the costs.
    const double cases[][10] = {{4e5, 2e4, 5000, 365, 0, 1, 1, 8e4, 60000, 20000},
                                {4e5, 2e4, 5000, 365, 15000, 1, 1, 8e4, 60000, 15000},
                                {4e5, 2e4, 0, 365, 0, 1, 1, 8e4, 72000, 8000},
                                {4e5, 1, 5000, 365, 0, 1, 1, 8e4, 80000, 0},
                                {4e5, 1.5, 1, 365, 0, 1, 1, 3e7, 1e7, 9999999.97},
                                {4e5, 0, 0, 365, 0, 1, 1, 15e4, 100800, 49200},
                                {4e5, 0, 0, 365, 0, 0, 1, 15e4, 111360, 38640},
                                {4e5, 0, 0, 365, 0, 1, 0, 15e4, 109440, 40560},
                                {4e5, 0, 0, 100, 2e4, 0, 0, 15e4, 32876.712329, 20000},
                                {4e5, 0, 0, 365, 0, 1, 1, 1e5, 0, 0},
                                {0, 0, 0, 365, 5000, 1, 1, 8000, 0, 5000},
                                {0, 0, 0, 365, 0, 1, 1, 8000, 0, 8000}};
    for (const auto& c : cases) {
        CarAll kept = car(c[0], c[1], c[2], c[3], c[4], c[5] == 1, c[6] == 1);
        kept.repairs = c[7];
        const auto result = tax::TravelActualCalc(kept);
        EXPECT_NEAR(result.privateUse, c[8], 1e-6) << &c - cases;
        EXPECT_NEAR(result.claim, c[9], 1e-6) << &c - cases;
        EXPECT_EQ(result.fuel + result.maintenance, c[1] == 0 && c[0] > 0 ? c[5] * 120 + c[6] * 85 : 0) << &c - cases;
    }
}

} // namespace
