#include <gtest/gtest.h>

#include "calculators/dailybalance.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

std::int32_t day(std::string_view typed) { return static_cast<std::int32_t>(*base::parseDate(typed)); }
constexpr auto noDate = static_cast<std::int32_t>(base::NoDate), blank = static_cast<std::int32_t>(base::blankDate);

TEST(DailyBalance, AYearHas365Days) {
    const struct {
        assessment::DailyBalance inputs;
        double days, interest;
    } cases[] = {
        {{100000, day("01/01/2024"), day("01/01/2025"), 10}, 366, 10027.397260},
        {{2500.5F, day("15/03/2026"), day("14/04/2026"), 11.25F}, 30, 23.121062},
        {{1000, day("14/04/2026"), day("15/03/2026"), 36.5F}, -30, -30},
        {{1000, day("14/04/2026"), day("14/04/2026"), 36.5F}, 0, 0},
        {{100000, blank, day("01/01/2025"), 10}, 0, 0},
        {{100000, day("01/01/2025"), noDate, 10}, 0, 0},
        // The record's single precision: 11.35 is 11.3500003815, and the arithmetic is in double from there.
        {{16777216, day("01/01/2025"), day("01/01/2026"), 11.35F}, 365, 1904214.08},
    };
    for (const auto& c : cases) {
        const auto result = calculators::dailyBalance(c.inputs);
        EXPECT_EQ(result.days, c.days);
        EXPECT_NEAR(result.interest, c.interest, 1e-6);
    }
}

TEST(DailyBalance, TheEndIsWithin360MonthsOfTheStart) {
    const struct {
        const char *start, *end;
        bool isWithin;
    } cases[] = {{"14/04/2026", "14/04/2056", true}, {"14/04/2026", "15/04/2056", false},
                 {"29/02/2024", "28/02/2054", true}, {"29/02/2024", "01/03/2054", false},
                 {"31/12/2026", "31/12/2056", true}, {"31/12/2026", "01/01/2057", false},
                 {"14/04/2056", "14/04/1926", true}, {"01/01/9980", "31/12/9999", true}};
    for (const auto& c : cases)
        EXPECT_EQ(calculators::isWithin360Months(day(c.start), day(c.end)), c.isWithin) << c.start << ' ' << c.end;
    EXPECT_TRUE(calculators::isWithin360Months(blank, day("14/04/2056")));
    EXPECT_TRUE(calculators::isWithin360Months(day("14/04/2026"), noDate));
}

class DailyBalanceScreen : public testing::Test {
protected:
    DailyBalanceScreen() { run.menu("mnuDayBal"); }
    RunningProgram run;
    assessment::DailyBalance& inputs = run.record().dailyBalance;
};

TEST_F(DailyBalanceScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().changed.DayBalChanged, 0);
    run.typeAll("numCapAmount 2500.5, dtStartDate 15/3/2026, dtEndDate 14/4/2026, numIntRate 11.35");
    EXPECT_EQ(inputs, (assessment::DailyBalance{2500.5F, day("15/03/2026"), day("14/04/2026"), 11.35F}));
    EXPECT_EQ(run.record().changed.DayBalChanged, 1);
    run.click("cmdCalculate");
    run.expectShown("numAnsDB1 23.33, numAnsDB2 30");
    run.click("cmdPrint");
    run.click("cmdVR");
    const std::string row = "SELECT CapAmount, StartDate, EndDate, IntRate, printf('%.6f', ANS1), ANS2 FROM DailyBal";
    EXPECT_EQ(run.inPrint(row), "2500.5|15/03/2026|14/04/2026|11.35|23.326583|30");
    run.program.reports().previews().back()->close();
    run.type("dtEndDate", "");
    run.click("cmdPrint");
    EXPECT_EQ(run.inPrint(row), "2500.5|15/03/2026| |11.35|0.000000|0");
}

TEST_F(DailyBalanceScreen, RefusesARateOf41NoDatesAndDates30YearsApart) {
    run.expectRefused("numIntRate", "41", "The maximum Interest Rate allowed is 40%", "Incorrect Interest Rate!");
    run.type("numIntRate", "40");
    for (const char* field : {"dtStartDate", "dtEndDate"}) {
        run.expectRefused(field, "31/2/2026", "The date entered is invalid please enter a valid date.", "INVALID DATE");
        run.type(field, "14/4/2026");
    }
    run.expectRefused("dtEndDate", "15/4/2056", "The date entered is more than 30 years(360 months) after 14/04/2026.",
                      "DATE OUT OF RANGE");
    run.type("dtEndDate", "13/4/1956"); // the other way round it may be any distance
    run.type("dtEndDate", "14/4/2056");
    run.expectRefused("dtStartDate", "13/4/2026",
                      "The date entered is more than 30 years(360 months) before 14/04/2056.", "DATE OUT OF RANGE");
    run.type("dtStartDate", "14/4/2026");
}

} // namespace
