// Nominal and effective interest, and the daily balance.
#include "calculators/dailybalance.h"
#include "calculators/nominaleffective.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

TEST(NominalEffective, CompoundsOverAPeriodThatSuitsTheCompounding) {
    const struct {
        assessment::NominalEffective inputs; // amount, months, nominal rate, times a year
        double months, effective, interest, simple;
    } cases[] = {
        {{50000, 6, 10.5, 365}, 6, 11.069384, 2694.730261, 10.778921},
        {{250000.5, 18, 9.25, 24}, 18, 9.671813, 37132.700144, 9.902034},
        {{1000, 7, 12, 2}, 12, 12.36, 123.6, 12.36}, // no whole half-years
        {{1000, 7, 8, 4}, 12, 8.243216, 82.43216, 8.243216},
        {{1000, 9, 8, 4}, 9, 8.243216, 61.208, 8.161067},
        {{-2000, 24, -6, 0}, 24, -5.837719, 226.692979, -5.667324}, // 0 times a year, in an old file: monthly
        {{1000, 0, 12, 2}, 12, 0, 0, 0},
        {{0, 7, 12, 2}, 7, 0, 0, 0}, // nothing to work out: the period stays
    };
    for (auto c : cases) {
        const auto result = calculators::NomEffCalc(c.inputs);
        EXPECT_EQ(c.inputs.PeriodNomEff, c.months) << c.effective;
        EXPECT_NEAR(result.EffRate, c.effective, 1e-6);
        EXPECT_NEAR(result.SimpleRate, c.simple, 1e-6);
        EXPECT_NEAR(result.ActualInt + result.IntEarned, 2 * c.interest, 1e-6);
    }
}

TEST(NominalEffectiveScreen, HoldsItsFieldsAndSnapsThePeriodUnlessItIsOnlyOpened) {
    RunningProgram run;
    auto& inputs = run.record().nominalEffective = {1000, 7, 12, 2};
    run.menu("mnuNomEffec");
    for (const double months : {7, 12}) { // saved; then after Calculate
        run.expectShown("numPeriod 12, numAns3 123.60");
        EXPECT_EQ(inputs.PeriodNomEff, months);
        EXPECT_EQ(run.record().changed.NomEffecChanged, months == 12);
        run.click("cmdCalculate");
    }
    for (const QString pick : {"7 3 12", "9 4 12", "9 3 9", "18 4 18", "7 1 7"}) { // months, option, shown
        run.click("Option1(0)");
        run.type("numPeriod", pick.section(' ', 0, 0));
        run.click("Option1(" + pick.section(' ', 1, 1) + ")");
        EXPECT_EQ(run.shown("numPeriod"), pick.section(' ', 2)) << pick.toStdString();
    }
    run.typeAll("numAmount 50000.25, numPeriod 6, numNomRate 10.125");
    for (const QString pick :
         {"1 365 daily.", "2 24 bi-monthly.", "3 4 3-monthly.", "4 2 Semi-Annually.", "0 12 monthly."}) {
        run.click("Option1(" + pick.section(' ', 0, 0) + ")");
        run.click("cmdPrint");
        EXPECT_EQ(inputs, (assessment::NominalEffective{50000.25, 6, 10.125, pick.section(' ', 1, 1).toDouble()}));
        EXPECT_EQ(run.inPrint("SELECT ActualIntText3 FROM NomEffect"), pick.section(' ', 2).toStdString());
        run.click("cmdPrintCancel");
    }
    run.expectShown("numAns1 10.608, numAns2 10.341, numAns3 2 585.26, numPeriod 6");
    EXPECT_EQ(run.inPrint("SELECT Amount, Period, NomRate, printf('%.6f|%.6f', EffRate, IntEarned) FROM NomEffect"),
              "50000.25|6|10.125|10.608332|2585.260972");
}

