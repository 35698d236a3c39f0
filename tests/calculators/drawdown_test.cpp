#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "calculators/drawdown.h"
#include "calculators/drawdowncosts.h"
#include "shell/running_program.h"

namespace {

using assessment::DrawDownCosts, assessment::DrawDownPhase, assessment::DrawDownPhases;
using calculators::DrawDownCalc, calculators::DrawDownResult;

constexpr const char* shipped = "1.5 500 0.5 1 1 17.5 2.5";

DrawDownCosts costsOf(const char* text) {
    DrawDownCosts c;
    std::istringstream(text) >> c.BrokerCom >> c.SetupCosts >> c.AnnPortFee >> c.AnnualDiv >> c.TrailComm >>
        c.MaxIncAllowed >> c.MinIncAllowed;
    return c;
}

std::istream& operator>>(std::istream& in, DrawDownPhase& p) {
    return in >> p.FromYear >> p.ToYear >> p.LAInitDraw >> p.Esc >> p.GRLA;
}

template <class... Figures>
std::string told(const char* format, Figures... figures) {
    char text[128];
    std::snprintf(text, sizeof text, format, figures...);
    return text;
}

// Worked out by an independent program. inputs: LSAmt, both phases (from, to, income, escalation, growth), NomRate
// before the run. expected: how it ended, years, NetPercent, NomRate; then portfolio, income and change of some years.
const struct {
    const char *what, *costs, *inputs, *expected;
} runs[] = {
    {"a maximum cuts the income of the last two years", shipped, "1000000  1 20 5000 6 10  0 0 0 0 0  0",
     "L 20 98.450 9.57, 1: 1003783.40 5000.00 0.00, 2: 1032217.05 5300.00 6.00, 6: 1129140.36 6691.13 6.00, 20: "
     "754616.48 11983.90 -8.91"},
    {"the second phase begins with its own income, escalated a year later", shipped,
     "1000000  1 5 5000 6 10  6 20 9000 3 8  0",
     "L 20 98.450 7.72, 5: 1106558.37 6312.38 6.00, 6: 1079816.50 9000.00 42.58, 7: 1045123.60 9270.00 3.00, 20: "
     "311760.21 5042.02 -10.72"},
    {"a gap between the phases draws the second income and grows by the first rate", shipped,
     "1000000  1 3 5000 6 10  8 12 9000 3 8  0",
     "L 12 98.450 7.72, 4: 1029843.76 9000.00 60.20, 6: 946698.73 9548.10 3.00, 12: 552362.28 8933.22 -10.72"},
    {"the second year is still the first phase's, but its first month draws the second income", shipped,
     "1000000  1 1 5000 6 10  2 5 9000 3 8  0",
     "L 5 98.450 7.72, 2: 1026267.40 5300.00 6.00, 5: 906047.32 9548.10 3.00"},
    {"years before a late first phase are the second's", shipped, "1000000  5 20 5000 6 10  3 0 7000 2 12  0",
     "L 20 98.450 11.39, 2: 1033770.20 5300.00 6.00, 5: 1127437.26 7282.80 2.00, 6: 1137262.59 7719.77 6.00, 20: "
     "557488.25 8840.05 -8.91"},
    {"a year that can't be paid ends the run", "0 0 0 0 0 99 0", "100000  1 20 4000 10 5  0 0 0 0 0  0",
     "X 1 100.000 4.89, 1: 55710.51 4000.00 0.00, 2: 0.00 0.00 0.00"},
    {"growth of 1.05 keeps the rate of the run before", shipped, "1000000  1 3 5000 6 1.05  0 0 0 0 0  9.57",
     "L 3 98.450 9.57, 3: 1059355.37 5618.00 6.00"},
    {"growth of 1.05 is none in a first run", shipped, "1000000  1 3 5000 6 1.05  4 6 5000 0 10  0",
     "L 6 98.450 9.57, 1: 909990.72 5000.00 0.00, 2: 842373.02 5300.00 6.00, 6: 811276.23 5000.00 0.00"},
    {"a minimum above the maximum: the maximum holds", "0 0 0 0 0 5 10", "1000000  1 3 5000 6 10  0 0 0 0 0  0",
     "L 3 100.000 9.57, 2: 1084989.63 4333.49 -13.33, 3: 1136355.27 4538.64 4.73"},
    {"a minimum raises the income", shipped, "1000000  1 3 1000 0 10  0 0 0 0 0  0",
     "L 3 98.450 9.57, 2: 1127110.26 2211.43 121.14, 3: 1203968.74 2362.23 6.82"},
    {"an income of 0 can't change", "0 0 0 0 0 17.5 0", "1000000  1 2 5000 6 10  3 5 0 5 10  0",
     "L 5 100.000 9.57, 2: 1073835.49 5300.00 6.00, 3: 1175401.07 0.00 -100.00, 5: 1422264.40 0.00 0.00"},
    {"the second phase alone has years", shipped, "1000000  1 0 5000 6 10  1 3 6000 4 8  0",
     "L 3 98.450 7.72, 2: 1029545.58 5300.00 6.00, 3: 1032281.90 6000.00 13.21"},
    {"600 months are the most", shipped, "10000000  1 60 50000 0 12  0 0 0 0 0  0",
     "M 50 98.495 11.39, 5: 12764407.16 50000.00 0.00, 50: 510964538.56 985922.53 8.79"},
    {"without a last year there are no years", shipped, "1000000  1 0 5000 6 10  0 0 0 0 0  0",
     "L 0 98.450 9.57, 1: 0.00 0.00 0.00"},
    {"no amount", shipped, "0  1 20 5000 6 10  0 0 0 0 0  3", "N 0 0.000 3.00, 1: 0.00 0.00 0.00"},
    {"no first income", shipped, "1000000  1 20 0 6 10  0 0 0 0 0  3", "N 0 0.000 3.00, 1: 0.00 0.00 0.00"},
    {"no growth", shipped, "1000000  1 20 5000 6 0  0 0 0 0 0  3", "N 0 0.000 3.00, 1: 0.00 0.00 0.00"},
};

TEST(DrawDown, RunsMonthByMonthThroughBothPhases) {
    for (const auto& c : runs) {
        DrawDownPhases phases;
        double LSAmt = 0, NomRate = 0;
        std::istringstream inputs(c.inputs);
        inputs >> LSAmt >> phases.phase0 >> phases.phase1 >> NomRate;
        const DrawDownResult result = DrawDownCalc({LSAmt}, phases, costsOf(c.costs), NomRate);
        std::string found =
            told("%c %d %.3f %.2f", "NLXM"[static_cast<int>(result.end)], result.DrawYears, result.NetPercent, NomRate);
        for (const QString& year : QString(c.expected).split(", ").mid(1)) {
            const auto at = year.section(':', 0, 0).toUInt();
            found += told(", %u: %.2f %.2f %.2f", at, result.YearPortfolio[at], result.YearIncome[at],
                          result.YearChange[at]);
        }
        EXPECT_EQ(found, c.expected) << c.what;
        EXPECT_TRUE(result.isFinite());
    }
}

TEST(DrawDown, ANewIncomeIsDrawnAMonthLaterAndFiguresBeyondAllBoundsAreTold) {
    double NomRate = 0;
    const auto months = DrawDownCalc({1e6}, {{1, 20, 5000, 6, 10}, {}, {}}, costsOf(shipped), NomRate).MonthIncome;
    EXPECT_EQ(months[13], 5000);
    EXPECT_EQ(months[14], 5300);
    EXPECT_EQ(months[25], 5300);
    const auto turned = DrawDownCalc({1e6}, {{1, 1, 5000, 6, 10}, {2, 5, 9000, 3, 8}, {}}, costsOf(shipped), NomRate);
    EXPECT_EQ(turned.MonthIncome[13], 9000);
    EXPECT_EQ(turned.MonthIncome[14], 5300);
    EXPECT_FALSE(DrawDownCalc({1e308}, {{1, 50, 5000, 6, 99}, {}, {}}, costsOf(shipped), NomRate).isFinite());
}

TEST(DrawDown, FirstIncomeHasItsRange) {
    using calculators::FirstIncome;
    const struct {
        double LSAmt, income;
        FirstIncome found;
    } cases[] = {
        {120000, 1750, FirstIncome::allowed}, {120000, 1750.01, FirstIncome::aboveMaximum},
        {120000, 250, FirstIncome::allowed},  {120000, 249.99, FirstIncome::belowMinimum},
        {0, 5000, FirstIncome::allowed},      {120000, 0, FirstIncome::allowed},
        {-1, 1, FirstIncome::allowed},
    };
    for (const auto& c : cases)
        EXPECT_EQ(calculators::checkFirstIncome(c.LSAmt, c.income, costsOf(shipped)), c.found) << c.income;
}

TEST(DrawDown, CostsAreThePracticesAndNeverMadeUp) {
    const shelltest::ProgramFolder folder;
    const auto file = folder / "Default.Mdb";
    EXPECT_EQ(calculators::readDrawDownCosts(file), costsOf(shipped));
    const DrawDownCosts other{2, 750.5, 0.75, 1.25, 0.625, 16, 3};
    calculators::writeDrawDownCosts(file, other);
    EXPECT_EQ(calculators::readDrawDownCosts(file), other);
    for (const char* fault : {"BrokerCom = 100.5", "SetupCosts = -1", "AnnPortFee = NULL", "AnnualDiv = -1",
                              "TrailComm = 'much'", "MaxIncAllowed = 101", "MinIncAllowed = -0.5"}) {
        calculators::writeDrawDownCosts(file, other);
        shelltest::rowsOf(file, std::string("UPDATE livann SET ") + fault);
        EXPECT_THROW(calculators::readDrawDownCosts(file), store::Error) << fault;
    }
}

} // namespace
