#include "quotes/projection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>

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

TEST(Projection, MonthByMonth) {
    struct Case {
        KwikQuotes quote;
        double paid, value, reinvested;
    };
    // With no charges each month's sum can be followed by hand at 12 % a year: 1 % a month.
    const Case plain[] = {
        {inputs("E", 1, 1000, 0, 100), 1100, 1111, 0}, // the premium of month 1 earns its month
        {inputs("E", 2, 1000, 0, 100), 1200, 1223.11, 0},
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
    for (const Case& c : plain) {
        const Quote quote = InvestProCalc(c.quote, free());
        const auto last = static_cast<std::size_t>(c.quote.term);
        EXPECT_NEAR(quote.QuotePaid[last], c.paid, 1e-6) << c.quote.TYPEINVEST << last;
        EXPECT_NEAR(quote.QuoteValue[last], c.value, 1e-6) << c.quote.TYPEINVEST << last;
        EXPECT_NEAR(quote.QuoteValueDiv[last], c.reinvested, 1e-6) << c.quote.TYPEINVEST << last;
    }
}

/// An endowment and a retirement annuity written out as their contract reads, with none of the run's own helpers.
double contractValue(const KwikQuotes& q, const InsurerRates& r) {
    const double L = q.LUMPSUM, A = q.ANNUALPAYMENT;
    double fund = L + A -
                  (r.singleCommission / 100 * L + r.regularCommission / 100 * A +
                   q.regularpayment * 12 * (r.regularCommission / 100) + r.initialFee);
    double m = q.regularpayment, a = A, before = A;
    std::vector<double> stored(1, 0);
    for (int i = 1; i <= q.term; ++i) {
        if (i % 12 == 0) {
            fund -= (fund - stored[static_cast<std::size_t>(i - 12)]) * r.tax / 100;
            fund -= fund * r.managementFee / 100;
            fund += fund * r.bonus / 100;
        }
        if (i > 1 && i % 12 == 1) {
            a += a * q.PaymentEscalation / 100;
            fund += before; // this year's, less its rise
            before = a;
            m += m * q.PaymentEscalation / 100;
        }
        fund += m;
        if (fund > 0) fund += fund * q.GrowthRate / 1200;
        fund -= r.trail / 100 / 12 * fund;
        stored.push_back(fund < 0 ? 0 : fund);
    }
    return fund;
}

TEST(Projection, InsuredPlansFollowTheirContract) {
    for (const int months : {1, 11, 12, 13, 24, 25, 60, 61, 480}) {
        for (const auto& [single, annual, monthly] : {std::tuple{50000.0, 6000.0, 500.0}, {0.0, 0.0, 1.0}}) {
            const auto endowment = inputs("E", months, single, annual, monthly, 11, 7);
            const auto annuity = inputs("R", months, single, annual, monthly, 11, 7);
            const double e = contractValue(endowment, {2, 3, 100, 0.6, 1, 0.5, 30});
            const double r = contractValue(annuity, {2.5, 3.5, 120, 0.9, 1.25, 0.75, 0});
            EXPECT_NEAR(InvestProCalc(endowment, rates()).QuoteEMV, e, 1e-9 * std::abs(e) + 1e-9) << months;
            const Quote quote = InvestProCalc(annuity, rates());
            EXPECT_NEAR(quote.QuoteEMV, r, 1e-9 * std::abs(r) + 1e-9) << months;
            EXPECT_NEAR(quote.QuoteLumpPortion, std::max(0.0, r * 0.25), 1e-6) << months;
            EXPECT_NEAR(quote.QuoteMonthlyPayout, std::max(0.0, r * 0.75 * 0.98 * 0.08 / 12), 1e-6) << months;
        }
    }
    // A payment of 1 rand leaves the fund below 0: no growth, and the trail raises it. The months say 0.
    const Quote sunk = InvestProCalc(inputs("E", 2, 0, 0, 1), rates());
    const double first = (1 - (100 + 0.36)) * (1 - 0.6 / 1200);
    EXPECT_NEAR(sunk.FundValue, (first + 1) * (1 - 0.6 / 1200), 1e-9);
    EXPECT_EQ(sunk.QuoteValue[2], 0);
    const Quote charged = InvestProCalc(inputs("E", 12, 50000, 6000, 500), rates());
    EXPECT_DOUBLE_EQ(charged.InitLump, 1000);
    EXPECT_DOUBLE_EQ(charged.InitAnnual, 180);
    EXPECT_DOUBLE_EQ(charged.InitMonthly, 180) << "monthly premiums pay the commission of annual ones";
    EXPECT_DOUBLE_EQ(charged.TotalInvested, 61900);
    EXPECT_DOUBLE_EQ(charged.TotalPaid, 62000);
}

TEST(Projection, UnitTrustsPayTheirFeesAtTheYearEnd) {
    // 10 000 less 4 %, a year at 1 % a month; the dividend of 2 % first, then the fee of 1.5 % and the trail of 0.7 %.
    const Quote quote = InvestProCalc(inputs("U", 12, 10000, 0, 0), rates());
    const double grown = 9600 * std::pow(1.01, 12);
    EXPECT_NEAR(quote.QuoteValue[11], 9600 * std::pow(1.01, 11), 1e-6);
    EXPECT_NEAR(quote.UTValue, grown * 0.985 * 0.993, 1e-6);
    EXPECT_NEAR(quote.UTValueNoFee, grown * 1.02 * 0.985 * 0.993, 1e-6);
    EXPECT_EQ(quote.FundValue, quote.UTValueNoFee);
    // The premium screen's trail: a twelfth each month from the second on.
    const FundDefaults funds = rates();
    finance::UnitTrust monthly({.single = 10000, .months = 2, .growth = 12}, funds, finance::Trail::monthly);
    EXPECT_NEAR(monthly.UTValue, 9696, 1e-9);
    monthly.goOn();
    EXPECT_NEAR(monthly.UTValue, 9696 * 1.01 * (1 - 0.7 / 1200), 1e-9);
}

TEST(Projection, AnswersOfEachKind) {
    struct Case {
        const char* kind;
        bool third, fourth, ignoresTax;
    };
    for (const Case& c : {Case{"E", false, false, false},
                          {"R", true, true, false},
                          {"U", true, false, false},
                          {"B", false, false, true}}) {
        const ShownQuote shown = ShowQuote(inputs(c.kind, 24, 10000, 0, 500), rates());
        const Quote& quote = shown.quote;
        EXPECT_EQ(shown.numAns1, quote.QuotePaid[24]) << c.kind;
        EXPECT_EQ(shown.numAns2, quote.QuoteValue[24]) << c.kind;
        EXPECT_EQ(shown.numAns3.has_value(), c.third) << c.kind;
        EXPECT_EQ(shown.numAns4.has_value(), c.fourth) << c.kind;
        EXPECT_EQ(shown.ignoresTax, c.ignoresTax) << c.kind;
        EXPECT_EQ(shown.numPremEsc, 10);
        EXPECT_EQ(ShowQuote(inputs(c.kind, 24, 10000, 0, 0), rates()).numPremEsc, 0);
        EXPECT_FALSE(ShowQuote(inputs(c.kind, 24, 1e308, 0, 0, 1e6), rates()).isFinite);
        for (const auto& empty :
             {inputs(c.kind, 0, 1, 1, 1), inputs(c.kind, 24, 1, 1, 1, 0), inputs("", 24, 1, 1, 1)}) {
            const ShownQuote nothing = ShowQuote(empty, rates());
            EXPECT_TRUE(nothing.quote.QuoteEmpty);
            EXPECT_EQ(nothing.numAns1 + nothing.numAns2 + nothing.numAns3.value_or(0), 0);
            EXPECT_EQ(InvestProGraphCalc(empty, rates()).points, 0);
        }
    }
}

TEST(Projection, GraphsHavePointsOfTheirOwnAndLowerChargesOnShortTerms) {
    struct Case {
        int months;
        bool inYears;
        int points;
    };
    for (const Case& c :
         {Case{1, false, 1}, {24, false, 24}, {25, true, 2}, {60, true, 5}, {61, true, 5}, {480, true, 40}})
        for (const char* kind : kindLetters) {
            const KwikQuotes quote = inputs(kind, c.months, 50000, 6000, 500);
            const QuoteGraph graph = InvestProGraphCalc(quote, rates());
            EXPECT_EQ(graph.inYears, c.inYears) << c.months;
            EXPECT_EQ(graph.points, c.points) << c.months;
            EXPECT_EQ(graph.reinvested.empty(), kind != std::string("U"));
            const auto last = static_cast<std::size_t>(c.points);
            const std::size_t month = c.inYears ? 12 * last : last;
            const Quote quoted = InvestProCalc(quote, rates());
            EXPECT_EQ(graph.invested[last], quoted.QuotePaid[month]);
            const bool cheaper = c.months <= 60 && (kind == std::string("E") || kind == std::string("R"));
            EXPECT_EQ(graph.value[last] > quoted.QuoteValue[month], cheaper) << kind << c.months;
            EXPECT_GE(graph.value[last], quoted.QuoteValue[month]);
        }
    // One month: 0.8 of 1 000 and 0.6 of 180 + 180 are charged.
    const double first = (50000 + 6000 - 800 - 216 - 100 + 500) * 1.01 * (1 - 0.6 / 1200);
    EXPECT_NEAR(InvestProGraphCalc(inputs("E", 1, 50000, 6000, 500), rates()).value[1], first, 1e-6);
    EXPECT_EQ(InvestProGraphCalc(inputs("B", 1, -500, 0, 0), rates()).value[1], 0) << "never below the axis";
}

TEST(FindPremiums, ThePremiumQuotedReachesTheValue) {
    for (const int months : {1, 12, 13, 120, 600})
        for (const double target : {1000.0, 1e6, 123456789.0}) {
            const Premiums found = FindPremiums({target, static_cast<std::int16_t>(months), 9, 6}, rates());
            const struct {
                const char* kind;
                const finance::PremiumFound& found;
            } answers[] = {{"E", found.endowment}, {"R", found.retirement}, {"U", found.unitTrust}};
            for (const auto& [kind, answer] : answers) {
                ASSERT_EQ(answer.outcome, Outcome::above) << kind << months;
                const auto quoted = [&, letter = kind](double premium) {
                    return InvestProCalc(inputs(letter, months, 0, 0, premium, 9, 6), rates()).QuoteEMV;
                };
                EXPECT_EQ(answer.value, quoted(answer.premium)) << kind << months;
                EXPECT_EQ(answer.valueBelow, quoted(answer.premium - 1)) << kind << months;
                EXPECT_GT(answer.value, target);
                EXPECT_LT(answer.valueBelow, target);
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