TEST(NominalEffectiveScreen, TakesAYearForNoPeriodRefusesLargeFiguresAndStepsTheRate) {
    RunningProgram run;
    run.record().nominalEffective = {1000, 0, 12, 12};
    run.menu("mnuNomEffec");
    run.expectShown("numPeriod 0, numAns3 0.00");
    run.click("cmdCalculate"); // answers 0 and shows the year that it takes instead
    run.expectShown("numPeriod 12, numAns3 0.00");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.record().GRINC = 0.5;
    for (const QString step :
         {"1 Down 0.500 0.501", "0.5 Down 50.000 63.209", "50 Up 0.500 0.501", "0 Up 0.000 0.501"}) {
        run.type("numNomRate", step.section(' ', 0, 0));
        run.click("spRate" + step.section(' ', 1, 1));
        EXPECT_EQ(run.shown("numNomRate") + ' ' + run.shown("numAns1"), step.section(' ', 2));
    }
    EXPECT_EQ(run.desk.bells, 1);
    run.type("numNomRate", "-1");
    run.click("cmdPrint"); // no interest is earned
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.expectRefused("numNomRate", "50.001", "The maximum Nominal Rate allowed is 50%", "Incorrect Nominal Rate!");
    run.type("numNomRate", "50");
    run.expectRefused("numPeriod", "601", "The Maximum Period is 50 years (600 months)", "Incorrect Period!");
    run.type("numPeriod", "600");
}

std::int32_t day(std::string_view typed) { return static_cast<std::int32_t>(*base::parseDate(typed)); }

TEST(DailyBalance, AYearHas365DaysAndTheEndIsWithin360Months) {
    const struct {
        assessment::DailyBalance inputs;
        double days, interest;
    } cases[] = {
        {{100000, day("01/01/2024"), day("01/01/2025"), 10}, 366, 10027.397260},
        {{1000, day("14/04/2026"), day("15/03/2026"), 36.5F}, -30, -30},
        {{100000, static_cast<std::int32_t>(base::NoDate), day("01/01/2025"), 10}, 0, 0},
        // The record's single precision: 11.35 is 11.3500003815, and the arithmetic is in double from there.
        {{16777216, day("01/01/2025"), day("01/01/2026"), 11.35F}, 365, 1904214.08},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(calculators::dailyBalance(c.inputs).days, c.days);
        EXPECT_NEAR(calculators::dailyBalance(c.inputs).interest, c.interest, 1e-6);
    }
    using calculators::isWithin360Months;
    for (const auto& [start, last] : {std::pair{"14/04/2026", "14/04/2056"}, {"29/02/2024", "28/02/2054"}})
        EXPECT_TRUE(isWithin360Months(day(start), day(last)) && !isWithin360Months(day(start), day(last) + 1)) << start;
    EXPECT_TRUE(isWithin360Months(base::blankDate, day("14/04/2056"))) << "no date";
    EXPECT_TRUE(isWithin360Months(day("01/01/9980"), day("31/12/9999"))) << "the end of the calendar";
}

TEST(DailyBalanceScreen, HoldsItsFieldsPrintsThemAndRefusesWhatIsOutOfRange) {
    RunningProgram run;
    run.menu("mnuDayBal");
    run.typeAll("numCapAmount 2500.5, dtStartDate 15/3/2026, dtEndDate 14/4/2026, numIntRate 11.35");
    const assessment::DailyBalance typed{2500.5F, day("15/03/2026"), day("14/04/2026"), 11.35F};
    EXPECT_EQ(run.record().dailyBalance, typed);
    run.click("cmdPrint");
    run.expectShown("numAnsDB1 23.33, numAnsDB2 30");
    EXPECT_EQ(run.inPrint("SELECT CapAmount, StartDate, EndDate, IntRate, printf('%.6f', ANS1), ANS2 FROM DailyBal"),
              "2500.5|15/03/2026|14/04/2026|11.35|23.326583|30");
    run.click("cmdPrintCancel");
    run.expectRefused("numIntRate", "41", "The maximum Interest Rate allowed is 40%", "Incorrect Interest Rate!");
    run.typeAll("numIntRate 40, dtStartDate 14/4/2026");
    run.expectRefused("dtEndDate", "31/2/2026", "The date entered is invalid please enter a valid date.",
                      "INVALID DATE");
    const QString tooFar = "The date entered is more than 30 years(360 months) ";
    run.expectRefused("dtEndDate", "15/4/2056", tooFar + "after 14/04/2026.", "DATE OUT OF RANGE");
    run.type("dtEndDate", "14/4/2056");
    run.expectRefused("dtStartDate", "13/4/2026", tooFar + "before 14/04/2056.", "DATE OUT OF RANGE");
    run.type("dtStartDate", "14/4/2026");
}

} // namespace
