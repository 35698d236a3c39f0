#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "calculators/realrate.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using calculators::MoneyStream;
using calculators::RealRate;
using calculators::RRRCalc;
using shelltest::RunningProgram;
using Answer = RealRate::Answer;

/// The search step by step; NaN if no whole rate up to `highest` reaches the target.
double stepped(const MoneyStream& stream, double start, double target, double highest) {
    double rate = start;
    do {
        rate += 1;
        if (rate > highest) return NAN;
    } while (calculators::valueAt(stream, rate) < target);
    rate -= 1;
    do
        rate += 0.001;
    while (calculators::valueAt(stream, rate) < target);
    return rate;
}

/// Streams with debts, rising and falling amounts, and targets about the highest value that they reach.
TEST(ReturnSearch, AnswersInEveryBitWhatTheStepsAnswer) {
    constexpr double highest = 400; // what the steps try in a test
    std::mt19937 random(11);
    const auto from = [&](double low, double high) { return std::uniform_real_distribution<>(low, high)(random); };
    const auto rarely = [&](double amount) { return from(0, 1) < 0.4 ? 0 : std::round(amount); };
    int found = 0, refused = 0;
    for (int round = 0; round < 400; ++round) {
        MoneyStream stream{rarely(from(-1e5, 4e5)), {}, {}};
        double paid = rarely(from(-500, 5000)), drawn = rarely(from(-500, 5000));
        const double paidRise = rarely(from(-220, 25)), drawnRise = rarely(from(-40, 25));
        const int months = static_cast<int>(from(1, 150));
        for (int month = 1; month <= months; ++month) {
            if (month > 1 && month % 12 == 1) paid += paidRise * paid / 100, drawn += drawnRise * drawn / 100;
            stream.paid.push_back(paid);
            stream.drawn.push_back(drawn);
        }
        double peak = calculators::valueAt(stream, 0);
        const bool isLoss = round % 4 == 0;
        for (double rate = -900; rate < 80; rate += 10)
            peak = std::max(peak, calculators::valueAt(stream, rate));
        const double target = isLoss ? peak / 3 : peak + std::fabs(peak) * std::pow(10, -from(1, 9));
        const double start = isLoss ? -999 : 0;
        const auto answer = calculators::findReturn(stream, start, target);
        const double expected = stepped(stream, start, target, highest);
        if (std::isnan(expected)) {
            EXPECT_TRUE(!answer || answer->rate > highest - 1) << round;
            refused += !answer;
        } else {
            ASSERT_TRUE(answer) << round;
            EXPECT_EQ(answer->rate, expected) << round;
            ++found;
        }
    }
    EXPECT_GT(found, 150);
    EXPECT_GT(refused, 20);
}

TEST(RealRate, OfALumpSumAndAPremium) {
    const struct {
        assessment::RRROld inputs; // lump sum, premium, months, escalation, maturity
        double paid, rate, escalation;
        Answer answer = Answer::found;
    } cases[] = {
        {{100000, 0, 12, 0, 112682.50}, 100000, 12, 0},
        {{0, 1000, 24, 10, 28000}, 25200, 10.226, 10},
        {{0, 1000, 12, 10, 12000}, 12000, 0.001, 0}, // what was paid; nothing escalates in a year
        {{5000, 0, 24, 10, 5500}, 5000, 4.775, 0},   // nor without a premium
        {{1000, 100, 24, 0, 3000}, 3400, -9.568, 0},
        {{0, 1000, 24, 0, 0}, 24000, -998.999, 0},
        {{0, 0, 24, 10, 5000}, 0, 0, 10, Answer::nothingInvested},
        {{5000, 0, 0.5, 0, 6000}, 5000, 0, 0, Answer::unreached}, // no month to grow in
        {{1, 0, 1, 0, 85}, 1, 0, 0, Answer::unreached},
        {{1, 0, 1, 0, 84}, 1, 99600, 0},
        {{0, 1000, 900, 0, 600000}, 600000, 0.001, 0}, // 600 months at most
        {{0, 1000, 600, 1e9, 1}, INFINITY, 0, 1e9, Answer::tooLarge},
    };
    for (auto c : cases) {
        const RealRate result = RRRCalc(c.inputs);
        EXPECT_EQ(result.answer, c.answer) << c.inputs.MatVal;
        EXPECT_NEAR(result.found.rate, c.rate, 1e-8) << c.inputs.MatVal;
        EXPECT_EQ(c.inputs.RRR, result.found.rate);
        EXPECT_EQ(result.netPaid, c.paid) << c.inputs.MatVal;
        EXPECT_EQ(c.inputs.TotPremPaid, std::isfinite(c.paid) ? c.paid : 0);
        EXPECT_EQ(c.inputs.AnnEsc, c.escalation) << c.inputs.MatVal;
    }
}

