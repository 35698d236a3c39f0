#include <gtest/gtest.h>

#include <QLabel>
#include <cmath>

#include "calculators/inflation.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

class InflationScreen : public testing::Test {
protected:
    InflationScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.menu("mnuInflation");
    }
    assessment::Inflation& inputs() { return run.record().inflation; }
    RunningProgram run;
};

TEST_F(InflationScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().changed.InflationChanged, 0);
    run.type("numPresCost", "10000.5");
    run.type("numPeriod", "3.5"); // whole years, ties to even
    run.enter("numInflaRate", "6.125");
    EXPECT_EQ(inputs().PresCostInflation, 10000.5);
    EXPECT_EQ(inputs().PeriodInflation, 4);
    EXPECT_EQ(inputs().IntRateInflation, 6.125);
    EXPECT_EQ(run.record().changed.InflationChanged, 1);
    for (const bool isOld : {true, false}) { // Enter in the last field calculates
        for (const char* result : {"numAns1", "numAns2"})
            EXPECT_EQ(run.control(result)->font().italic(), isOld) << result;
        RunningProgram::key(Qt::Key_Return);
    }
    EXPECT_EQ(run.shown("numAns1"), "12 685.06");
    EXPECT_EQ(run.shown("numAns2"), "7 884.08");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT PresCost, Period, InflaRate, printf('%.6f|%.6f', Ans1, ANS2) FROM Inflation"),
              "10000.5|4|6.125|12685.060042|7884.077799");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(),
              "Inflation - To export printout click on the suitcase button or goto Dunmarrow Help");
}

TEST_F(InflationScreen, SpinnersStepWrapAndWorkOutTheAnswerAgain) {
    struct Case {
        const char *field, *button, *typed, *shown;
        int bells;
    };
    const Case cases[] = {
        {"numInflaRate", "spInflationUp", "5", "5.250", 0},
        {"numInflaRate", "spInflationUp", "0", "0.250", 0}, // works at 0 too
        {"numInflaRate", "spInflationDown", "0.25", "0.000", 0},
        {"numInflaRate", "spInflationDown", "-4.75", "-5.000", 0},
        {"numInflaRate", "spInflationDown", "-5", "30.000", 0}, // not to 40, which the field takes
        {"numInflaRate", "spInflationDown", "-4.9", "30.000", 0},
        {"numInflaRate", "spInflationUp", "39.75", "40.000", 0},
        {"numInflaRate", "spInflationUp", "40", "0.250", 0},
        {"numPeriod", "spPeriodUp", "0", "0", 0}, // an empty period is not stepped
        {"numPeriod", "spPeriodDown", "2", "1", 0},
        {"numPeriod", "spPeriodDown", "1", "40", 1},
        {"numPeriod", "spPeriodUp", "40", "1", 0},
    };
    run.type("numPresCost", "100");
    for (const Case& c : cases) {
        run.type("numPeriod", "1");
        run.type("numInflaRate", "10");
        run.type(c.field, c.typed);
        run.desk.bells = 0;
        run.click(c.button);
        EXPECT_EQ(run.shown(c.field), c.shown) << c.typed;
        EXPECT_EQ(run.desk.bells, c.bells) << c.typed;
        if (c.typed != QString(c.shown)) {
            EXPECT_EQ(RunningProgram::focused(), "cmdOK") << c.typed;
            EXPECT_EQ(run.shown("numAns1").remove(' ').toDouble(),
                      std::round(calculators::LTLINFL(inputs()).futureValue * 100) / 100)
                << c.typed;
        }
    }
    run.type("numInflaRate", "7");
    run.control("numInflaRate")->setFocus(Qt::TabFocusReason);
    RunningProgram::key(Qt::Key_Down);
    EXPECT_EQ(run.shown("numInflaRate"), "6.750");
    EXPECT_EQ(RunningProgram::focused(), "numInflaRate") << "a step by key stays in the field";
    EXPECT_EQ(run.shown("numAns1"), "106.75");
}

TEST_F(InflationScreen, LimitsAreToldAndHeldInTheField) {
    const struct {
        const char *field, *refused, *taken, *told, *title;
    } cases[] = {
        {"numInflaRate", "40.001", "40", "The range of the Inflation Rate is between -5% and 40%",
         "Incorrect Inflation Rate!"},
        {"numInflaRate", "-5.001", "-5", "The range of the Inflation Rate is between -5% and 40%",
         "Incorrect Inflation Rate!"},
        {"numPeriod", "41", "40", "The maximum period allowed 40 years", "Incorrect Period!"},
        {"numPeriod", "-1", "0", "The minimum period allowed 0 years", "Incorrect Period!"},
    };
    for (const auto& c : cases) {
        run.expectRefused(c.field, c.refused, c.told, c.title);
        run.type(c.field, c.taken);
    }
}

TEST_F(InflationScreen, AnAmountTooLargeForItsFieldIsSaidInWords) {
    auto* tooLarge = run.control<QLabel>("Label12");
    for (const auto& [cost, isTooLarge] :
         {std::pair{"9999999999999.99", false}, {"10000000000000", true}, {"5", false}}) {
        run.type("numPresCost", cost);
        run.click("cmdCalculate");
        EXPECT_EQ(tooLarge->isVisible(), isTooLarge) << cost;
    }
    EXPECT_EQ(tooLarge->text(), "Amount too large to display");
    inputs() = {1e308, 40, 40}; // beyond all figures: nothing to print
    run.click("cmdPrint");
    EXPECT_TRUE(tooLarge->isVisible());
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    EXPECT_EQ(run.inPrint("SELECT count(*) FROM Inflation WHERE PresCost > 0"), "0");
}

} // namespace
