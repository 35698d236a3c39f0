#include <gtest/gtest.h>

#include <limits>

#include "analyses/cover_stepping.h"
#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/itemise.h"

namespace {

using analyses::NADeathCalc;
using analyses::NADisabilityCalc;
using analyses::NeedsAnalysis;
using assessment::Analysis;
using assessment::Assessment;
using assessment::ItemRow;

TEST(Cover, FastSearchGivesTheAnswersOfPlainSteppingBitForBit) {
    std::mt19937_64 random{20261123};
    int compared = 0, excesses = 0, shortfalls = 0;
    for (int number = 0; number < 1300; ++number)
        for (const auto kind : {stepping::Cover::death, stepping::Cover::disability}) {
            Assessment client = stepping::someInsured(random), copy = client;
            const bool isDeath = kind == stepping::Cover::death;
            const NeedsAnalysis fast = isDeath ? NADeathCalc(client) : NADisabilityCalc(client);
            if (std::fabs(fast.NetCapital - fast.CapitalSolved) > 4e6) continue; // plain steps would take too long
            stepping::CoverSteps plain(copy, kind);
            ASSERT_EQ(fast.CapitalSolved, plain.solved) << number;
            ASSERT_EQ(fast.run.YearsCovered, plain.YearsCovered) << number;
            ASSERT_EQ(fast.txtAns1, plain.txtAns1) << number;
            ASSERT_EQ(fast.txtAns2, plain.txtAns2) << number;
            plain.project();
            for (std::size_t year = 1; year <= static_cast<std::size_t>(plain.YearsCovered) + 1; ++year) {
                ASSERT_EQ(fast.run.CapitalByYear[year], plain.CapitalByYear[year]) << number << " " << year;
                ASSERT_EQ(fast.run.InterestByYear[year], plain.InterestByYear[year]) << number << " " << year;
                ASSERT_EQ(fast.flows.RequiredByYear[year], plain.RequiredByYear[year]) << number << " " << year;
                ASSERT_EQ(fast.flows.AvailableByYear[year], plain.AvailableByYear[year]) << number << " " << year;
            }
            ++compared;
            excesses += fast.txtAns2.starts_with("(capital");
            shortfalls += fast.txtAns2.ends_with("required.");
        }
    EXPECT_GT(compared, 2000);
    EXPECT_GT(excesses, 300); // searches in both directions
    EXPECT_GT(shortfalls, 300);
}

/// The same client in both groups: 5 % return, no inflation.
Assessment insured(double income, double capital, double years, double available = 0) {
    Assessment client;
    auto& death = client.death;
    death.Income = income, death.ANSAss1 = capital, death.PeriodDeath = years, death.InvestRate = 5;
    death.DeathMIAvail = available;
    auto& disability = client.disability;
    disability.MDisaDTS5 = income, disability.DisaASS1 = capital, disability.MDisaDTS15 = years;
    disability.MDisaDTS7 = 5, disability.DisaMIAvail = available;
    return client;
}

// Every difference between death and disability is deliberate.
TEST(Cover, SentencesToTheLetter) {
    struct Case {
        double income, capital, years, available;
        const char *death, *deathNeeds, *disability, *disabilityNeeds;
    };
    const char* const underOne = "Funds available will provide income for less than 1 year.";
    const char* const underTwo = "Funds available will provide income for less than 2 years.";
    const char* const four = "Funds available will provide income for 4 years.";
    const char* const five = "Funds available will provide income for 5 years.";
    const char* const none = "Funds available will provide income for 0 years.";
    const char* const ninety = "90 000 additional cover required."; // exactly 92 660 for ten years
    const Case cases[] = {
        {1000, 0, 10, 0, underOne, "100 000 additional cover required.", "", "100 000 additional cover required."},
        {1000, 11999.5, 10, 0, underOne, ninety, underOne, ninety},
        {1000, 12000, 10, 0, underOne, ninety, underTwo, ninety}, // exactly a year's need
        {1000, 6000, 10, 500, underOne, "50 000 additional cover required.", underTwo,
         "50 000 additional cover required."}, // an income of 500 stays constant: half of it needs 46 330
        {1000, 12000.5, 10, 0, underTwo, ninety, underTwo, ninety},
        {1000, 50000, 10, 0, four, "50 000 additional cover required.", four, "50 000 additional cover required."},
        {1000, 50000, 0, 0, none, "", none, "(capital excess available of 50 000 detected)"},
        {1000, 50001, 0, 0, none, "(capital excess available of 50 001 detected)", none,
         "(capital excess available of 50 001 detected)"},
        {1000, 150000, 5, 0, five, "(capital excess available of 90 000 detected)", five,
         "(capital excess available of 90 000 detected)"}, // five years need 51 954
        {0, 0, 5, 0, "", "", five, ""},
        {-1000, -50000, 5, 0, "", "30 000 additional cover required.", "",
         "30 000 additional cover required."}, // the available income
        {1e9, 0, 50, 0, underOne, "219 071 110 000 additional cover required.", "",
         "219 071 110 000 additional cover required."},
        {1e13, 0, 50, 0, underOne, "", "", ""}, // needs more than 10^15 rand
    };
    for (const Case& line : cases) {
        SCOPED_TRACE(testing::Message() << line.income << " " << line.capital << " " << line.years);
        Assessment client = insured(line.income, line.capital, line.years, line.available);
        const NeedsAnalysis death = NADeathCalc(client), disability = NADisabilityCalc(client);
        EXPECT_EQ(death.txtAns1, line.death);
        EXPECT_EQ(death.txtAns2, line.deathNeeds);
        EXPECT_EQ(disability.txtAns1, line.disability);
        EXPECT_EQ(disability.txtAns2, line.disabilityNeeds);
    }
}

void expectYears(const analyses::Yearly& years, const std::vector<double>& expected) {
    for (std::size_t year = 1; year <= expected.size(); ++year)
        EXPECT_NEAR(years[year], expected[year - 1], 1e-9) << year;
}

TEST(Cover, PoliciesPayInTheFirstYearAndThenByTermAndFlag) {
    Assessment client = insured(1000, 1e6, 10);
    client.policies.resize(2);
    auto& first = client.policies[0];
    first.DeathBenMonthly = 1000, first.DeathBenMonEsc = 10, first.DeathBenYears = 2;
    first.DisabilMonthly = 1000, first.DisabilMonEscAt = 10; // has no term
    first.IncProMonthly = 500, first.IncProMonEscAt = 20, first.IncProYears = 2;
    client.policies[1].DeathBenMonthly = 500.5; // a term of 0 pays in the first year only
    const NeedsAnalysis death = NADeathCalc(client), disability = NADisabilityCalc(client);
    EXPECT_EQ(death.monthlyAvailable, 1500.5); // unlike retirement's, not rounded to whole rand
    expectYears(death.flows.AvailableByYear, {12 * 1500.5, 12 * 1100, 0, 0});
    EXPECT_EQ(disability.PolicyMonthlyIncome, 1500);
    expectYears(disability.flows.AvailableByYear, {12 * 1500, 12 * 1700, 12 * 1210, 12 * 1331});
    EXPECT_EQ(client.PolicyMonthlyIncome + client.retirement.IncomeRA, 0); // retirement's own figures

    client.policies[1] = {};
    client.CurPolicy = 2; // the flag depends on the policy on the screen
    expectYears(NADeathCalc(client).flows.AvailableByYear, {12000, 0, 0});
    EXPECT_EQ(client.itemised.DTHLifeAssItemise, 0);
    client.policies[0].DisabilMonthly = client.policies[0].IncProMonthly = 0;
    NADisabilityCalc(client);
    EXPECT_EQ(client.itemised.DISALifeAssItemise, 0);
}

ItemRow from(double first, double last, double amount, double escalation = 0) {
    return {"", amount, escalation, first, last, first};
}

TEST(Cover, OfANeedsListOnlyTheFirstRowBringsItsAmount) {
    struct Case {
        std::vector<ItemRow> rows;
        std::vector<double> monthly;
    };
    for (const Case& line : {
             // 3: first row, inflated twice; 4: its 20 %; 5: no row in force; 6: the last row in force starts, so
             // inflation counts; 7: the second row's 5 %
             Case{{from(3, 4, 2000, 20), from(6, 7, 3000, 5), from(6, 6, 9999, 50)},
                  {1000, 1100, 2420, 2904, 3194.4, 3513.84, 3689.532}},
             Case{{from(2, 9, 2000, 20), from(2, 3, 500, 5)},
                  {1000, 1100, 1155, 1386}}, // the last row in force decides
             Case{{from(1, 3, 2000, 20)}, {1000, 1200, 1440, 1584}},
         }) {
        Assessment client = insured(1000, 1e6, 10);
        client.death.Inflation = client.disability.MDisaDTS6 = 10;
        client.itemised.DTHMonIncReq = client.itemised.DISAMonIncReq = {1, line.rows};
        expectYears(NADeathCalc(client).flows.MonthlyRequiredByYear, line.monthly);
        expectYears(NADisabilityCalc(client).flows.MonthlyRequiredByYear, line.monthly);
    }
}

TEST(Cover, ListsFallDueInTheirYearsAndSalesEarnFromTheNextOneOn) {
    Assessment client = insured(1000, 100000, 10);
    client.itemised.DTHCars = {1, {from(2, 0, 10000), from(1, 0, 7)}}; // year 1 counts in the plain sum only
    client.itemised.DTHCreditCard = {1, {from(3, 0, 500), from(2.5, 0, 9)}};
    client.itemised.DTHFutMonInc = {1, {from(0, 3, 300), from(2, 3, 100, 50), from(1, 1, 20), from(4, 3, 9)}};
    analyses::prepareDeath(client);
    EXPECT_EQ(client.death.DeathMIAvail, 320);
    const NeedsAnalysis analysis = NADeathCalc(client);
    expectYears(analysis.flows.AvailableByYear, {12 * 320, 12 * 100, 12 * 150, 0});
    expectYears(analysis.flows.RequiredByYear, {12000, 12000, 12500, 12000});
    const double second = 105000 - 12000 + 12 * 320;
    expectYears(analysis.run.CapitalByYear, {100000, second + 10000});
    expectYears(analysis.run.InterestByYear, {5000, second * 0.05});
}

TEST(Cover, IncomeListsCountFromTheFirstYear) {
    struct Case {
        std::vector<ItemRow> required;
        double income, years;
    };
    for (const Case& line : {Case{{from(1, 20, 100), from(3, 25, 20)}, 100, 24},
                             Case{{from(1, 20, 100)}, 100, 19}, // 19, not 20: from the lowest to the highest
                             Case{{from(2, 5, 100), from(3, 4, 20)}, 120, 3}, Case{{from(9, 5, 100)}, 100, 0},
                             Case{{from(1, 20, 0)}, 7777, 8}}) { // adds up to 0: the typed figures stay
        Assessment client = insured(7777, 0, 8, 7);
        for (const Analysis kind : {Analysis::death, Analysis::disability}) {
            takeItems(client, analyses::itemLines(kind)[0], line.required);
            takeItems(client, analyses::itemLines(kind)[1], {from(0, 1, 300), from(1, 4, 40), from(2, 9, 5)});
        }
        EXPECT_EQ(client.death.DeathMIAvail, 340);
        EXPECT_EQ(client.disability.DisaMIAvail, 340);
        // A figure that contradicts its list, left by another program, is corrected before the calculation.
        for (double* figure : {&client.death.Income, &client.disability.MDisaDTS5})
            if (line.income != 7777) *figure = 1;
        EXPECT_EQ(analyses::runDeath(client).IncomeReqFV, line.income);
        EXPECT_EQ(analyses::runDisability(client).IncomeReqFV, line.income);
        EXPECT_EQ(client.death.PeriodDeath, line.years);
        EXPECT_EQ(client.disability.MDisaDTS15, line.years);
    }
}

TEST(Cover, DamagedFiguresNeitherCrashNorHang) {
    const double odd[] = {-1e300, -100, 0.5, 80, 1e18, 1e300, std::numeric_limits<double>::infinity()};
    using D = assessment::NADeath;
    using B = assessment::NADisability;
    const std::pair<double D::*, double B::*> fields[] = {
        {&D::Income, &B::MDisaDTS5},       {&D::Inflation, &B::MDisaDTS6},      {&D::InvestRate, &B::MDisaDTS7},
        {&D::PeriodDeath, &B::MDisaDTS15}, {&D::DeathMIAvail, &B::DisaMIAvail}, {&D::ANSAss1, &B::DisaASS1},
        {&D::lib5, &B::Disalib5}};
    std::mt19937_64 random{1};
    for (const auto& [death, disability] : fields)
        for (const double value : odd) {
            Assessment client = stepping::someInsured(random);
            client.death.*death = client.disability.*disability = value;
            for (const NeedsAnalysis& analysis : {NADeathCalc(client), NADisabilityCalc(client)}) {
                EXPECT_GE(analysis.run.YearsCovered, 1);
                EXPECT_LE(analysis.run.YearsCovered, 50);
            }
        }
    Assessment client = insured(1000, 5e5, 10);
    client.death.Inflation = client.disability.MDisaDTS6 = 31; // silently reduced to the limit
    client.death.InvestRate = client.disability.MDisaDTS7 = 51;
    client.policies.resize(2); // the sum overflows
    client.policies[0].InvBensCurVal = client.policies[1].InvBensCurVal = 1.7e308;
    client.policies[0].DisabilLumpSum = client.policies[1].DisabilLumpSum = 1.7e308;
    EXPECT_EQ(NADeathCalc(client).txtAns1, "   Error");
    EXPECT_EQ(NADisabilityCalc(client).txtAns2, "   Error");
    EXPECT_EQ(client.death.Inflation + client.disability.MDisaDTS7, 80);
    EXPECT_EQ(client.death.ANSAss5 + client.disability.DisaASS5, 0);
}

} // namespace
