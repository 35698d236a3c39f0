#include "analyses/premium.h"

#include <gtest/gtest.h>

namespace {

using assessment::Assessment;

TEST(CarriedCapital, OfAnEducationIsWhatItTakesOrNothing) {
    const struct {
        assessment::NAEducation needs; // cost, inflation, years to and of education, rate
        bool isFound;
        double capital;
    } cases[] = {
        {{10000, 10, 2, 3, 8}, true, 34300}, {{10000, 10, 2, 0, 8}, true, 0}, // no year is asked for
        {{1e15, 10, 2, 3, 8}, false, 0},                                      // beyond the search
        {{1e308, 30, 25, 10, 8}, false, 0},                                   // beyond all figures
        {{-10000, 10, 2, 3, 8}, false, 0},                                    // a cost below 0 can't be computed
    };
    for (const auto& c : cases) {
        Assessment record;
        record.education = c.needs;
        analyses::carryPremium(record, analyses::NAEdCalc(record.education));
        EXPECT_EQ(record.premiums.source, 1);
        EXPECT_EQ(record.premiums.education.isFound == 1, c.isFound) << c.needs.FundsPD;
        EXPECT_EQ(record.premiums.education.capital, c.capital) << c.needs.FundsPD;
        EXPECT_EQ(record.premiums.education.years, c.needs.YearsToEdu);
    }
}

TEST(CarriedCapital, OfARetirementIsAShortfallASurplusOrNothing) {
    const struct {
        double income, capital;
        bool isFound;
        double carried;
    } cases[] = {{10000, 500000, true, 680000},
                 {10000, 9550000, true, -8300000},
                 {1e15, 1550000, false, 0},
                 {1e308, 1550000, false, 0}};
    for (const auto& c : cases) {
        Assessment record;
        auto& needs = record.retirement;
        needs.IncomePD = c.income, needs.CoverYears = 20, needs.BankInvestRate = 8;
        needs.CurrAge = 33, needs.AgeRetiment = 99, needs.ANSLAss1 = c.capital;
        analyses::carryPremium(record, analyses::NARACalc(record));
        EXPECT_EQ(record.premiums.source, 2);
        EXPECT_EQ(record.premiums.retirement.isFound == 1, c.isFound) << c.income;
        EXPECT_EQ(record.premiums.retirement.capital, c.carried) << c.income << " " << c.capital;
        EXPECT_EQ(record.premiums.retirement.years, 66) << "not limited to 50";
    }
}

} // namespace
