#include <gtest/gtest.h>

#include <cstdio>

#include "calculators/drawdown.h"
#include "calculators/drawdowncosts.h"
#include "shell/running_program.h"

namespace {

using namespace calculators;

/// inputs: LSAmt; both phases (from, to, income, escalation, growth); NomRate before; costs, if not those shipped.
DrawDownResult run(const QString& inputs, double& NomRate) {
    std::vector<double> f;
    for (const QString& word : inputs.split(' '))
        f.push_back(word.toDouble());
    const bool hasCosts = f.size() > 12;
    f.resize(19);
    NomRate = f[11];
    return DrawDownCalc({f[0]}, {{f[1], f[2], f[3], f[4], f[5]}, {f[6], f[7], f[8], f[9], f[10]}, {}},
                        hasCosts ? assessment::DrawDownCosts{f[12], f[13], f[14], f[15], f[16], f[17], f[18]}
                                 : assessment::DrawDownCosts{1.5, 500, 0.5, 1, 1, 17.5, 2.5},
                        NomRate);
}

// Worked out by a program of its own. expected: how the run ended, years, NetPercent, NomRate; then the portfolio, the
// income and its change in that year.
const struct {
    std::size_t year;
    const char *inputs, *expected;
} runs[] = {
    {1, "1000000 1 20 5000 6 10", "L 20 98.45 9.57: 1003783.40 5000.00 0"},                   // a maximum cuts
    {20, "1000000 1 20 5000 6 10", "L 20 98.45 9.57: 754616.48 11983.90 -8.91"},              // the last two incomes
    {6, "1000000 1 5 5000 6 10 6 20 9000 3 8", "L 20 98.45 7.72: 1079816.50 9000.00 42.58"},  // an income of its own
    {7, "1000000 1 5 5000 6 10 6 20 9000 3 8", "L 20 98.45 7.72: 1045123.60 9270.00 3"},      // escalated a year later
    {4, "1000000 1 3 5000 6 10 8 12 9000 3 8", "L 12 98.45 7.72: 1029843.76 9000.00 60.2"},   // a gap draws the second
    {12, "1000000 1 3 5000 6 10 8 12 9000 3 8", "L 12 98.45 7.72: 552362.28 8933.22 -10.72"}, // and changes growth late
    {2, "1000000 1 1 5000 6 10 2 5 9000 3 8", "L 5 98.45 7.72: 1026267.40 5300.00 6"},        // year 2 is the first's
    {5, "1000000 5 20 5000 6 10 3 0 7000 2 12", "L 20 98.45 11.39: 1127437.26 7282.80 2"},    // before a late first
    {20, "1000000 5 20 5000 6 10 3 0 7000 2 12", "L 20 98.45 11.39: 557488.25 8840.05 -8.91"},
    {2, "100000 1 2 4110 0 5 0 0 0 0 0 0 0 0 0 0 0 99 0", "L 2 100 4.89: 6427.28 4110.00 0"},    // can just pay it
    {1, "100000 1 20 4000 10 5 0 0 0 0 0 0 0 0 0 0 0 99 0", "X 1 100 4.89: 55710.51 4000.00 0"}, // can't pay year 2
    {3, "1000000 1 3 5000 6 1.05 0 0 0 0 0 9.57", "L 3 98.45 9.57: 1059355.37 5618.00 6"}, // keeps the rate before
    {2, "1000000 1 3 5000 6 10 0 0 0 0 0 0 0 0 0 0 0 5 10",
     "L 3 100 9.57: 1084989.63 4333.49 -13.33"},                                                   // the maximum holds
    {2, "1000000 1 3 1000 0 10", "L 3 98.45 9.57: 1127110.26 2211.43 121.14"},                     // a minimum raises
    {5, "1000000 1 2 5000 6 10 3 5 0 5 10 0 0 0 0 0 0 17.5 0", "L 5 100 9.57: 1422264.40 0.00 0"}, // 0 can't change
    {3, "1000000 1 0 5000 6 10 1 3 6000 4 8", "L 3 98.45 7.72: 1032281.90 6000.00 13.21"}, // years of the second alone
    {50, "10000000 1 60 50000 0 12", "M 50 98.495 11.39: 510964538.56 985922.53 8.79"},    // 600 months
    {1, "1000000 1 0 5000 6 10", "L 0 98.45 9.57: 0.00 0.00 0"},                           // no years
    {1, "0 1 20 5000 6 10 0 0 0 0 0 3", "N 0 0 3: 0.00 0.00 0"},                           // no amount
    {1, "1000000 1 20 0 6 10 0 0 0 0 0 3", "N 0 0 3: 0.00 0.00 0"},                        // no income
    {1, "1000000 1 20 5000 6 0 0 0 0 0 0 3", "N 0 0 3: 0.00 0.00 0"},                      // no growth
};

TEST(DrawDown, RunsMonthByMonthThroughBothPhases) {
    double NomRate = 0;
    for (const auto& [year, inputs, expected] : runs) {
        const DrawDownResult r = run(inputs, NomRate);
        char told[128];
        std::snprintf(told, sizeof told, "%c %d %g %g: %.2f %.2f %g", "NLXM"[static_cast<int>(r.end)], r.DrawYears,
                      r.NetPercent, NomRate, r.YearPortfolio[year], r.YearIncome[year], r.YearChange[year]);
        EXPECT_STREQ(told, expected) << inputs;
    }
    const auto months = run("1000000 1 1 5000 6 10 2 5 9000 3 8", NomRate).MonthIncome;
    EXPECT_EQ((std::vector{months[13], months[14], months[25]}), (std::vector{9000.0, 5300.0, 5300.0}));
    EXPECT_TRUE(run("1000000 1 50 5000 6 99", NomRate).isFinite());
    EXPECT_FALSE(run("1e308 1 50 5000 6 99", NomRate).isFinite());
}

TEST(DrawDown, FirstIncomeHasItsRangeAndCostsAreNeverMadeUp) {
    const shelltest::ProgramFolder folder;
    const auto file = folder / "Default.Mdb";
    const auto costs = readDrawDownCosts(file);
    for (const double income : {250.0, 1750.0, 0.0})
        EXPECT_EQ(checkFirstIncome(120000, income, costs), FirstIncome::allowed) << income;
    EXPECT_EQ(checkFirstIncome(120000, 1750.01, costs), FirstIncome::aboveMaximum);
    EXPECT_EQ(checkFirstIncome(120000, 249.99, costs), FirstIncome::belowMinimum);
    EXPECT_EQ(checkFirstIncome(0, 5000, costs), FirstIncome::allowed);
    for (const char* fault : {"BrokerCom = 100.5", "SetupCosts = -1", "AnnPortFee = NULL", "AnnualDiv = -1",
                              "TrailComm = 'much'", "MaxIncAllowed = 101", "MinIncAllowed = -0.5"}) {
        writeDrawDownCosts(file, costs);
        shelltest::rowsOf(file, std::string("UPDATE livann SET ") + fault);
        EXPECT_THROW(readDrawDownCosts(file), store::Error) << fault;
    }
}

} // namespace