TEST(RealRate, OfPaymentsAndIncomes) {
    assessment::RRRNew debt; // in debt at the end: a higher rate may take value away
    debt.RRRNEWPeriod = 240, debt.RegMpay1 = 1000, debt.PayEsc1 = 12, debt.RegMinc1 = 1500;
    const struct {
        double maturity, rate;
        Answer answer;
    } cases[] = {{1060000, 19.204, Answer::found}, {1079200, 0, Answer::unreached}};
    for (const auto& c : cases) {
        debt.RRRNEWMaturityVal = c.maturity;
        const RealRate result = RRRCalc(debt);
        EXPECT_EQ(result.answer, c.answer);
        EXPECT_NEAR(result.found.rate, c.rate, 1e-9);
    }
    assessment::RRRNew in;
    EXPECT_EQ(RRRCalc(in).answer, Answer::nothingInvested);
    in.RegMinc1 = 100, in.RRRNEWMaturityVal = 10; // income alone is nothing invested
    EXPECT_EQ(RRRCalc(in).profit, 0);
    in = {50000, 24, 90000, 1000, 200, 30, 4,  10, 5,  50, 100, 500, 60, 7,
          1,     20, -10,   100,  0,   {}, {}, {}, {}, {}, {},  {},  {}};
    RealRate result = RRRCalc(in);
    EXPECT_DOUBLE_EQ(result.payments, 12 * (1234 + 1100 + 210 + 45 + 8));
    EXPECT_DOUBLE_EQ(result.incomes, 12 * (568 + 600 + 54 + 14 + 1));
    EXPECT_DOUBLE_EQ(result.netPaid, 50000 + result.payments - result.incomes);
    EXPECT_DOUBLE_EQ(result.profit, 90000 + result.incomes - 50000 - result.payments);
    EXPECT_NEAR(result.found.rate, 17.254, 1e-9);
    EXPECT_EQ(in.PayEsc4, 100);
    in.RRRNEWPeriod = 12;
    RRRCalc(in);
    for (const double escalation : {in.PayEsc1, in.PayEsc2, in.PayEsc3, in.PayEsc4})
        EXPECT_EQ(escalation, 0);
    EXPECT_EQ(in.IncEsc1 + in.IncEsc2 + in.IncEsc3, 110) << "an income keeps its escalation";
}

class RealRateScreen : public testing::Test {
protected:
    RunningProgram run;
    std::int16_t& changed = run.record().changed.RRRChanged;
};

TEST_F(RealRateScreen, EveryControlOfPaymentsAndIncomesHoldsItsField) {
    run.menu("mnuRealRate");
    run.typeAll("numIntLumpInv 50000, numPeriod 24, numMaturityVal 90000.5, numRegMpay1 1000, numRegMpay2 200, "
                "numRegMpay3 30, numRegMpay4 4, numPayEsc1 10, numPayEsc2 5, numPayEsc3 50, numPayEsc4 100, "
                "numRegMinc1 500, numRegMinc2 60, numRegMinc3 7, numRegMinc4 1, numIncEsc1 20, numIncEsc2 -10, "
                "numIncEsc3 99, numIncEsc4 0.125, txtRegMpayDet1 p1, txtRegMpayDet2 p2, txtRegMpayDet3 p3, "
                "txtRegMpayDet4 p4, txtRegMincDet1 i1, txtRegMincDet2 i2, txtRegMincDet3 i3, txtRegMincDet4 i4");
    EXPECT_EQ(run.record().rrrNew,
              (assessment::RRRNew{50000, 24, 90000.5, 1000, 200,   30,   4,    10,   5,    50,   100,  500,  60,  7,
                                  1,     20, -10,     99,   0.125, "p1", "p2", "p3", "p4", "i1", "i2", "i3", "i4"}));
    EXPECT_EQ(changed, 1);
    run.click("cmdCalculate");
    run.expectShown("numTotInvMon 31 164.00, numTotMonIncDrawn 14 843.17, numTotPremPaid 23 679.67, numRRR 17.254");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(
        run.inPrint("SELECT * FROM RRR"),
        "||||||17.25400000000031|50000|24|90000.5|1000|200|30|4|10|5|50|100|500|60|7|1|20|-10|99|0.125|p1|p2|p3|p4|"
        "i1|i2|i3|i4|31164|14843.174999999996|23679.674999999988|");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Real Rate of Return");
}

TEST_F(RealRateScreen, TheScreenOfOneLumpSumOpensFromTheOtherAndHoldsItsFields) {
    run.record().rrrOld = {5000, 0, 24, 10, 5500};
    run.menu("mnuRealRate");
    run.click("cmdRRROLD");
    EXPECT_EQ(run.front()->objectName(), "frmRRROLD");
    run.expectShown("numAnnEsc 10.000, numRRR 4.775");
    EXPECT_EQ(run.record().rrrOld.RRR + changed, 0) << "looking changes nothing";
    run.click("cmdCalculate");
    run.expectShown("numAnnEsc 0.000, numRRR 4.775");
    EXPECT_EQ(run.record().rrrOld.AnnEsc, 0);
    EXPECT_NEAR(run.record().rrrOld.RRR, 4.775, 1e-9);
    EXPECT_EQ(changed, 1);
    changed = 0;
    run.click("cmdCalculate");
    EXPECT_EQ(changed, 0);
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.typeAll("numPeriod 25, numSingLump 100, numMonPrem 1000, numPeriod 24, numAnnEsc 10, numMatValue 28000");
    EXPECT_EQ(changed, 1);
    run.click("cmdCalculate");
    run.expectShown("numTotPremPaid 25 300.00, numRRR 9.808");
    const std::string row = "SELECT SingPremLump, MonPrem, Period, AnnEsc, MatVal, TotPremPaid, printf('%.6f', RRR), "
                            "RateNote, RegMpay1 FROM RRR";
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint(row), "100|1000|24|10|28000|25300|9.808000||");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Real Rate of Return");
    run.program.reports().previews().back()->close();
    run.window().activateWindow();
    run.typeAll("numPeriod 0");
    run.click("cmdPrint");
    EXPECT_TRUE(run.control("lblUnreached")->isVisible());
    EXPECT_EQ(run.inPrint("SELECT RRR, RateNote FROM RRR"), "0|No rate of return reaches this maturity value.");
    run.click("cmdPrintCancel");
    run.typeAll("numPeriod 600, numAnnEsc 1000000000");
    run.click("cmdPrint"); // too large to print
    run.expectShown("numRRR    Error");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
}

} // namespace
