#include "calculators/bondbuster.h"

#include <gtest/gtest.h>

#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using calculators::ExtraPayment;
using shelltest::RunningProgram;

assessment::Bond bondOf(double principal, int months, double rate, double extra) {
    return {principal, static_cast<std::int16_t>(months), static_cast<float>(rate), extra, 0, 0};
}

TEST(BondBuster, WorksOutWhatAnExtraPaymentSaves) {
    const struct {
        double principal;
        int months;
        double rate, typed;
        double repayment, interest, paid;
        ExtraPayment extra;
        double raised, newTerm, newRepayment, newInterest, newPaid, saving;
    } cases[] = {
        {500000, 240, 11.75, 500, 5418.535313, 800448.475052, 1300448.475052, ExtraPayment::applied, 502.13, 180,
         5920.665313, 565719.756289, 1065719.756289, 234728.718763},
        // A rate of single precision: 11.35 is 11.3500003815.
        {500000, 240, 11.35, 1500, 5280.564451, 767335.468299, 1267335.468299, ExtraPayment::applied, 1527.87, 126,
         6808.434451, 357862.740857, 857862.740857, 409472.727442},
        // Cents are no bound: the last whole month needs a far larger payment.
        {1250000, 240, 11.75, 135463, 13546.338282, 2001121.187629, 3251121.187629, ExtraPayment::applied,
         149666.690013, 8, 163213.028295, 55704.22636, 1305704.22636, 1945416.961269},
        {500000, 240, 10, -100, 4825.108225, 658025.974089, 1158025.974089, ExtraPayment::applied, -98.28, 257,
         4726.828225, 714794.85392, 1214794.85392, -56768.879831},
        {500000, 240, 11.75, 0, 5418.535313, 800448.475052, 1300448.475052, ExtraPayment::none, 0, 240, 5418.535313,
         800448.475052, 1300448.475052, 0},
        {500000, 240, 11.75, 0.004, 5418.535313, 800448.475052, 1300448.475052, ExtraPayment::none, 0, 240, 5418.535313,
         800448.475052, 1300448.475052, 0}, // shows as 0.00
        {500000, 240, 11.75, 54185.36, 5418.535313, 800448.475052, 1300448.475052, ExtraPayment::tooHigh, 0, 0, 0, 0, 0,
         0}, // ten times the repayment is 54 185.353
        {0, 240, 10, 100, 0, 0, 0, ExtraPayment::tooHigh, 0, 0, 0, 0, 0, 0},
        {500000, 240, 0, 0, 0, 0, 0, ExtraPayment::none, 0, 240, 0, 0, 0, 0},
        {20000, 6, 12, 17500, 3450.967334, 705.804005, 20705.804005, ExtraPayment::neverClears, 17499.99, 0,
         20950.957334, 0, 0, 20705.804005}, // less than a month
        {500000, 240, 10, -2000, 4825.108225, 658025.974089, 1158025.974089, ExtraPayment::neverClears, -2000.01, 0,
         2825.098225, 0, 0, 1158025.974089}, // less than the interest
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.principal << " " << c.typed);
        const auto result = calculators::BBCalc(bondOf(c.principal, c.months, c.rate, c.typed));
        EXPECT_EQ(result.extra, c.extra);
        const std::pair<double, double> figures[] = {
            {result.BondRep, c.repayment},   {result.TotInt, c.interest},  {result.TotPaid, c.paid},
            {result.VOLUN, c.raised},        {result.NewTerm, c.newTerm},  {result.NewRep, c.newRepayment},
            {result.XTotInt, c.newInterest}, {result.XTotPaid, c.newPaid}, {result.Saving, c.saving}};
        for (const auto& [got, expected] : figures)
            EXPECT_NEAR(got, expected, 1e-5);
    }
    EXPECT_NE(calculators::BBCalc(bondOf(500000, 240, 11.75, 54185.35)).extra, ExtraPayment::tooHigh);
}

