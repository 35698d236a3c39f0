#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "analyses/retirement.h"
#include "analyses/retirement_stepping.h"
#include "analyses/sentences.h"
#include "finance/stepping.h"

namespace {

using analyses::NARACalc;
using analyses::RetirementAnalysis;
using assessment::Assessment;

TEST(Retirement, FastSearchGivesTheAnswersOfPlainSteppingBitForBit) {
    std::mt19937_64 random{20261122};
    int compared = 0, excesses = 0, shortfalls = 0;
    for (int number = 0; number < 2500; ++number) {
        Assessment client = stepping::someClient(random), copy = client;
        const RetirementAnalysis fast = NARACalc(client);
        if (std::fabs(fast.NetCapital - fast.CapitalSolved) > 1e7) continue; // plain steps would take too long
        const stepping::Retirement plain(copy);
        ASSERT_EQ(fast.CapitalSolved, plain.CapitalSolved) << number;
        ASSERT_EQ(fast.run.YearsCovered, plain.YearsCovered) << number;
        ASSERT_EQ(client.retirement.IncomeRA, copy.retirement.IncomeRA) << number;
        stepping::Retirement last(copy);
        last.project();
        for (std::size_t year = 1; year <= static_cast<std::size_t>(last.YearsCovered) + 1; ++year) {
            ASSERT_EQ(fast.run.CapitalByYear[year], last.CapitalByYear[year]) << number << " " << year;
            ASSERT_EQ(fast.run.InterestByYear[year], last.InterestByYear[year]) << number << " " << year;
            ASSERT_EQ(fast.flows.RequiredByYear[year], last.RequiredByYear[year]) << number << " " << year;
            ASSERT_EQ(fast.flows.AvailableByYear[year], last.AvailableByYear[year]) << number << " " << year;
        }
        ++compared;
        excesses += fast.txtAns2.starts_with("(capital");
        shortfalls += fast.txtAns2.ends_with("required.");
    }
    EXPECT_GT(compared, 1300);
    EXPECT_GT(excesses, 200); // searches in both directions
    EXPECT_GT(shortfalls, 200);
}

// A client who retires today: no years of inflation before, 5 % return, no inflation after.
Assessment retiredClient(double income, double capital, double years) {
    Assessment client;
    auto& needs = client.retirement;
    needs.CurrAge = needs.AgeRetiment = 65;
    needs.IncomePD = income;
    needs.ANSLAss5 = capital;
    needs.CoverYears = years;
    needs.BankInvestRate = 5;
    return client;
}

TEST(Retirement, SentencesToTheLetter) {
    const char* const underOne = "Funds available will provide income for less than 1 year.";
    const char* const underTwo = "Funds available will provide income for less than 2 years.";
    // income, capital and years asked for; then the years covered and the two sentences
    const std::tuple<double, double, double, int, const char*, const char*> cases[] = {
        {1000, 12000, 10, 1, underOne, "90 000 additional cover required."}, // exactly 92 660 for ten years
        {1000, 12000.5, 10, 1, underTwo, "90 000 additional cover required."},
        {1000, 50000, 10, 4, "Funds available will provide income for 4 year/s.", "50 000 additional cover required."},
        {1000, 50000, 0, 4, "Funds available will provide income for 0 year/s.", ""}, // 50 000 is not mentioned
        {1000, 500000, 0, 50, "Funds available will provide income for 0 year/s.",
         "(capital excess available of 500 000 detected)"},
        {1000, 500000, 3.5, 50, "Funds available will provide income for 4 year/s.",
         "(capital excess available of 400 000 detected)"},
        {1000, 500000, 50, 50, "Funds available will provide income for 50 year/s.",
         "(capital excess available of 200 000 detected)"}, // 300 000 lasts 50 years, 200 000 doesn't
        {1000, 500000, 80, 50, "Funds available will provide income for 50 year/s.",
         "(capital excess available of 200 000 detected)"}, // a period from an old file
        {1000, -50000, 5, 1, "", "110 000 additional cover required."},
        {1000.5, 100000, 1, 11, "Funds available will provide income for 1 year/s.",
         ""}, // 1 000 a month: 12 000 a year
        {0, 0, 5, 50, "", ""},
        {-1000, 0, 5, 50, "Cannot process unless monthly Shortfall is real.", ""},
        {1e9, 0, 50, 1, "", "219 071 110 000 additional cover required."},
        {1e13, 0, 50, 1, "", ""}, // needs more than 10^15 rand
    };
    for (const auto& [income, capital, years, covered, lasts, needed] : cases) {
        SCOPED_TRACE(testing::Message() << income << " " << capital << " " << years);
        Assessment client = retiredClient(income, capital, years);
        const RetirementAnalysis analysis = NARACalc(client);
        EXPECT_EQ(analysis.run.YearsCovered, covered);
        EXPECT_EQ(analysis.txtAns1, lasts);
        EXPECT_EQ(analysis.txtAns2, needed);
    }
}

TEST(Retirement, TheFirstNeedStartsAYearEarlyAndOthersOnTime) {
    Assessment client = retiredClient(1000, 1e6, 10);
    auto& needs = client.retirement;
    needs.CurrAge = 63;
    needs.YearsToRet = 2;
    needs.InflationRA = 10;
    client.itemised.RNAMonIncReq.flag = 1;
    client.itemised.RNAMonIncReq.rows = {{"", 2000, 20, 67, 68, 0}, {"", 3000, 5, 70, 72, 0}, {"", 500, 8, 72, 80, 0}};
    const RetirementAnalysis analysis = NARACalc(client);
    // 65: the plain figure, inflated; 66: the first need (of age 67, valued at 65), written back; 68 at 20 %; 69 at
    // inflation; 70: 3000 inflated to 69; 71 at 5 %; 72: 500 inflated to 71, since the last row in force counts; then
    // at 8 %
    const double inflation = 1.1;
    const double monthly[] = {1210,
                              2000 * std::pow(inflation, 2),
                              2420,
                              2904,
                              3194.4,
                              3000 * std::pow(inflation, 6),
                              3000 * std::pow(inflation, 6) * 1.05,
                              500 * std::pow(inflation, 8),
                              500 * std::pow(inflation, 8) * 1.08};
    for (std::size_t year = 1; year <= std::size(monthly); ++year)
        EXPECT_NEAR(analysis.flows.MonthlyRequiredByYear[year], monthly[year - 1], 1e-9) << year;
    // The yearly figure of the year written back still uses the earlier need: last year's, inflated.
    EXPECT_NEAR(analysis.flows.RequiredByYear[2], 12 * 1331, 1e-9);
}

TEST(Retirement, PensionsRiseByOneMoreStepEachYear) {
    Assessment client = retiredClient(1000, 1e6, 10);
    client.policies[0].RBMonAvaible = 1000.4;
    client.policies[0].RBMonAvaibleEscFor = 10;
    const RetirementAnalysis analysis = NARACalc(client);
    EXPECT_EQ(analysis.monthlyAvailable, 1000);
    EXPECT_EQ(client.itemised.NARAPolicyIncomeItemise, 1);
    const double steps[] = {0, 0, 1, 3, 6, 10}; // of 100.04 each, on a start in whole rand
    for (std::size_t year = 1; year <= std::size(steps); ++year)
        EXPECT_NEAR(analysis.flows.AvailableByYear[year], 12 * (1000 + steps[year - 1] * 100.04), 1e-9) << year;
}

TEST(Retirement, TableAndGraphEndWithTheYearAfterTheLastOrTheYearsAskedFor) {
    for (const auto& [capital, asked, rows, points] : {std::array{50000, 10, 5, 4},
                                                       {50000, 4, 5, 4},
                                                       {50000, 2, 3, 4},
                                                       {50000, 0, 1, 4},
                                                       {50000, -3, 1, 4},
                                                       {500000, 20, 21, 20},
                                                       {500000, 49, 50, 49},
                                                       {500000, 50, 50, 50}}) {
        Assessment client = retiredClient(1000, capital, asked);
        const RetirementAnalysis analysis = NARACalc(client);
        const auto years = analysis.years();
        ASSERT_EQ(years.size(), rows) << capital << " " << asked;
        EXPECT_EQ(years.back().number, 65 + rows - 1);
        EXPECT_EQ(graphPoints(analysis.run, analysis.yearsAsked), points) << capital << " " << asked;
    }
}

// The sentences of the three analyses differ only in their rules.
TEST(Sentences, EachAnalysisHasItsOwnEdges) {
    using analyses::Prospect;
    const std::string less1 = "less than 1 year.", less2 = "less than 2 years.";
    struct Case {
        Prospect of;
        std::string retirement, death, disability;
    };
    for (const Case& c : {
             Case{{1000, 0, 5000, 1, 10}, "", less1, ""},      // only on death does 0 count as capital
             {{1000, 7000, 5000, 1, 10}, less1, less1, less2}, // exactly a year's need
             {{1000, 7000, 5000.5, 1, 10}, less2, less2, less2},
             {{1000, 7000, 5000, 3, 10}, less1, less1, "3 years."},
             {{1000, 90000, 0, 12, 10.5}, "10 year/s.", "10 years.", "10 years."}, // never more than was asked for
             {{-1, -20, 0, 1, 10}, "real", "", ""},
             {{0, 0, 0, 50, 5}, "", "", "5 years."},
         }) {
        const auto says = [&](const analyses::SentenceRules& rules, const std::string& end) {
            const std::string sentence = lastingSentence(rules, c.of);
            EXPECT_TRUE(end.empty() ? sentence.empty() : sentence.ends_with(end == "real" ? "real." : " for " + end))
                << sentence << " | " << end;
        };
        says(analyses::retirementSentences, c.retirement);
        says(analyses::deathSentences, c.death);
        says(analyses::disabilitySentences, c.disability);
    }
    EXPECT_EQ(excessSentence(analyses::retirementSentences, 100000), "");
    EXPECT_EQ(excessSentence(analyses::deathSentences, 50000), "");
    EXPECT_EQ(excessSentence(analyses::disabilitySentences, 50000), "(capital excess available of 50 000 detected)");
}

TEST(CapitalSearch, AnswersWithTheStepThatDoesAndTheOneThatFails) {
    struct Case {
        double start, needed;
        analyses::CapitalSteps steps;
        double solved, failed;
    };
    const double none = -1;
    for (const Case& c : {Case{0, 1234567, {100000, 10000, 20, 1e15}, 1240000, 1230000},
                          {500, 1234567, {10000, 0, 1, 1e15}, 1240500, 1230500}, // coarse steps only
                          {0, 12345, {100, 0, 1, 1e15}, 12400, 12300},
                          {0, 5e6, {100000, 10000, 20, 1e6}, none, 1.1e6},
                          {0, 1e5, {100000, 30000, 2, 1e15}, 60000, 30000}}) { // too few passes
        const auto covers = [&](double capital) { return capital >= c.needed; };
        const auto up = analyses::searchUp(c.start, c.steps, covers);
        EXPECT_EQ(up.solved.value_or(none), c.solved) << c.needed;
        EXPECT_EQ(up.failed, c.failed) << c.needed;
        const auto down = analyses::searchDown(c.needed + 3.5 * c.steps.coarse, c.steps, covers);
        EXPECT_EQ(down.solved, c.needed + 0.5 * c.steps.coarse) << c.needed;
        EXPECT_EQ(down.failed, c.needed - 0.5 * c.steps.coarse) << c.needed;
    }
    const auto bottom = analyses::searchDown(25000, {10000}, [](double) { return true; });
    EXPECT_FALSE(bottom.solved || bottom.failed); // every capital suffices
}

TEST(CapitalSearch, LeapsRoundAsSingleStepsDo) {
    const std::tuple<double, double, int> walks[] = {
        {0.1, 100000, 50000},           {-999999.37, 100000, 50000},
        {1234567.89, -100000, 40},      {1e9 / 3, -10000, 70000},
        {9e15 + 1, 100000, 3000},       {3e17, 100000, 3000}, // each step is rounded
        {-0.4437274378233522, 0.1, 60}, {4.5e18, -100000, 3000},
        {-2e17 / 3, 10000, 3000},       {1e21, 100000, 5},
    };
    for (const auto& [start, step, steps] : walks) {
        double plain = start;
        for (int taken = 1; taken <= steps; ++taken) {
            plain += step;
            if (taken % 7 == 0 || taken < 20) {
                ASSERT_EQ(finance::stepped(start, step, taken), plain) << start << " " << taken;
            }
        }
    }
}

} // namespace
