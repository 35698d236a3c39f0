#include <gtest/gtest.h>

#include "tax/kwiktax.h"

namespace {

using namespace tax;

// The tax on each limit, added up bracket by bracket from the year's official rates.
struct Edge {
    const TaxYear& year;
    double limit, tax, rateBelow, rateAbove;
};
const Edge edges[] = {
    {february2026, 237100, 42678, 18, 26},
    {february2026, 370500, 77362, 26, 31},
    {february2026, 512800, 121475, 31, 36},
    {february2026, 673000, 179147, 36, 39},
    {february2026, 857900, 251258, 39, 41},
    {february2026, 1817000, 644489, 41, 45},
    {february2027, 245100, 44118, 18, 26},
    {february2027, 383100, 79998, 26, 31},
    {february2027, 530200, 125599, 31, 36},
    {february2027, 695800, 185215, 36, 39},
    {february2027, 887000, 259783, 39, 41},
    {february2027, 1878600, 666339, 41, 45},
    {february2026, 0, 0, 18, 18}, // below 0 the first bracket applies, with a negative tax
    {february2026, 9999999999, 644489 + 9998182999 * 0.45, 45, 45}, // above the top the last bracket applies
    {february2027, 9999999999, 666339 + 9998121399 * 0.45, 45, 45},
};

TEST(TaxTables, AnIncomeOnALimitIsTaxedByTheBracketBelow) {
    for (const Edge& edge : edges) {
        SCOPED_TRACE(std::string(edge.year.ends) + " " + std::to_string(edge.limit));
        const auto at = [&](double more) { return taxOn(edge.year, edge.limit + more); };
        const double precision = edge.limit > 1e9 ? 1e-5 : 1e-8;
        EXPECT_NEAR(at(-1).tax, edge.tax - edge.rateBelow / 100, precision);
        EXPECT_NEAR(at(0).tax, edge.tax, precision);
        EXPECT_NEAR(at(0.01).tax, edge.tax + edge.rateAbove / 10000, precision);
        EXPECT_NEAR(at(1).tax, edge.tax + edge.rateAbove / 100, precision);
        EXPECT_EQ(at(0).rate, edge.rateBelow);
        EXPECT_EQ(at(0.01).rate, edge.rateAbove);
        EXPECT_EQ(at(0.01).taxOnLowerLimit + at(0.01).portion, at(0.01).tax);
    }
}

// The pairings of scale and rebates that practices know, including the unusual ones.
TEST(TaxTables, EachConsumerHasItsScaleAndRebates) {
    // tax on 300 000; rebates under 65, from 65 and from 75 on
    const std::tuple<const TaxRules&, double, double, double, double> consumers[] = {
        {quickTaxFebruary2026, 59032, 17235, 26679, 29824},      {quickTaxFebruary2027, 58392, 17820, 27585, 30834},
        {monthlyTaxRules, 58392, 17235, 26679, 29824},           {retirementFundingRules, 58392, 17820, 27585, 30834},
    };
    for (const auto& [rules, tax, under65, from65, from75] : consumers) {
        EXPECT_EQ(taxOn(rules.scale, 300000).tax, tax);
        for (const auto& [age, rebates] : {std::pair{-1.0, under65},
                                           {64.999, under65},
                                           {65.0, from65},
                                           {74.999, from65},
                                           {75.0, from75},
                                           {120.0, from75}})
            EXPECT_EQ(totalRebates(rules, age), rebates) << age;
    }
}

TEST(QuickTax, TaxesAnIncomeInItsYear) {
    // year, income, age; then total tax, rebates, commitment, and the average rates before and after to six places
    const std::array<double, 8> cases[] = {
        {0, 237100, 40, 42678, 17235, 25443, 18, 10.730915},
        {0, 237101, 40, 42678.26, 17235, 25443.26, 18.000034, 10.730980},
        {1, 0, 0, 0, 17820, 0, 18, 0},          // no income: the rate for the first rand
        {1, 95000, 40, 17100, 17820, 0, 18, 0}, // tax below the rebates
        {1, 99000, 40, 17820, 17820, 0, 18, 0},
        {0, -1000, 40, -180, 17235, 0, 18, 0},
        {1, 500000, 75, 116237, 30834, 85403, 23.2474, 17.0806},
        {7, 500000, 65, 116237, 27585, 88652, 23.2474, 17.7304}, // a value of the year from an old file
        {1, 99999999999, 64, 44999820968.55, 17820, 44999803148.55, 44.999821, 44.999803},
    };
    for (const auto& [year, income, age, total, rebates, commitment, before, after] : cases) {
        SCOPED_TRACE(std::to_string(income) + " in " + std::to_string(year));
        assessment::KwikTax client{income, age, year};
        const QuickTax result = quickTax(client);
        EXPECT_NEAR(result.TotalTax, total, 1e-4);
        EXPECT_EQ(result.TotalRebates, rebates);
        EXPECT_NEAR(result.TaxCommitment, commitment, 1e-4);
        EXPECT_NEAR(result.AverageBefore, before, 1e-6);
        EXPECT_NEAR(result.AverageAfter, after, 1e-6);
        EXPECT_EQ(client.LastScaleTax, result.TotalTax);
        EXPECT_EQ(client.Salary, income);
    }
}

} // namespace
