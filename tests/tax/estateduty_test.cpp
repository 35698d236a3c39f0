#include "tax/estateduty.h"

#include <gtest/gtest.h>

#include <QTextBrowser>

#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

TEST(EstateDuty, ChargesTheDutiableAmountInTwoTiersThatDoNotMeet) {
    const tax::EstateDutyRates shipped{3500000, 20, 30000000, 25, 3.5};
    const struct {
        double total, accrual, dutiable, duty;
        bool second;
    } cases[] = {
        {3499999, 0, 3499999, 0, false}, // below the rebate
        {3500001, 0, 3500001, 0.2, false},
        {5000000, 6000000, 0, 0, false},
        {33500000, 0, 33500000, 6000000, false},                // rebate and tier together are still in the first
        {33500001, 0, 33500001, 5300000 + 875000.25, true},     // 26.5 million at 20 %, 3 500 001 at 25 %
        {40000000, 6499999, 33500001, 5300000 + 2500000, true}, // of the total before the accrual
        {40000000, 6500000, 33500000, 6000000, false},
    };
    for (const auto& c : cases) {
        const auto result = tax::estimateEstateDuty({c.total - 30, 20, 10, c.accrual, 4, 3, 2, 1}, shipped);
        EXPECT_EQ(result.totalEstate, c.total);
        EXPECT_EQ(result.dutiable, c.dutiable) << c.total;
        EXPECT_NEAR(result.duty, c.duty, 1e-6) << c.total;
        EXPECT_EQ(result.reachesSecondTier, c.second) << c.total;
        EXPECT_NEAR(result.fees, 8 * 0.035, 1e-12);
    }
    EXPECT_EQ(tax::estimateEstateDuty({40000000, 0, 0, 0, 5, 0, 0, 6}, {31000000, 20, 1000000, 0, 3}).duty, 0)
        << "a rebate above the tier";
    EXPECT_EQ(tax::estimateEstateDuty({0, 0, 0, 0, 5, 0, 0, 6}, shipped).fees, 0);
}

class EstateDutyScreen : public testing::Test {
protected:
    void inSettings(const std::string& sql) { store::Database(run.folder / "Default.Mdb").execute(sql); }
    std::string settings() { return shelltest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM [EstateDutyEst]"); }
    RunningProgram run;
};

TEST_F(EstateDutyScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
    run.record().estateDuty.PropEstate = 1.75;
    run.menu("mnuEstateDutyEstimator");
    EXPECT_EQ(run.front()->windowTitle(), "Estate Duty Estimator ");
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().estateDuty.PropEstate, 1.75);
    EXPECT_EQ(run.record().changed.EstateDutyChanged, 0);
    run.typeAll("numPropEstate 3500100.99, numPolInvEstate 20, numOtherEstate 3, numLessAccEstate 1000000, "
                "numPropExecutor 4000001, numPolInvExecutor 60, numOtherExecutor 7, numLessAccExecutor 8");
    const assessment::EstateDuty typed{3500100, 20, 3, 1000000, 4000001, 60, 7, 8};
    EXPECT_EQ(run.record().estateDuty, typed);
    EXPECT_EQ(run.record().changed.EstateDutyChanged, 1);
    run.type("numLessAccEstate", "101");
    run.click("cmdPrint"); // calculates first
    run.expectShown("numTotalEstate 3 500 123, numDutEstate 3 500 022, numEstateDuty 4, numTotalExecutor 4 000 068, "
                    "numDutExecutor 4 000 060, numExecutorsFees 140 002");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT Name, PropEstate, PolInvEstate, OtherEstate, TotalEstate, LessAccEstate, DutEstate, "
                          "PropExecutor, PolInvExecutor, OtherExecutor, TotalExecutor, LessAccExecutor, DutExecutor, "
                          "EstateDutyRebate, RateofTax, SndBracket, RateofTax2, ExecFeesRate, "
                          "printf('%.3f|%.3f', EstateDuty, ExecutorsFees) FROM EstateDutyEst"),
              "Ms T. Ṱhoho-Nḓou|3500100|20|3|3500123|101|3500022|4000001|60|7|4000068|8|4000060|"
              "3500000|20|30000000|25|3.5|4.400|140002.100");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Estate Duty Estimator");
    const QString page = reporttest::textOfPdf(run.program.reports().pdf("estatedutyest.rpt")).simplified();
    EXPECT_TRUE(page.contains("executor's fees of Ms T. Ṱhoho-Nḓou.")) << page.toStdString();
    EXPECT_TRUE(page.contains("Estate duty, executor's fees 4.40 140 002.10")) << page.toStdString();
}

