#include "tax/monthlytax.h"

#include <gtest/gtest.h>

#include "base/day.h"

namespace {

using namespace tax;

const PAYESetup setup{1, 1, 1, 17712, 0.8};

double day(int year, int month, int date) { return base::dayNumber(year, month, date).value(); }

/// A month of an employee of 40, calculated as in a screen's first run.
MonthlyTax worked(const MonthlyInputs& month, double rateBefore = 0) {
    assessment::KwikTax client;
    return monthlyTax(month, setup, rateBefore, client);
}

TEST(MonthlyTax, WithholdsTheMonthsShareOfTheYear) {
    const struct {
        MonthlyInputs month; // age, salary, commissions, travel, bonus, the two fund contributions
        double fund, uif, levy, tax;
    } cases[] = {
        {{40}, 0, 0, 0, 0},
        {{40, 20000}, 0, 177.12, 200, 2163.75},                      // 240 000 a year: 43 200 less 17 235, a twelfth
        {{65, 20000}, 0, 177.12, 200, 1376.75},                      // less 26 679
        {{40, 20000, 0, 0, 30000}, 0, 177.12, 500, 9555.75},         // 50 592 on 270 000: 7 392 more, all in this month
        {{40, 20000, 0, 0, 0, 0, 1500}, 1500, 177.12, 185, 1893.75}, // all of it: 222 000 a year, 39 960 less 17 235
        {{40, 10000, 10000}, 0, 100, 200, 2163.75},                  // commissions are not subject to UIF
        // the test counts 10 000 of 20 000 and allows 27.5 %; 183 000 a year: 32 940 less 17 235
        {{40, 10000, 0, 10000, 0, 0, 5000}, 2750, 177.12, 152.5, 1308.75},
        // exactly 27.5 % of 100 000; 870 000 a year: 185 215 + 174 200 at 39 % = 253 153; no more is deducted above it
        {{40, 72500, 0, 0, 0, 27500}, 27500, 177.12, 725, 19659.8333333},
        {{40, 72500, 0, 0, 0, 27500, 9}, 27500, 177.12, 725, 19659.8333333},
        // 350 000 a year at most; 1 570 000: 259 783 + 683 000 at 41 % = 539 813
        {{40, 100000, 0, 0, 0, 60000, 40000}, 29166.6666667, 177.12, 1308.3333333, 43548.1666667},
        {{40, 17711}, 0, 177.11, 177.11, 1751.73}, // just below the UIF limit
        {{40, 17712}, 0, 177.12, 177.12, 1751.91},
        {{40, 17713}, 0, 177.12, 177.13, 1752.09},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const MonthlyTax result = worked(c.month);
        EXPECT_NEAR(result.allowableFund, c.fund, 1e-6);
        EXPECT_EQ(result.taxableTravel, c.month.travel * 0.8);
        EXPECT_NEAR(result.employeeUIF, c.uif, 1e-6);
        EXPECT_NEAR(result.employerUIF, c.uif, 1e-6);
        EXPECT_NEAR(result.skillsLevy, c.levy, 1e-6);
        EXPECT_NEAR(result.taxLiability, c.tax, 1e-6);
        EXPECT_NEAR(result.totalTaxDeduction, c.tax, 1e-6);
    }
}

TEST(MonthlyTax, APartOfAMonthIsRaisedToTheYearAndBack) {
    for (const auto& [salary, start, end, tax] : {
             std::array{10000., day(2026, 3, 1), day(2026, 3, 15),
                        1114.3951613},                                 // 248 000: 44 872 less 17 235; 15 of 31
             {1000, day(2026, 3, 1), day(2026, 3, 1), 160.9596774},    // 372 000: 77 112 less 17 235
             {28000, day(2027, 2, 1), day(2027, 2, 28), 4315.6206897}, // 348 000: 70 872 less 17 235; 28 days of 29
             {20000, day(2026, 4, 1), day(2026, 4, 30), 2163.75},
         })
        EXPECT_NEAR(worked({.age = 40, .salary = salary, .startDate = start, .endDate = end}).taxLiability, tax, 1e-6);
}

TEST(MonthlyTax, CreditsForTheMedicalScheme) {
    // age, persons, what employer and employee contribute; then the credit for persons and that for contributions
    const std::tuple<std::int16_t, std::int16_t, double, double, double, double> cases[] = {
        {40, 2, 0, 0, 0, 0},
        {40, 0, 1000, 0, 0, 0},
        {40, 1, 1000, 0, 376, 0},
        {40, 2, 0, 0.01, 752, 0},
        {40, 3, 500, 0, 1006, 0},
        {40, 4, 500, 0, 1260, 0},
        {64, 2, 4000, 2000, 752, 0},        // from 65 on
        {65, 2, 4000, 2000, 752, 1246.752}, // (6 000 - 2 256) at 0.333
        {65, 2, 2256, 0, 752, 0},
        {65, 2, 1000, 0, 752, 0},
        {65, 0, 4000, 2000, 0, 0},
    };
    for (const auto& [age, persons, employer, employee, forPersons, forContributions] : cases) {
        SCOPED_TRACE(testing::Message() << age << " " << persons << " " << employer);
        MonthlyInputs month{.age = age, .salary = 50000};
        month.employerMedical = employer, month.employeeMedical = employee;
        month.medAidBens = persons;
        MonthlyTax result = worked(month);
        EXPECT_EQ(result.beneficiaryCredit, forPersons);
        EXPECT_NEAR(result.contributionCredit, forContributions, 1e-9);
        EXPECT_NEAR(result.totalTaxDeduction, result.taxLiability - forPersons - forContributions, 1e-9);
        month.salary = 1000;
        EXPECT_EQ(worked(month).totalTaxDeduction, 0) << "credits are never paid out";
    }
}

TEST(MonthlyTax, LeavesItsRateAndTheYearWithoutTheBonus) {
    assessment::KwikTax client;
    double rate = 0;
    monthlyTax({.salary = 20000, .bonus = 30000}, setup, rate, client);
    EXPECT_EQ(rate, setup.TAIncRate8020);
    EXPECT_EQ(client.Salary, 240000);
    EXPECT_EQ(client.LastScaleTax, 43200);
}

TEST(MonthlyTax, MonthsHaveTheirLengthAndFebruaryAlways29) {
    const double lengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
        for (const int year : {2026, 2028})
            EXPECT_EQ(monthLength(day(year, month, 5)), lengths[month - 1]) << month;
}

TEST(MonthlyTax, DatesAreComparedByMonthAndDay) {
    const std::tuple<double, double, DateFault> cases[] = {
        {day(2026, 3, 1), day(2026, 3, 31), DateFault::none},
        {day(2026, 3, 31), day(2026, 3, 31), DateFault::none},
        {day(2026, 3, 1), day(2027, 3, 31), DateFault::none}, // the year is never compared
        {day(2026, 3, 31), day(2026, 4, 1), DateFault::otherMonth},
        {day(2026, 3, 16), day(2026, 3, 15), DateFault::startAfterEnd},
        {day(2026, 3, 16), day(2027, 3, 15), DateFault::startAfterEnd},
        {base::NoDate, day(2026, 3, 15), DateFault::noStart},
        {day(2026, 3, 1), base::NoDate, DateFault::noEnd},
        {day(2026, 3, 1), base::blankDate, DateFault::noEnd},
    };
    for (const auto& [start, end, fault] : cases)
        EXPECT_EQ(dateFault({.startDate = start, .endDate = end}), fault) << start << " " << end;
}

} // namespace
