#include <gtest/gtest.h>

#include "calculators/offshore.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

TEST(OffShore, GrowsBothSidesAfterTaxAndTakesTheCurrencyOffTheOffshoreOne) {
    const struct {
        assessment::OffShore inputs; // amount, years, both rates, both tax rates, gain of the local currency
        double offshore, local, real;
    } cases[] = {
        {{100000, 10, 8.5, 11, 20, 30, 4}, 193068.991003, 209969.895931, 128358.566217},
        {{100000, 5, -3, 0, 50, 100, -6}, 92721.650237, 100000, 124082.483944}, // a falling rand adds to the real value
        {{2147483647, 1, 12.25, 7.125, 0, 45, 100}, 2410550393.7575, 2231638162.416812, 0},
        {{-1000, 2, 10, 10, 0, 0, 10}, -1210, -1210, -980.1},
        {{100000, 0, 8, 11, 20, 30, 4}, 100000, 100000, 100000},
        {{100000, -3, 8, 11, 20, 30, 4}, 100000, 100000, 100000},
    };
    for (const auto& c : cases) {
        const auto result = calculators::compareOffShore(c.inputs);
        EXPECT_NEAR(result.OSMatVal, c.offshore, 1e-6) << c.inputs.OFInvRate;
        EXPECT_NEAR(result.LMatVal, c.local, 1e-6) << c.inputs.OFInvRate;
        EXPECT_NEAR(result.OSRealMatVal, c.real, 1e-6) << c.inputs.OFInvRate;
        EXPECT_EQ(result.LRealMatVal, result.LMatVal);
    }
}

class OffShoreScreen : public testing::Test {
protected:
    OffShoreScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.menu("mnuOffShore");
    }
    assessment::OffShore& inputs() { return run.record().offShore; }
    RunningProgram run;
};

TEST_F(OffShoreScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().changed.OffShoreChanged, 0);
    run.typeAll("numInvAmount 100000.5, numOSPeriod 9.5, numOFInvRate 8.5, numLInvRate 11.125, numOFTaxRate 20.5, "
                "numLTaxRate 29.5, numLCurrChange 3.5"); // all but the rates are whole, ties to even
    const assessment::OffShore typed{100000, 10, 8.5, 11.125, 20, 30, 4};
    EXPECT_EQ(inputs(), typed);
    EXPECT_EQ(run.record().changed.OffShoreChanged, 1);
    run.click("cmdCalculate");
    run.expectShown("numOFMatVal 193 068.99, numLMatVal 211 682.03, numOFRealMatVal 128 358.57, "
                    "numLRealMatVal 211 682.03");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT InvAmount, OSPeriod, OFInvRate, LInvRate, OFTaxRate, LTaxRate, LCurrChange, "
                          "printf('%.4f|%.4f|%.4f|%.4f', OSMatVal, LMatVal, OSRealMatVal, LRealMatVal) FROM OffShore"),
              "100000|10|8.5|11.125|20|30|4|193068.9910|211682.0297|128358.5662|211682.0297");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Offshore Investments");
}

TEST_F(OffShoreScreen, FiguresThatDoNotFitAreToldInTheField) {
    const struct {
        const char *field, *typed, *told;
    } cases[] = {
        {"numInvAmount", "2147483648", "Please enter a number from -2 147 483 648 to 2 147 483 647."},
        {"numOSPeriod", "-1", "The minimum period allowed is 0 years"},
        {"numOFTaxRate", "101", "The range of the Tax Rate is between 0% and 100%"},
        {"numLTaxRate", "-1", "The range of the Tax Rate is between 0% and 100%"},
    };
    for (const auto& c : cases) {
        run.desk.expect(Answer::ok);
        run.type(c.field, c.typed);
        EXPECT_EQ(run.desk.last().text, c.told);
        EXPECT_EQ(RunningProgram::focused(), c.field);
        run.type(c.field, "0");
    }
    inputs() = {2000000000, 2000, 50, 1, 0, 0, 0};
    run.front()->refill();
    run.expectShown("numOFMatVal    Error, numLRealMatVal    Error");
    run.click("cmdPrint");
    EXPECT_TRUE(run.program.reports().previews().empty());
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
}

} // namespace
