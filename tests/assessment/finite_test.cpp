#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/itemise.h"
#include "analyses/retirement.h"
#include "assessment/tables.h"
#include "calculators/loans.h"
#include "tax/kwiktax.h"
#include "tax/monthlytax.h"

namespace {

using assessment::Assessment;
using assessment::FieldLine;

/// An extreme figure, as a typing error, a damaged file or another program may leave it.
double extreme(std::mt19937_64& random) {
    constexpr double figures[] = {0,    1e-300, 1e-23, 1e-13, 0.01,  1,       12,     65, 99,    240,   600,
                                  1e13, 1e24,   1e100, 1e307, 1e308, 1.7e308, -1e-13, -1, -1200, -1e24, -1.7e308};
    return figures[random() % std::size(figures)];
}

template <class Table>
void scatter(const Table& table, void* row, std::mt19937_64& random) {
    for (const FieldLine& line : table.fields()) {
        if (line.at == nullptr || line.rule == assessment::Rule::key) continue;
        const assessment::Place place = line.at(row);
        if (auto* const* wide = std::get_if<double*>(&place)) **wide = extreme(random);
        if (auto* const* single = std::get_if<float*>(&place)) **single = random() % 2 == 0 ? 100.0F : 3e38F;
        if (auto* const* count = std::get_if<std::int16_t*>(&place)) **count = static_cast<std::int16_t>(random() % 90);
    }
}

template <class Table>
void expectFinite(const Table& table, void* row, const std::string& what) {
    for (const FieldLine& line : table.fields()) {
        if (line.at == nullptr) continue;
        const assessment::Place place = line.at(row);
        if (auto* const* wide = std::get_if<double*>(&place)) {
            EXPECT_TRUE(std::isfinite(**wide)) << line.name << " after " << what;
        }
    }
}

// A single figure that is not finite would keep the client from ever being saved.
TEST(Finite, NoCalculationLeavesTheRecordAFigureThatNoFileTakes) {
    std::mt19937_64 random{8};
    for (int number = 0; number < 400 && !testing::Test::HasFailure(); ++number) {
        Assessment client;
        scatter(assessment::dataTable(), &client, random);
        client.policies.resize(3);
        for (assessment::Policy& policy : client.policies)
            scatter(assessment::polsInvestsTable(), &policy, random);
        std::vector<assessment::ItemRow> rows(3);
        for (assessment::ItemRow& row : rows)
            row = {"", extreme(random), extreme(random), 65, 80, 70};
        client.loans.Heading = calculators::loanHeadings[random() % 4];

        calculators::LoanCalc(client.loans);
        expectFinite(assessment::dataTable(), &client, "a loan");
        tax::quickTax(client.tax);
        tax::MonthlyInputs month;
        month.salary = extreme(random), month.bonus = extreme(random), month.travel = extreme(random);
        double inclusion = 0;
        tax::monthlyTax(month, {}, inclusion, client.tax);
        expectFinite(assessment::dataTable(), &client, "the taxes");
        EXPECT_TRUE(std::isfinite(client.tax.LastScaleTax));
        using assessment::Analysis;
        for (const Analysis analysis : {Analysis::retirement, Analysis::death, Analysis::disability})
            for (const auto& line : analyses::itemLines(analysis))
                takeItems(client, line, rows);
        analyses::runRetirement(client, 46349);
        analyses::runDeath(client);
        analyses::runDisability(client);
        expectFinite(assessment::dataTable(), &client, "a needs analysis");
        EXPECT_TRUE(std::isfinite(client.PolicyMonthlyIncome));
    }
}

} // namespace
