#include <gtest/gtest.h>

#include "calculators/drawdown.h"
#include "calculators/drawdowncosts.h"
#include "shell/running_program.h"

namespace {

using namespace calculators;

/// inputs: LSAmt; both phases (from, to, income, escalation, growth); NomRate before; costs, if not those shipped.
DrawDownResult run(const QString& inputs, double& NomRate) {
    std::vector<double> f;
    for (const QString& word : inputs.simplified().split(' '))
        f.push_back(word.toDouble());
    const bool hasCosts = f.size() > 12;
    f.resize(19);
    NomRate = f[11];
    return DrawDownCalc({f[0]}, {{f[1], f[2], f[3], f[4], f[5]}, {f[6], f[7], f[8], f[9], f[10]}, {}},
                        hasCosts ? assessment::DrawDownCosts{f[12], f[13], f[14], f[15], f[16], f[17], f[18]}
                                 : assessment::DrawDownCosts{1.5, 500, 0.5, 1, 1, 17.5, 2.5},
                        NomRate);
}

// Worked out by a program of its own. expected: how it ended, years, NetPercent, NomRate; then portfolio, income and
// change of some years.
constexpr const char* runs[][3] = {
    {"a maximum cuts the last two incomes", "1000000  1 20 5000 6 10",
     "L 20 98.45 9.57, 1: 1003783.40 5000.00 0, 2: 1032217.05 5300.00 6, 6: 1129140.36 6691.13 6, 20: 754616.48 "
     "11983.90 -8.91"},
    {"the second phase has its own income, escalated a year later", "1000000  1 5 5000 6 10  6 20 9000 3 8",
     "L 20 98.45 7.72, 5: 1106558.37 6312.38 6, 6: 1079816.50 9000.00 42.58, 7: 1045123.60 9270.00 3, 20: 311760.21 "
     "5042.02 -10.72"},
    {"a gap draws the second income", "1000000  1 3 5000 6 10  8 12 9000 3 8",
     "L 12 98.45 7.72, 4: 1029843.76 9000.00 60.2, 6: 946698.73 9548.10 3, 12: 552362.28 8933.22 -10.72"},
    {"the second year is the first phase's", "1000000  1 1 5000 6 10  2 5 9000 3 8",
     "L 5 98.45 7.72, 2: 1026267.40 5300.00 6, 5: 906047.32 9548.10 3"},
    {"years before a late first phase", "1000000  5 20 5000 6 10  3 0 7000 2 12",
     "L 20 98.45 11.39, 5: 1127437.26 7282.80 2, 6: 1137262.59 7719.77 6, 20: 557488.25 8840.05 -8.91"},
    {"the last year paid", "100000  1 20 4000 10 5  0 0 0 0 0  0  0 0 0 0 0 99 0",
     "X 1 100 4.89, 1: 55710.51 4000.00 0, 2: 0.00 0.00 0"},
    {"1.05 keeps the rate before", "1000000  1 3 5000 6 1.05  0 0 0 0 0  9.57",
     "L 3 98.45 9.57, 3: 1059355.37 5618.00 6"},
    {"the maximum holds", "1000000  1 3 5000 6 10  0 0 0 0 0  0  0 0 0 0 0 5 10",
     "L 3 100 9.57, 2: 1084989.63 4333.49 -13.33, 3: 1136355.27 4538.64 4.73"},
    {"a minimum raises", "1000000  1 3 1000 0 10",
     "L 3 98.45 9.57, 2: 1127110.26 2211.43 121.14, 3: 1203968.74 2362.23 6.82"},
    {"0 can't change", "1000000  1 2 5000 6 10  3 5 0 5 10  0  0 0 0 0 0 17.5 0",
     "L 5 100 9.57, 2: 1073835.49 5300.00 6, 3: 1175401.07 0.00 -100, 5: 1422264.40 0.00 0"},
    {"the second phase alone has years", "1000000  1 0 5000 6 10  1 3 6000 4 8",
     "L 3 98.45 7.72, 2: 1029545.58 5300.00 6, 3: 1032281.90 6000.00 13.21"},
    {"600 months", "10000000  1 60 50000 0 12", "M 50 98.495 11.39, 50: 510964538.56 985922.53 8.79"},
    {"no years", "1000000  1 0 5000 6 10", "L 0 98.45 9.57, 1: 0.00 0.00 0"},
    {"no amount", "0  1 20 5000 6 10  0 0 0 0 0  3", "N 0 0 3, 1: 0.00 0.00 0"},
    {"no income", "1000000  1 20 0 6 10  0 0 0 0 0  3", "N 0 0 3"},
    {"no growth", "1000000  1 20 5000 6 0  0 0 0 0 0  3", "N 0 0 3"},
};

TEST(DrawDown, RunsMonthByMonthThroughBothPhases) {
    double NomRate = 0;
    for (const auto& [what, inputs, expected] : runs) {
        const DrawDownResult result = run(inputs, NomRate);
        QString told = QString("%1 %2 %3 %4").arg("NLXM"[static_cast<int>(result.end)]).arg(result.DrawYears);
        told = told.arg(result.NetPercent).arg(NomRate);
        for (const QString& part : QString(expected).split(", ").mid(1)) {
            const auto year = part.section(':', 0, 0).toUInt();
            told += QString(", %1: %2").arg(year).arg(result.YearPortfolio[year], 0, 'f', 2);
            told += QString(" %1 %2").arg(result.YearIncome[year], 0, 'f', 2).arg(result.YearChange[year]);
        }
        EXPECT_EQ(told, expected) << what;
    }
    const auto months = run("1000000  1 1 5000 6 10  2 5 9000 3 8", NomRate).MonthIncome;
    EXPECT_EQ((std::vector{months[13], months[14], months[25]}), (std::vector{9000.0, 5300.0, 5300.0}));
    EXPECT_TRUE(run("1000000  1 50 5000 6 99", NomRate).isFinite());
    EXPECT_FALSE(run("1e308  1 50 5000 6 99", NomRate).isFinite());
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
