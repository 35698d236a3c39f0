#include "tax/rataxadvantage.h"

#include <gtest/gtest.h>

#include "base/day.h"

namespace {

using tax::RATaxOutcome;

assessment::RATaxAdvantage inputs(double age, double remuneration, double taxable, double gains, double proposed) {
    return {remuneration, taxable, proposed, static_cast<std::int16_t>(age), "", gains};
}

TEST(RATaxAdvantage, ComparesTheTaxWithAndWithoutTheContribution) {
    const struct {
        double age, remuneration, taxable, gains, proposed, maximum, saving, bySARS;
        const char* percent;
        RATaxOutcome outcome = RATaxOutcome::saving;
    } cases[] = {
        {40, 6e5, 5e5, 0, 1e5, 165000, 31000, 31000, "(31.0%)"},   // of the remuneration
        {40, 3e5, 5e5, 1e5, 4e5, 165000, 54640, 54800, "(13.7%)"}, // of the income with the gain
        {40, 0, 15e5, 0, 4e5, 350000, 143500, 143600, "(35.9%)"},  // capped
        {40, 9e5, 1e5, 2e5, 5e5, 100000, 22392, 22500, "(4.5%)"},  // at most the taxable income
        {40, 0, 4e5, 0, 5889000, 110000, 29445, 29445, "(.5%)"},   // of the whole proposal
        {40, 0, 4e5, 0, 1e8, 110000, 29445, 0, "0.0%"},
        {65, 0, 25e4, 0, 2e4, 68750, 3992, 4000, "(20.0%)"},
        {40, 0, 95760, 0, 10, 26334, 1.8, 2, "(18.0%)"}, // down to the threshold, though the tax is below the rebate
        {40, 6e5, 0, 1e5, 1e5, 0, 0, 0, "(0.0%)", RATaxOutcome::nothingProposed},
        {40, 6e5, 5e5, 0, 0, 0, 0, 0, "(0.0%)", RATaxOutcome::nothingProposed},
    };
    assessment::KwikTax scale;
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const auto in = inputs(c.age, c.remuneration, c.taxable, c.gains, c.proposed);
        const auto result = tax::calculateRATaxAdvantage(in, scale);
        EXPECT_EQ(result.outcome, c.outcome);
        EXPECT_NEAR(result.maximum, c.maximum, 1e-6);
        EXPECT_NEAR(result.saving, c.saving, 1e-6);
        EXPECT_EQ(result.paidBySARS, c.bySARS);
        EXPECT_EQ(result.paidByTaxpayer, c.outcome == RATaxOutcome::saving ? c.proposed - c.bySARS : 0);
        EXPECT_EQ(result.percentText(), c.percent);
    }
    for (const auto& [age, before] : {std::pair{64.0, 27572.0}, {65, 17807}, {75, 14558}})
        EXPECT_EQ(tax::calculateRATaxAdvantage(inputs(age, 0, 25e4, 0, 2e4), scale).taxBefore, before);
    for (const auto& [age, threshold] : {std::pair{64.0, 95750.0}, {65, 148217}, {74, 148217}, {75, 165689}})
        for (const double below : {0, 1}) { // on the threshold the income pays tax, after the deduction it does not
            const auto result = tax::calculateRATaxAdvantage(inputs(age, 0, threshold - below, 0, 1000), scale);
            EXPECT_EQ(result.outcome, below == 1 ? RATaxOutcome::belowThreshold : RATaxOutcome::fallsBelow) << age;
            EXPECT_TRUE(result.percentText() == "0.0%" && result.maximum > 26330 && result.saving == 0) << age;
        }
    EXPECT_EQ(tax::calculateRATaxAdvantage(inputs(40, 0, 25e4, 0, 2e4), scale).outcome, RATaxOutcome::saving);
    EXPECT_EQ(scale.Salary, 230000) << "the income taxed last";
}

TEST(RATaxAdvantage, StartsFromTheClientsAge) {
    const double today = *base::dayNumber(2026, 11, 23), born = *base::dayNumber(1960, 11, 24), none = base::blankDate;
    // entered here, in quick tax, date of birth; the age
    const double cases[][4] = {
        {44, 50, born, 44}, {0, 50.9, born, 50}, {0, 0, born, 65}, {0, 0, none, 0}, {0, -3, none, 0}};
    for (const auto& [entered, quickTax, birthDate, age] : cases) {
        assessment::Assessment record;
        record.client.BirthDate = birthDate;
        record.raTaxAdvantage.RATaxPayerAge = static_cast<std::int16_t>(entered);
        record.tax.Age = quickTax;
        EXPECT_EQ(tax::startingRATaxAdvantage(record, today).RATaxPayerAge, age) << quickTax;
    }
}

} // namespace