class BondBusterScreen : public testing::Test {
protected:
    BondBusterScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.record().loans.Num4 = 77;
        run.menu("mnuLoansBondBust");
    }
    assessment::Bond& bond() { return run.record().bond; }
    std::int16_t& changed() { return run.record().changed.BondBusterChanged; }
    bool isDimmed(const char* field) { return run.control<QLineEdit>(field)->font().italic(); }
    std::string printed() {
        return run.inPrint("SELECT PAmt, Period, IntRate, printf('%.2f|%.2f|%.2f|%.2f', MonRep, TotIntPaid, TotRep, "
                           "XtraPay), Xper, iif(XMonRep IS NULL, 'empty', printf('%.2f|%.2f|%.2f|%.2f', XMonRep, "
                           "XTotIntPaid, XTotRep, XTotSavings)) FROM BondBust");
    }
    void view() {
        run.click("cmdPrint");
        run.click("cmdVR");
    }
    RunningProgram run;
};

TEST_F(BondBusterScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(changed(), 0);
    run.typeAll("numPrinAmount 500000, numPeriod 240, numIntRate 11.35, numXtraPay 1500");
    EXPECT_EQ(bond(), bondOf(500000, 240, 11.35, 1500));
    changed() = 0;
    run.click("cmdCalculate");
    EXPECT_EQ(changed(), 1) << "the raised payment is not saved yet";
    run.expectShown("numMonRePay 5 280.56, numAns1(0) 767 335.47, numAns1(1) 1 267 335.47, numXtraPay 1 527.87, "
                    "numAns1(2) 500 000.00, numAns1(3) 11.350, numAns1(4) 6 808.43, numAns1(5) 357 862.74, "
                    "numAns1(6) 857 862.74, numAns1(7) 409 472.73, numAns2 126");
    EXPECT_NEAR(bond().VOLUN, 1527.87, 1e-6);
    EXPECT_EQ(run.record().loans.Num4, 77);
    changed() = 0;
    view();
    EXPECT_EQ(printed(), "500000|240|11.35|5280.56|767335.47|1267335.47|1527.87|126|6808.43|357862.74|857862.74|"
                         "409472.73");
    EXPECT_EQ(changed(), 0);
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Bond Buster");
}

TEST_F(BondBusterScreen, OpeningShowsTheRaisedPaymentAndChangesNothing) {
    const auto before = bond() = bondOf(500000, 240, 11.75, 500);
    run.front()->refill();
    run.expectShown("numXtraPay 502.13, numAns1(7) 234 728.72");
    EXPECT_EQ(bond(), before);
    EXPECT_EQ(changed(), 0);
    EXPECT_EQ(run.record().loans.Num4, 77);
}

TEST_F(BondBusterScreen, AnExtraPaymentWithoutFiguresIsKeptAndPrintedAsTyped) {
    run.typeAll("numPrinAmount 500000, numPeriod 240, numIntRate 11.75, numXtraPay 500");
    run.click("cmdCalculate");
    run.type("numXtraPay", "60000");
    run.click("cmdCalculate");
    run.expectShown("numXtraPay 60 000.00, numAns1(7) 234 728.72, numAns2 180"); // those of before
    EXPECT_TRUE(isDimmed("numAns1(7)") && isDimmed("numAns2") && !isDimmed("numMonRePay"));
    view();
    EXPECT_EQ(printed(), "500000|240|11.75|5418.54|800448.48|1300448.48|60000.00|0|0.00|0.00|0.00|0.00");
    run.typeAll("numIntRate 10, numXtraPay -2000");
    run.click("cmdCalculate");
    run.expectShown("numXtraPay -2 000.00, numAns1(4) , numAns1(7) , numAns2 ");
    EXPECT_EQ(bond().VOLUN, -2000);
    EXPECT_FALSE(isDimmed("numAns2"));
    view();
    EXPECT_EQ(printed(), "500000|240|10|4825.11|658025.97|1158025.97|-2000.00||empty");
}

TEST_F(BondBusterScreen, FiguresWithoutAFiniteAnswerAreErrorsAndChangeNothing) {
    bond() = bondOf(500000, 240, 1e-13, 500);
    run.click("cmdCalculate");
    run.expectShown("numMonRePay    Error, numAns1(7)    Error");
    EXPECT_EQ(bond().VOLUN, 500);
    run.click("cmdPrint");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.type("numPeriod", "600");
    run.expectRefused("numIntRate", "50.001", "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!");
    run.type("numIntRate", "50");
}

} // namespace