TEST_F(EstateDutyScreen, TheRatesAreThePracticesAndInForceOnceConfirmed) {
    run.menu("mnuEstateDutyEstimator");
    run.typeAll("numPropEstate 10000000, numPropExecutor 1000000");
    run.click("cmdSettings");
    run.expectShown("numEstateDutyRebate 3 500 000, numRateofTax 20.000, numSndBracket 30 000 000, "
                    "numRateofTax2 25.000, numExecFeesRate 3.500");
    run.typeAll("numEstateDutyRebate 1000000.5, numRateofTax 10, numSndBracket 2000000, numRateofTax2 30, "
                "numExecFeesRate 2.125");
    run.click("cmdCancelCosts");
    EXPECT_EQ(settings(), "3500000|20|3.5|25|30000000");
    run.click("cmdCalculate");
    run.expectShown("numEstateDuty 1 300 000, numExecutorsFees 35 000");
    run.click("cmdSettings");
    run.expectRefused("numRateofTax", "100.5", "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
    run.typeAll("numRateofTax 10, numEstateDutyRebate 1000000.5, numSndBracket 2000000, numRateofTax2 30, "
                "numExecFeesRate 2.125");
    inSettings("DELETE FROM [EstateDutyEst]");
    run.desk.expect(Answer::ok);
    run.click("cmdOKCosts");
    run.expectShown("numRateofTax 10.000, numEstateDuty 1 300 000");
    inSettings("INSERT INTO [EstateDutyEst] DEFAULT VALUES");
    run.click("cmdOKCosts");
    EXPECT_EQ(settings(), "1000000|10|2.125|30|2000000");
    run.expectShown("numEstateDuty 2 500 000, numExecutorsFees 21 250");
    EXPECT_FALSE(run.control<QLineEdit>("numEstateDuty")->font().italic());
    run.click("cmdOK");
    run.record().estateDuty.OtherEstate = 1000000;
    run.menu("mnuEstateDutyEstimator");
    run.expectShown("numEstateDuty 2 800 000");
    run.click("cmdOK");
    for (const char* broken : {"UPDATE [EstateDutyEst] SET [RateofTax] = 101",
                               "UPDATE [EstateDutyEst] SET [RateofTax] = 20, [ExecFeesRate] = -1",
                               "UPDATE [EstateDutyEst] SET [ExecFeesRate] = 3.5, [SndBracket] = -1",
                               "UPDATE [EstateDutyEst] SET [SndBracket] = 1, [RateofTax2] = Null"}) {
        inSettings(broken);
        run.desk.expect(Answer::ok);
        run.menu("mnuEstateDutyEstimator");
        EXPECT_FALSE(run.isOpen("frmEstateDutyEst")) << broken;
    }
}

TEST_F(EstateDutyScreen, ExplainsItselfAndRefusesAmountsBelowZero) {
    run.menu("mnuEstateDutyEstimator");
    run.expectRefused("numLessAccExecutor", "-1", "Please enter an amount that is not negative.", "Incorrect Amount");
    run.type("numLessAccExecutor", "1");
    run.click("cmdInfo");
    const QString text = run.control<QTextBrowser>("txtInfo")->toPlainText();
    EXPECT_TRUE(text.contains("Would R2,000 or R2m be required?  In some cases"));
    EXPECT_EQ(text.count("\n\n"), 4);
    run.click("cmdEDEHelp");
    EXPECT_FALSE(run.control("fraEDEHelp")->isVisible());
}

} // namespace
