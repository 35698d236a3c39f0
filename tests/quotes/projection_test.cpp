#include "quotes/projection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "finance/premiumsearch.h"
#include "quotes/premiums.h"
#include "quotes/quotes_support.h"

namespace {

using namespace quotes;
using quotestest::inputs, quotestest::rates;
using Outcome = finance::PremiumFound::Outcome;

FundDefaults free() {
    FundDefaults funds;
    funds.AllocationPer = 100;
    return funds;
}

struct Worked {
    KwikQuotes quote;
    double paid, value, other; ///< other: of a unit trust with dividends, of a retirement annuity the payout
};

void expectWorked(const Worked& worked, const FundDefaults& funds) {
    const ShownQuote shown = ShowQuote(worked.quote, funds);
    const Quote& quote = shown.quote;
    const auto last = static_cast<std::size_t>(worked.quote.term);
    SCOPED_TRACE(testing::Message() << worked.quote.TYPEINVEST << last);
    EXPECT_NEAR(shown.numAns1, worked.paid, 1e-6);
    EXPECT_NEAR(shown.numAns2, worked.value, 1e-6);
    EXPECT_EQ(shown.numAns1, quote.QuotePaid[last]);
    EXPECT_EQ(std::max(shown.numAns2, 0.0), quote.QuoteValue[last]);
    const bool isTrust = quote.kind == Kind::unitTrust, isAnnuity = quote.kind == Kind::retirement;
    EXPECT_EQ(quote.FundValue, isTrust ? quote.UTValueNoFee : shown.numAns2);
    EXPECT_EQ(shown.numAns3.has_value(), isTrust || isAnnuity);
    EXPECT_NEAR(isTrust ? shown.numAns3.value_or(0) : shown.numAns4.value_or(0), worked.other, 1e-6);
    const double portion = std::max(0.0, worked.value * funds.LumpSumPort / 100);
    if (isTrust || isAnnuity) {
        EXPECT_NEAR(shown.numAns3.value_or(-1), isTrust ? quote.QuoteValueDiv[last] : portion, 1e-6);
    }
}

TEST(Projection, WorksOutEachKind) {
    // With no charges each month's sum can be followed by hand at 12 % a year: 1 % a month.
    const Worked plain[] = {
        {inputs("E", 1, 1000, 0, 100), 1100, 1111, 0}, // the premium of month 1 earns its month
        {inputs("E", 2, 1000, 0, 100), 1200, 1223.11, 0},
        {inputs("E", 1, 0.5, 0, 0), 0.5, 0.505, 0},    // a fund of cents grows too
        {inputs("B", 1, 1000, 0, 100), 1000, 1010, 0}, // the bank gets its first monthly payment in month 2
        {inputs("B", 2, 1000, 0, 100), 1100, 1121.1, 0},
        {inputs("U", 1, 1000, 0, 100), 1100, 1111, 1111},
        {inputs("U", 12, 0, 0, 1000), 12000, 12809.328043, 12809.328043}, // 12 payments of R1 000
        {inputs("B", 12, 0, 0, 1000), 11000, 11682.503013, 0},
        {inputs("R", 13, 0, 1000, 0), 2100, 2148.093280, 0}, // the fund gets last year's 1 000 a year late,
        {inputs("E", 25, 0, 1000, 0), 3310, 3531.525275, 0}, // although the totals count 1 100 and 1 210
        {inputs("B", 13, 0, 1000, 0), 2100, 2249.093280, 0}, // the bank gets this year's
        {inputs("U", 13, 0, 1000, 0), 2100, 2249.093280, 2249.093280},
        {inputs("E", 13, 0, 0, 100), 1310, 1404.842132, 0}, // one rise, in month 13
    };
    for (const Worked& worked : plain)
        expectWorked(worked, free());
    // With charges: worked out in fractions, step by step. One rand a month never pays for its fees: the fund stays
    // negative, which the trail commission raises, while the tax counts from 0.
    const auto charged = [](const char* kind, int months) { return inputs(kind, months, 50000, 6000, 500, 11, 7); };
    const Worked withCharges[] = {
        {charged("E", 11), 61500, 65762.019531, 0},
        {charged("E", 12), 62000, 46702.007576, 0},
        {charged("E", 25), 82281.85, 67232.983225, 0},
        {charged("E", 480), 2445621.343864, 5915525.760106, 0},
        {inputs("E", 24, 0, 0, 1, 11, 7), 24.84, -32.884732, 0},
        {charged("R", 12), 62000, 65944.279261, 323.126968},
        {charged("R", 480), 2445621.343864, 14825289.002398, 72643.916112},
        {inputs("R", 24, 0, 0, 1, 11, 7), 24.84, -92.631890, 0},
        {charged("U", 11), 61500, 65015.671743, 65015.671743},
        {charged("U", 12), 62000, 64648.875747, 65941.853262},
        {charged("U", 480), 2445621.343864, 11927097.620382, 20246248.408740},
    };
    for (const Worked& worked : withCharges)
        expectWorked(worked, rates());
    const Quote quote = InvestProCalc(inputs("E", 12, 50000, 6000, 500), rates());
    EXPECT_DOUBLE_EQ(quote.InitLump, 1000);
    EXPECT_DOUBLE_EQ(quote.InitAnnual, 180);
    EXPECT_DOUBLE_EQ(quote.InitMonthly, 180) << "monthly premiums pay the commission of annual ones";
    EXPECT_DOUBLE_EQ(quote.TotalInvested, 61900);
}

TEST(Projection, OfThePremiumScreenTakesTheTrailEachMonthFromTheSecondOn) {
    finance::UnitTrust monthly({.single = 10000, .months = 2, .growth = 12}, rates(), finance::Trail::monthly);
    EXPECT_NEAR(monthly.UTValue, 9696, 1e-9);
    monthly.goOn();
    EXPECT_NEAR(monthly.UTValue, 9696 * 1.01 * (1 - 0.7 / 1200), 1e-9);
}

TEST(Projection, TellsAnEmptyOneTooLargeFiguresAndTheTaxLeftOut) {
    for (const char* kind : kindLetters) {
        const ShownQuote shown = ShowQuote(inputs(kind, 24, 10000, 0, 500), rates());
        EXPECT_EQ(shown.ignoresTax, kind == std::string("B"));
        EXPECT_EQ(shown.numPremEsc, 10);
        const ShownQuote unpaid = ShowQuote(inputs(kind, 24, 0, 0, 0), rates());
        EXPECT_EQ(unpaid.numPremEsc, 0);
        EXPECT_FALSE(unpaid.ignoresTax);
        EXPECT_FALSE(ShowQuote(inputs(kind, 24, 1e308, 0, 0, 1e6), rates()).isFinite);
        for (const auto& empty : {inputs(kind, 0, 1, 1, 1), inputs(kind, 24, 1, 1, 1, 0), inputs("", 24, 1, 1, 1)}) {
            const ShownQuote nothing = ShowQuote(empty, rates());
            EXPECT_TRUE(nothing.quote.QuoteEmpty);
            EXPECT_EQ(nothing.numAns1 + nothing.numAns2 + nothing.numAns3.value_or(0), 0);
            EXPECT_EQ(InvestProGraphCalc(empty, rates()).points, 0);
        }
    }
}

TEST(Projection, GraphsHavePointsOfTheirOwnAndLowerChargesOnShortTerms) {
    for (const auto& [months, points] : {std::pair{1, 1}, {24, 24}, {25, 2}, {60, 5}, {61, 5}, {480, 40}})
        for (const char* kind : kindLetters) {
            SCOPED_TRACE(testing::Message() << kind << months);
            const KwikQuotes quote = inputs(kind, months, 50000, 6000, 500);
            const QuoteGraph graph = InvestProGraphCalc(quote, rates());
            EXPECT_EQ(graph.inYears, months > 24);
            EXPECT_EQ(graph.points, points);
            const std::size_t month = static_cast<std::size_t>(points) * (graph.inYears ? 12 : 1);
            const Quote quoted = InvestProCalc(quote, rates());
            EXPECT_EQ(graph.invested.back(), quoted.QuotePaid[month]);
            const bool isCheaper = months <= 60 && (kind == std::string("E") || kind == std::string("R"));
            EXPECT_EQ(graph.value.back() > quoted.QuoteValue[month], isCheaper);
            EXPECT_GE(graph.value.back(), quoted.QuoteValue[month]);
            EXPECT_EQ(graph.reinvested.empty(), kind != std::string("U"));
        }
    // One month: 0.8 of 1 000 and 0.6 of 180 + 180 are charged.
    const double first = (50000 + 6000 - 800 - 216 - 100 + 500) * 1.01 * (1 - 0.6 / 1200);
    EXPECT_NEAR(InvestProGraphCalc(inputs("E", 1, 50000, 6000, 500), rates()).value[1], first, 1e-6);
    EXPECT_EQ(InvestProGraphCalc(inputs("B", 1, -500, 0, 0), rates()).value[1], 0) << "never below the axis";
}

/// The search as it is told, step by step.
double stepped(double target, const std::function<double(double)>& value) {
    double premium = 0;
    for (const double step : {20000.0, 2000.0, 1000.0, 100.0, 10.0, 1.0}) {
        do
            premium += step;
        while (!(value(premium) > target));
        if (step > 1) premium -= step;
    }
    return premium;
}

TEST(FindPremiums, AnswersAsItsStepsDo) {
    for (const int months : {1, 12, 13, 120, 600})
        for (const double target : {-50.0, 1000.0, 1e6, 12345678.9}) {
            const Premiums found = FindPremiums({target, static_cast<std::int16_t>(months), 9, 6}, rates());
            const std::pair<const char*, const finance::PremiumFound&> answers[] = {
                {"E", found.endowment}, {"R", found.retirement}, {"U", found.unitTrust}};
            for (const auto& [kind, answer] : answers) {
                const auto quoted = [&, letter = kind](double premium) {
                    return InvestProCalc(inputs(letter, months, 0, 0, premium, 9, 6), rates()).QuoteEMV;
                };
                const double premium = stepped(target, quoted);
                EXPECT_EQ(answer.outcome, Outcome::above) << kind << months;
                EXPECT_EQ(answer.premium, premium) << kind << months;
                EXPECT_EQ(answer.value, quoted(premium)) << kind << months;
                EXPECT_EQ(answer.valueBelow, quoted(premium - 1)) << kind << months;
            }
        }
}

TEST(FindPremiums, HitsMissesAndMissingFigures) {
    // At 1200 % a year a payment doubles each month: 12 of them make 8 190 times the first.
    const Premiums exact = FindPremiums({8190000, 12, 1200, 0}, free());
    EXPECT_EQ(exact.unitTrust.outcome, Outcome::exact);
    EXPECT_EQ(exact.unitTrust.premium, 1000);
    EXPECT_EQ(shownPremium(exact.unitTrust, 77), 77) << "an exact hit leaves the line as it was";
    EXPECT_EQ(shownPremium(FindPremiums({8190001, 12, 1200, 0}, free()).unitTrust, 77), 1001);
    FundDefaults dear = rates();
    dear.EAPremCom = 120; // more than the premiums of a year
    dear.UTCOM = 100;
    const Premiums never = FindPremiums({1000, 12, 9, 0}, dear);
    EXPECT_EQ(never.endowment.outcome, Outcome::never);
    EXPECT_EQ(shownPremium(never.endowment, 77), 0);
    EXPECT_EQ(never.retirement.outcome, Outcome::above);
    EXPECT_EQ(never.unreached().substr(0, 23), "Endowment, Unit Trusts:");
    EXPECT_EQ(exact.unreached(), "");
    for (const assessment::PremiumQuote& missing :
         {assessment::PremiumQuote{0, 12, 9, 0}, {1000, 0, 9, 0}, {1000, 12, 0, 0}}) {
        EXPECT_EQ(FindPremiums(missing, rates()).unitTrust.outcome, Outcome::notAsked);
        EXPECT_EQ(shownPremium(FindPremiums(missing, rates()).endowment, 77), 0);
    }
}

} // namespace
