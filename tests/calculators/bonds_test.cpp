#include <QTableView>

#include "calculators/bondbuster.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using enum calculators::ExtraPayment;
using shelltest::RunningProgram;

assessment::Bond bondOf(double principal, int months, double rate, double extra) {
    return {principal, static_cast<std::int16_t>(months), static_cast<float>(rate), extra, 0, 0};
}

TEST(BondBuster, WorksOutWhatAnExtraPaymentSaves) {
    // Expected: repayment, interest, total; the raised extra payment, months, repayment, interest, total; saving.
    const struct {
        double principal, rate, typed;
        int months;
        calculators::ExtraPayment extra;
        std::array<double, 9> expected;
    } cases[] = {
        {1250000, 11.75, 135463, 240, applied, 13546.338, 2001121.188, 3251121.188, 149666.69, 8, 163213.028, 55704.226,
         1305704.226, 1945416.961}, // the last whole month needs a far larger payment
        {500000, 11.75, 0.004, 240, none, 5418.535, 800448.475, 1300448.475, 0, 240, 5418.535, 800448.475, 1300448.475,
         0}, // shows as 0.00
        {500000, 0, 0, 240, none, 0, 0, 0, 0, 240, 0, 0, 0, 0},
        {500000, 11.75, 54185.36, 240, tooHigh, 5418.535, 800448.475, 1300448.475},
        {0, 10, 100, 240, tooHigh, 0},
        {20000, 12, 17500, 6, neverClears, 3450.967, 705.804, 20705.804, 17499.99, 0, 20950.957, 0, 0,
         20705.804}, // less than a month
    };
    for (const auto& c : cases) {
        const auto r = calculators::BBCalc(bondOf(c.principal, c.months, c.rate, c.typed));
        EXPECT_EQ(r.extra, c.extra) << c.typed;
        std::size_t i = 0;
        for (const double figure :
             {r.BondRep, r.TotInt, r.TotPaid, r.VOLUN, r.NewTerm, r.NewRep, r.XTotInt, r.XTotPaid, r.Saving})
            EXPECT_NEAR(figure, c.expected[i++], 1e-3) << c.typed << " " << i;
    }
    EXPECT_EQ(calculators::BBCalc(bondOf(500000, 240, 11.75, 54185.35)).extra, applied);
}

class BondScreens : public testing::Test {
protected:
    assessment::Bond& bond() { return run.record().bond; }
    bool isFaded(const char* name) { return run.control(name)->font().italic(); }
    std::string printed(const std::string& sql) {
        run.click("cmdPrint");
        run.click("cmdVR");
        return run.inPrint(sql) + " " + run.program.reports().previews().back()->windowTitle().toStdString();
    }
    RunningProgram run;
};

const std::string columns = "SELECT PAmt, Period, IntRate, printf('%.2f %.2f %.2f %.2f', MonRep, TotIntPaid, TotRep, "
                            "XtraPay), Xper, iif(XMonRep IS NULL, 'empty', printf('%.2f %.2f %.2f %.2f', XMonRep, "
                            "XTotIntPaid, XTotRep, XTotSavings)) FROM BondBust";

