#include "calculators/realrate.h"

#include <cmath>
#include <random>

#include "shell/running_program.h"

namespace {

using namespace calculators;
using shelltest::RunningProgram;
using Answer = RealRate::Answer;

/// The search step by step; NaN if no whole rate up to `highest` reaches the target.
double stepped(const MoneyStream& stream, double rate, double target, double highest) {
    for (const double step : {1.0, 0.001}) {
        do
            rate += step;
        while (rate <= highest && valueAt(stream, rate) < target);
        if (step == 1) rate = rate > highest ? NAN : rate - 1;
    }
    return rate;
}

// Streams with debts, rising, falling and turning amounts, and targets just above the highest value that they reach.
TEST(ReturnSearch, AnswersInEveryBitWhatTheStepsAnswer) {
    std::mt19937 random(11);
    const auto from = [&](double low, double high) { return std::uniform_real_distribution<>(low, high)(random); };
    const auto some = [&](double low, double high) { return from(0, 1) < 0.4 ? 0 : std::round(from(low, high)); };
    int found = 0, refused = 0;
    for (int round = 0; round < 400; ++round) {
        MoneyStream stream{some(-1e5, 4e5), {}, {}};
        double paid = some(-500, 5000), drawn = some(-500, 5000);
        const double paidRise = some(-220, 25), drawnRise = some(-40, 25), months = from(1, 150);
        for (int month = 0; month < months; ++month) {
            if (month > 0 && month % 12 == 0) paid += paidRise * paid / 100, drawn += drawnRise * drawn / 100;
            stream.paid.push_back(paid);
            stream.drawn.push_back(drawn);
        }
        double peak = valueAt(stream, 0);
        for (double rate = -900; rate < 80; rate += 10)
            peak = std::max(peak, valueAt(stream, rate));
        const double start = round % 4 == 0 ? -999 : 0;
        const double target = start < 0 ? peak / 3 : peak + std::fabs(peak) * std::pow(10, -from(1, 9));
        const double rate = findReturn(stream, start, target).value_or(FoundReturn{NAN, 0}).rate;
        const double expected = stepped(stream, start, target, 400);
        EXPECT_TRUE(std::isnan(expected) ? !(rate < 399) : rate == expected) << round;
        ++(std::isnan(expected) ? refused : found);
    }
    EXPECT_GT(std::min(found, refused), 40);
}

TEST(RealRate, OfALumpSumAndAPremium) {
    const struct {
        assessment::RRROld inputs; // lump sum, premium, months, escalation, maturity
        double paid, rate, escalation;
        Answer answer = Answer::found;
    } cases[] = {
        {{0, 1000, 24, 10, 28000}, 25200, 10.226, 10},
        {{0, 1000, 12, 10, 12000}, 12000, 0.001, 0}, // what was paid; nothing escalates in a year
        {{5000, 0, 24, 10, 5500}, 5000, 4.775, 0},   // nor without a premium
        {{1000, 100, 24, 0, 3000}, 3400, -9.568, 0},
        {{0, 1000, 24, 0, 0}, 24000, -998.999, 0},
        {{0, 0, 24, 10, 5000}, 0, 0, 10, Answer::nothingInvested},
        {{5000, 0, 0.5, 0, 6000}, 5000, 0, 0, Answer::unreached}, // no month to grow in
        {{1, 0, 1, 0, 85}, 1, 0, 0, Answer::unreached},           // 100 800 %
        {{1, 0, 1, 0, 84}, 1, 99600, 0},
        {{0, 1000, 900, 0, 600000}, 600000, 0.001, 0}, // 600 months at most
        {{0, 1000, 600, 1e9, 1}, INFINITY, 0, 1e9, Answer::tooLarge},
    };
    for (auto c : cases) {
        const RealRate result = RRRCalc(c.inputs);
        EXPECT_EQ(result.answer, c.answer) << c.inputs.MatVal;
        EXPECT_NEAR(c.inputs.RRR, c.rate, 1e-8) << c.inputs.MatVal;
        EXPECT_EQ(result.netPaid, c.paid) << c.inputs.MatVal;
        EXPECT_EQ(c.inputs.TotPremPaid, std::isfinite(c.paid) ? c.paid : 0);
        EXPECT_EQ(c.inputs.AnnEsc, c.escalation) << c.inputs.MatVal;
    }
}

TEST(RealRate, OfPaymentsAndIncomes) {
    // In debt at the end: a higher rate may take value away, and no whole rate reaches the second value.
    assessment::RRRNew in;
    in.RRRNEWPeriod = 240, in.RegMpay1 = 1000, in.PayEsc1 = 12, in.RegMinc1 = 1500;
    for (const auto& [maturity, rate] : {std::pair{1060000.0, 19.204}, {1079200.0, 0.0}}) {
        in.RRRNEWMaturityVal = maturity;
        EXPECT_NEAR(RRRCalc(in).found.rate, rate, 1e-9);
    }
    in.RegMpay1 = 0; // income alone is nothing invested
    EXPECT_EQ(RRRCalc(in).profit, 0);
}

TEST(RealRateScreen, EveryControlOfPaymentsAndIncomesHoldsItsFieldAndItsPlaceInTheReport) {
    RunningProgram run;
    run.menu("mnuRealRate");
    run.typeAll("numIntLumpInv 50000, numPeriod 24, numMaturityVal 90000.5, numRegMpay1 1000, numRegMpay2 200, "
                "numRegMpay3 30, numRegMpay4 4, numPayEsc1 10, numPayEsc2 5, numPayEsc3 50, numPayEsc4 100, "
                "numRegMinc1 500, numRegMinc2 60, numRegMinc3 7, numRegMinc4 1, numIncEsc1 20, numIncEsc2 -10, "
                "numIncEsc3 99, numIncEsc4 0.125, txtRegMpayDet1 p1, txtRegMpayDet2 p2, txtRegMpayDet3 p3, "
                "txtRegMpayDet4 p4, txtRegMincDet1 i1, txtRegMincDet2 i2, txtRegMincDet3 i3, txtRegMincDet4 i4");
    assessment::RRRNew typed{50000, 24, 90000.5, 1000, 200,   30,   4,    10,   5,    50,   100,  500,  60,  7,
                             1,     20, -10,     99,   0.125, "p1", "p2", "p3", "p4", "i1", "i2", "i3", "i4"};
    EXPECT_EQ(run.record().rrrNew, typed);
    run.click("cmdPrint");
    run.expectShown("numTotInvMon 31 164.00, numTotMonIncDrawn 14 843.17, numTotPremPaid 23 679.67, numRRR 17.254");
    EXPECT_EQ(
        run.inPrint("SELECT * FROM RRR"),
        "||||||17.25400000000031|50000|24|90000.5|1000|200|30|4|10|5|50|100|500|60|7|1|20|-10|99|0.125|p1|p2|p3|p4|"
        "i1|i2|i3|i4|31164|14843.174999999996|23679.674999999988|");
    run.click("cmdPrintCancel");
    run.type("numPeriod", "12");
    run.click("cmdCalculate"); // the payments lose their escalations, the incomes keep theirs
    typed.RRRNEWPeriod = 12;
    typed.PayEsc1 = typed.PayEsc2 = typed.PayEsc3 = typed.PayEsc4 = 0;
    EXPECT_EQ(run.record().rrrNew, typed);
    run.expectShown("numPayEsc1 0.000, numPayEsc4 0.000, numIncEsc1 20.000");
}

TEST(RealRateScreen, TheScreenOfOneLumpSumOpensFromTheOtherAndHoldsItsFields) {
    RunningProgram run;
    auto& changed = run.record().changed.RRRChanged;
    run.record().rrrOld = {5000, 0, 24, 10, 5500};
    run.menu("mnuRealRate");
    run.click("cmdRRROLD");
    run.expectShown("numAnnEsc 10.000, numRRR 4.775");
    EXPECT_EQ(run.record().rrrOld.RRR + changed, 0) << "looking changes nothing";
    run.click("cmdCalculate");
    run.expectShown("numAnnEsc 0.000, numRRR 4.775");
    EXPECT_EQ(changed, 1);
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.typeAll("numPeriod 24, numSingLump 100, numMonPrem 1000, numAnnEsc 10, numMatValue 28000");
    run.click("cmdPrint");
    run.expectShown("numTotPremPaid 25 300.00, numRRR 9.808");
    EXPECT_EQ(run.inPrint("SELECT SingPremLump, MonPrem, Period, AnnEsc, MatVal, TotPremPaid, printf('%.6f', RRR), "
                          "RateNote, RegMpay1 FROM RRR"),
              "100|1000|24|10|28000|25300|9.808000||");
    run.click("cmdPrintCancel");
    run.type("numPeriod", "0");
    run.click("cmdPrint");
    EXPECT_TRUE(run.control("lblUnreached")->isVisible());
    EXPECT_EQ(run.inPrint("SELECT RRR, RateNote FROM RRR"), "0|No rate of return reaches this maturity value.");
}

} // namespace
