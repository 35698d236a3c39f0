#include <gtest/gtest.h>

#include "calculators/nominaleffective.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

TEST(NominalEffective, CompoundsOverAPeriodThatSuitsTheCompounding) {
    const struct {
        assessment::NominalEffective inputs; // amount, months, nominal rate, times a year
        double months, effective, interest, simple;
    } cases[] = {
        {{100000, 12, 12, 12}, 12, 12.682503, 12682.503013, 12.682503},
        {{50000, 6, 10.5, 365}, 6, 11.069384, 2694.730261, 10.778921},
        {{250000.5, 18, 9.25, 24}, 18, 9.671813, 37132.700144, 9.902034},
        {{1000, 7, 12, 2}, 12, 12.36, 123.6, 12.36}, // no whole half-years
        {{1000, 18, 12, 2}, 18, 12.36, 191.016, 12.7344},
        {{1000, 7, 8, 4}, 12, 8.243216, 82.43216, 8.243216},
        {{1000, 9, 8, 4}, 9, 8.243216, 61.208, 8.161067},
        {{1000, 12, 12, 0}, 12, 12.682503, 126.825030, 12.682503}, // an old file: monthly
        {{-2000, 24, -6, 12}, 24, -5.837719, 226.692979, -5.667324},
        {{1000, 0, 12, 2}, 12, 0, 0, 0},
        {{1000, 7, 0, 2}, 7, 0, 0, 0}, // nothing to work out: the period stays
        {{0, 7, 12, 2}, 7, 0, 0, 0},
    };
    for (auto c : cases) {
        const auto result = calculators::NomEffCalc(c.inputs);
        EXPECT_EQ(c.inputs.PeriodNomEff, c.months) << c.effective;
        EXPECT_NEAR(result.EffRate, c.effective, 1e-6);
        EXPECT_NEAR(result.ActualInt, c.interest, 1e-6);
        EXPECT_NEAR(result.SimpleRate, c.simple, 1e-6);
        EXPECT_NEAR(result.IntEarned, c.interest, 1e-6);
        EXPECT_EQ(result.isComplete, c.effective != 0);
    }
}

class NominalEffectiveScreen : public testing::Test {
protected:
    void open() { run.menu("mnuNomEffec"); }
    RunningProgram run;
    assessment::NominalEffective& inputs = run.record().nominalEffective;
    std::int16_t& changed = run.record().changed.NomEffecChanged;
};

TEST_F(NominalEffectiveScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    open();
    run.typeAll("numAmount 50000.25, numPeriod 6, numNomRate 10.125");
    EXPECT_EQ(inputs, (assessment::NominalEffective{50000.25, 6, 10.125, 12}));
    EXPECT_EQ(changed, 1);
    const struct {
        const char *option, *text;
        double times;
    } options[] = {{"Option1(1)", "daily.", 365},
                   {"Option1(2)", "bi-monthly.", 24},
                   {"Option1(3)", "3-monthly.", 4},
                   {"Option1(4)", "Semi-Annually.", 2},
                   {"Option1(0)", "monthly.", 12}};
    for (const auto& option : options) {
        run.click(option.option);
        EXPECT_EQ(inputs.IntComp, option.times);
        run.click("cmdPrint");
        EXPECT_EQ(run.inPrint("SELECT ActualIntText3 FROM NomEffect"), option.text);
        run.click("cmdVR");
        EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Nominal/Effective");
        run.program.reports().previews().back()->close();
    }
    run.expectShown("numAns1 10.608, numAns2 10.341, numAns3 2 585.26, numPeriod 6");
    EXPECT_EQ(run.inPrint("SELECT Amount, Period, NomRate, printf('%.6f|%.6f', EffRate, IntEarned) FROM NomEffect"),
              "50000.25|6|10.125|10.608332|2585.260972");
}

TEST_F(NominalEffectiveScreen, ThePeriodSnapsWhenPickedAndWhenCalculatedButNotWhenOpened) {
    inputs = {1000, 7, 12, 2};
    open();
    run.expectShown("numPeriod 12, numAns3 123.60");
    EXPECT_EQ(inputs.PeriodNomEff, 7);
    EXPECT_EQ(changed, 0);
    run.click("cmdCalculate");
    EXPECT_EQ(inputs.PeriodNomEff, 12);
    EXPECT_EQ(changed, 1);
    const struct {
        const char *months, *option, *shown;
    } picks[] = {{"7", "Option1(3)", "12"},
                 {"9", "Option1(4)", "12"},
                 {"9", "Option1(3)", "9"},
                 {"18", "Option1(4)", "18"},
                 {"7", "Option1(1)", "7"}};
    for (const auto& pick : picks) {
        run.click("Option1(0)");
        run.type("numPeriod", pick.months);
        run.click(pick.option);
        EXPECT_EQ(run.shown("numPeriod"), pick.shown) << pick.months << pick.option;
    }
    run.click("cmdOK");
    inputs.PeriodNomEff = changed = 0;
    open();
    run.expectShown("numPeriod 0, numAns3 0.00");
    run.click("cmdCalculate"); // answers 0 and shows the year that it takes instead
    run.expectShown("numPeriod 12, numAns3 0.00");
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.click("cmdPrint"); // and now there is something to print
    run.expectShown("numAns3 127.47");
    run.click("cmdPrintCancel");
    run.type("numNomRate", "-1");
    run.click("cmdPrint"); // no interest is earned
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    EXPECT_EQ(run.inPrint("SELECT NomRate FROM NomEffect"), "12");
}

TEST_F(NominalEffectiveScreen, LimitsAndSpinButtonsOfTheRate) {
    run.record().GRINC = 0.5;
    inputs = {1000, 12, 12, 12};
    open();
    run.expectRefused("numNomRate", "50.001", "The maximum Nominal Rate allowed is 50%", "Incorrect Nominal Rate!");
    run.type("numNomRate", "50");
    run.expectRefused("numPeriod", "601", "The Maximum Period is 50 years (600 months)", "Incorrect Period!");
    run.type("numPeriod", "12");
    const struct {
        const char *typed, *button, *shown, *effective;
        int bells;
    } cases[] = {{"12", "spRateUp", "12.500", "13.242", 0},
                 {"0.5", "spRateDown", "50.000", "63.209", 1},
                 {"50", "spRateUp", "0.500", "0.501", 0},
                 {"0", "spRateUp", "0.000", "0.501", 0}};
    for (const auto& c : cases) {
        run.type("numNomRate", c.typed);
        run.desk.bells = 0;
        run.click(c.button);
        run.expectShown(QString("numNomRate %1, numAns1 %2").arg(c.shown, c.effective));
        EXPECT_EQ(run.desk.bells, c.bells);
        EXPECT_TRUE(c.typed == QString("0") || RunningProgram::focused() == "cmdOK");
    }
}

} // namespace