TEST_F(BondScreens, TheBusterHoldsEveryFieldAndRaisesThePaymentOnlyWhenAsked) {
    bond() = bondOf(500000, 240, 11.75, 500);
    run.record().loans.Num4 = 77;
    run.menu("mnuLoansBondBust");
    run.expectShown("numXtraPay 502.13, numAns1(7) 234 728.72");
    EXPECT_EQ(bond(), bondOf(500000, 240, 11.75, 500));
    EXPECT_EQ(run.record().changed.BondBusterChanged, 0);
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.typeAll("numPeriod 300, numPrinAmount 400000, numIntRate 11.35, numXtraPay 1500");
    EXPECT_EQ(bond(), bondOf(400000, 300, 11.35, 1500));
    run.typeAll("numPrinAmount 500000, numPeriod 240");
    run.record().changed.BondBusterChanged = 0;
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().changed.BondBusterChanged, 1) << "the raised payment is not saved yet";
    EXPECT_NEAR(bond().VOLUN, 1527.87, 1e-6);
    EXPECT_EQ(run.record().loans.Num4, 77);
    run.expectShown("numMonRePay 5 280.56, numAns1(0) 767 335.47, numAns1(1) 1 267 335.47, numXtraPay 1 527.87, "
                    "numAns1(2) 500 000.00, numAns1(3) 11.350, numAns1(4) 6 808.43, numAns1(5) 357 862.74, "
                    "numAns1(6) 857 862.74, numAns1(7) 409 472.73, numAns2 126");
    EXPECT_EQ(printed(columns), "500000|240|11.35|5280.56 767335.47 1267335.47 1527.87|126|6808.43 357862.74 "
                                "857862.74 409472.73 Bond Buster");
}

TEST_F(BondScreens, AnExtraPaymentWithoutFiguresIsKeptAndPrintedAsTyped) {
    bond() = bondOf(500000, 240, 11.75, 500);
    run.menu("mnuLoansBondBust");
    run.type("numXtraPay", "60000");
    run.click("cmdCalculate");
    run.expectShown("numXtraPay 60 000.00, numAns1(7) 234 728.72, numAns2 180"); // those of before
    EXPECT_TRUE(isFaded("numAns1(7)") && isFaded("numAns2") && !isFaded("numMonRePay"));
    EXPECT_EQ(printed(columns), "500000|240|11.75|5418.54 800448.48 1300448.48 60000.00|0|0.00 0.00 0.00 0.00 "
                                "Bond Buster");
    run.typeAll("numIntRate 10, numXtraPay -2000");
    run.click("cmdCalculate");
    run.expectShown("numXtraPay -2 000.00, numAns1(4) , numAns1(7) , numAns2 ");
    EXPECT_TRUE(bond().VOLUN == -2000 && !isFaded("numAns2"));
    EXPECT_EQ(printed(columns), "500000|240|10|4825.11 658025.97 1158025.97 -2000.00||empty Bond Buster");
    run.type("numIntRate", "0.0000000000001");
    run.click("cmdCalculate");
    run.expectShown("numMonRePay    Error, numAns1(7)    Error");
    EXPECT_EQ(bond().VOLUN, -2000);
}

TEST_F(BondScreens, TheAnalysisComparesSixTerms) {
    run.menu("mnuLoansBondAna");
    const auto costs = [&] { return RunningProgram::cells(run.control<QTableView>("grdPayments")); };
    run.expectRefused("numIntRate", "50.5", "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!");
    run.typeAll("numIntRate 0.0000000000001, numBAmt 500000");
    run.click("cmdCalculate");
    EXPECT_EQ(costs()[5], QStringList({"30 yrs.", "Error", "Error", "Error"}));
    run.click("cmdPrint");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.type("numIntRate", "11.35");
    EXPECT_EQ(bond(), assessment::Bond(0, 0, 0, 0, 500000, 11.35F));
    EXPECT_TRUE(isFaded("grdPayments"));
    run.click("cmdCalculate");
    EXPECT_FALSE(isFaded("grdPayments"));
    ASSERT_EQ(costs().size(), 6U);
    EXPECT_EQ(costs()[0], QStringList({"5 yrs.", "10 958.69 ", "157 521.34 ", "657 521.34 "}));
    EXPECT_EQ(costs()[5], QStringList({"30 yrs.", "4 894.31 ", "1 261 952.69 ", "1 761 952.69 "}));
    EXPECT_EQ(printed("SELECT PAmt, IntRate, printf('%.2f %.2f %.2f %.2f %.2f %.2f', MonRep1, IntPaid2, Total3, "
                      "MonRep4, IntPaid5, Total6) FROM BondComp"),
              "500000|11.35|10958.69 338431.86 1042803.97 5280.56 1008278.75 1761952.69 Bond Analysis");
}

} // namespace
