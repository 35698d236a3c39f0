#include "calculators/loans.h"

#include "calculators/amortisation.h"
#include "calculators/centsearch.h"
#include "calculators/loan_stepping.h"
#include "calculators/loansearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <random>

namespace {

using assessment::Loans;
using calculators::LoanAnswer;
using calculators::LoanCalc;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::uint64_t bits(double x) { return std::isnan(x) ? ~std::uint64_t{0} : std::bit_cast<std::uint64_t>(x); }

testing::AssertionResult sameBits(const Loans& a, const Loans& b) {
    const bool same = bits(a.Num1) == bits(b.Num1) && bits(a.Num2) == bits(b.Num2) && bits(a.Num3) == bits(b.Num3) &&
                      bits(a.Num4) == bits(b.Num4);
    if (same) return testing::AssertionSuccess();
    const auto text = [](const Loans& l) {
        return ::testing::PrintToString(std::vector<double>{l.Num1, l.Num2, l.Num3, l.Num4});
    };
    return testing::AssertionFailure() << text(a) << " is not " << text(b);
}

/// Realistic loans and larger ones: principals from cents to a million million, all rates and periods.
class Clients {
public:
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }
    int whole(int low, int high) { return std::uniform_int_distribution(low, high)(m_random); }
    double money(double least, double most) {
        return std::floor(std::exp(between(std::log(least), std::log(most))) * 100) / 100;
    }
    double rate() { return whole(1, 50000) / 1000.0; }

private:
    std::mt19937_64 m_random{20260301};
};

TEST(Loans, SolvesEachUnknown) {
    // The loan, and the figure that its heading names to a cent or a hundredth. The repayment of 100 000 over 20 years
    // at 12 % is 1 101.086..., as any repayment table has it.
    const std::pair<Loans, double> cases[] = {
        {{"Monthly repayment", 100000, 240, 12, 0}, 1101.09},
        {{" monthly REPAYMENT ", 1000000, 360, 9.75, 0}, 8591.54}, // an old file's heading: case and blanks are ignored
        {{"Monthly repayment", 100000, 1, 12, 0}, 101000},
        {{"Principal amount", 0, 240, 12, 1101.09}, 100000.35},
        {{"Principal amount", 0, 240, 12, 1}, 90.82},
        {{"Repayment period", 100000, 0, 12, 1101.09}, 240},
        {{"Repayment period", 100000, 0, 12, 1101.10}, 239}, // even a cent less clears it within the 240th month
        {{"Interest rate", 100000, 240, 0, 1101.09}, 12},
        {{"Interest rate", 100000, 240, 0, 1101.08}, 11.99}, // truncates: 11.9999 is not 12
        {{"Interest rate", 100000, 240, 0, 4166.90}, 50},    // the highest that is not told of
        {{"Interest rate", 100000, 240, 0, 416.66}, 0},      // less than principal / period
        {{"Monthly repayment", -1000, 12, 12, 0}, -88.85},   // only an exact 0 is refused
    };
    for (const auto& [given, figure] : cases) {
        Loans l = given;
        EXPECT_EQ(LoanAnswer::solved, LoanCalc(l));
        const double solved[] = {l.Num4, l.Num1, l.Num2, l.Num3};
        EXPECT_NEAR(solved[static_cast<int>(*calculators::loanMode(l.Heading))], figure, 0.00501)
            << given.Heading << " " << given.Num1 << " " << given.Num4;
    }
    Loans strange{"Something else", 100000, 240, 12, 7};
    EXPECT_EQ(LoanAnswer::solved, LoanCalc(strange));
    EXPECT_TRUE(sameBits(strange, Loans{"", 100000, 240, 12, 7}));
}

TEST(Loans, AnInputAtZeroGivesZero) {
    for (std::size_t mode = 0; mode < calculators::loanHeadings.size(); ++mode)
        for (std::size_t zero = 0; zero < 4; ++zero) {
            constexpr std::size_t unknownOf[] = {3, 0, 1, 2};
            if (unknownOf[mode] == zero) continue;
            double num[] = {100000, 240, 12, 1101.09};
            num[zero] = mode == 2 && zero == 3 ? 0.01 : 0; // the search for the period subtracts a cent first
            Loans l{std::string(calculators::loanHeadings[mode]), num[0], num[1], num[2], num[3]};
            LoanCalc(l);
            const double solved[] = {l.Num1, l.Num2, l.Num3, l.Num4};
            EXPECT_EQ(solved[unknownOf[mode]], 0) << mode << " " << zero;
        }
}

TEST(Loans, NoAnswerThatIsNotFiniteIsKept) {
    for (const double rate : {1e-13, 1e-300}) {
        Loans l{"Monthly repayment", 100000, 240, rate, 777}; // a month's interest is too small beside the 1
        EXPECT_EQ(LoanCalc(l), LoanAnswer::notFinite);
        EXPECT_TRUE(sameBits(l, Loans{"", 100000, 240, rate, 0})) << rate;
    }
    Loans worthless{"Principal amount", 777, 600, -1199.9999, 1e300};
    EXPECT_EQ(LoanCalc(worthless), LoanAnswer::notFinite);
    EXPECT_TRUE(sameBits(worthless, Loans{"", 0, 600, -1199.9999, 1e300}));
}

TEST(Loans, ThePeriodTakesACentOffFirst) {
    // Repayments to the cent: the cent search ends at the first that clears the loan in the months found.
    for (const auto& [repayment, months, raised] : {
             std::array{1101.09, 240., 1101.09}, // the 20-year repayment is returned as typed
             {1101.05, 240, 1101.09},   // too little for 240 months, more than 241 need: raised to clear in 240
             {101000.00, 1, 101000.00}, //
             {999.99, 0, 999.98},       // less than the interest: never clears, and stays a cent lower
             {1002.56, 0, 1002.55},     // needs 600 months, with a cent less 601
             {101000.02, 0, 101000.01}, // clears in less than a month: raising it does not help
         }) {
        Loans l{"Repayment period", 100000, 77, 12, repayment};
        EXPECT_EQ(LoanAnswer::solved, LoanCalc(l));
        EXPECT_EQ(l.Num2, months) << repayment;
        EXPECT_NEAR(l.Num4, raised, 1e-9) << repayment;
        EXPECT_EQ(l.Num1, 100000);
    }
}

TEST(Loans, ThePeriodIsThatOfSteppingBitForBit) {
    Clients clients;
    int solved = 0;
    for (int i = 0; i < 1500; ++i) {
        const double rate = clients.rate(), months = clients.whole(2, 600);
        const double principal = clients.money(1, 1e12 * months / 600);
        const double repayment = calculators::repaymentFor(principal, months, rate) + clients.between(-2, 2);
        Loans l{"Repayment period", principal, 0, rate, std::floor(repayment * 100) / 100};
        // Every fourth principal is made from the repayment: it is met to the last digit, and nothing is raised.
        if (i % 4 == 0) l.Num1 = calculators::principalFor(l.Num4 - 0.01, months, rate);
        Loans stepped = l;
        stepped.Num4 -= 0.01;
        LoanCalc(l);
        if (!stepping::PER(stepped, 5000)) continue; // too many cents for a test
        ++solved;
        EXPECT_TRUE(sameBits(l, stepped)) << principal << " " << rate << " " << repayment;
    }
    EXPECT_GT(solved, 800);
}

TEST(Loans, MillionsOfCentsAreCountedAsIfAdded) {
    // over several powers of two, from below 0, and where a cent is only half the distance between doubles
    for (const double start : {0.0, 0.013, -3.7, -70000.0, 999.99, 1048575.98, 3e13, -3e13, 6.99e13, 1.2e14}) {
        double sum = start;
        for (int i = 0; i < 3000000; ++i) {
            sum += 0.01;
            if (i % 299993 > 2) continue;
            const auto found = calculators::firstCentThat(start, [sum](double x) { return x >= sum; });
            ASSERT_TRUE(found);
            EXPECT_EQ(bits(*found), bits(sum)) << start << " " << i;
        }
    }
    // adding cent by cent would take 41 000 039 101 additions, nearly a minute
    const auto found = calculators::periodFor(1e9, 12, 6e8);
    EXPECT_EQ(found.months, 1);
    EXPECT_EQ(found.repayment, 0x1.e19b040006776p+29); // 1010000000.0031574
    EXPECT_FALSE(calculators::firstCentThat(1e9, [](double) { return false; }));
}

TEST(Loans, TheRateIsThatOfSteppingBitForBit) {
    Clients clients;
    for (int i = 0; i < 1500; ++i) {
        const double principal = clients.money(0.01, 1e12), months = clients.whole(1, 600);
        // every third rate is exactly on the grid, the others anywhere up to ten thousand percent
        const double rate = i % 3 == 0 ? clients.whole(1, 5000) / 100.0 : std::exp(clients.between(-6, 9.2));
        Loans l{"Interest rate", principal, months, 0, calculators::repaymentFor(principal, months, rate)};
        if (i % 3 == 2) l.Num4 = std::floor(l.Num4 * 100) / 100;
        Loans stepped = l;
        ASSERT_TRUE(stepping::Rate(stepped));
        EXPECT_EQ(LoanCalc(l) == LoanAnswer::rateTooHigh, stepped.Num3 > 50);
        EXPECT_TRUE(sameBits(l, stepped)) << principal << " " << months << " " << rate;
        if (l.Num4 == 0) continue;
        EXPECT_TRUE(l.Num3 < 0.01 || calculators::repaymentFor(principal, months, l.Num3) <= l.Num4 * (1 + 1e-9));
        EXPECT_GT(calculators::repaymentFor(principal, months, l.Num3 + 0.0101), l.Num4);
    }
}

/// All combinations of figures that an old file may hold; `known` gives the third figure besides principal and
/// repayment.
std::vector<Loans> oddLoans(const char* heading, const std::vector<double>& known,
                            const std::vector<double>& repayments) {
    std::vector<Loans> loans;
    for (const double principal : {-1e300, -1000.0, -1e-300, 0.0, 1e-310, 0.4, 1000.0, 1e12, infinite, notANumber})
        for (const double other : known)
            for (const double repayment : repayments)
                loans.push_back({heading, principal, other, other, repayment});
    return loans;
}

TEST(Loans, AnOldFilesPeriodEndsWhereTheSteppingEnds) {
    const std::vector<double> rates{-infinite, -1e16, -3000, -1800, -1200, -12,   -1e-300,  0,
                                    1e-310,    1e-15, 0.3,   50,    1e9,   1e300, infinite, notANumber};
    for (Loans l : oddLoans("Repayment period", rates, {-12, 0.01, 12, 1e9, 2e14, infinite, notANumber})) {
        Loans stepped = l;
        stepped.Num4 -= 0.01;
        const double repayment = stepped.Num4;
        LoanCalc(l);
        if (stepping::PER(stepped, 2000)) {
            EXPECT_TRUE(sameBits(l, stepped));
        } else if (l.Num2 == 0) { // no number of cents clears it
            EXPECT_EQ(bits(l.Num4), bits(repayment));
        } else {
            EXPECT_GE(calculators::principalFor(l.Num4, l.Num2, l.Num3), l.Num1);
            EXPECT_LT(calculators::principalFor(l.Num4 - 0.01, l.Num2, l.Num3), l.Num1);
        }
    }
}

TEST(Loans, AnOldFilesRateEndsWhereTheSteppingEnds) {
    const std::vector<double> months{-infinite, -120, -0.3, 0, 1e-15, 0.4, 1, 240, 1e16, notANumber};
    for (Loans l : oddLoans("Interest rate", months, {-12, 12, infinite, notANumber})) {
        Loans stepped = l;
        const bool above = LoanCalc(l) == LoanAnswer::rateTooHigh;
        if (stepping::Rate(stepped)) {
            EXPECT_TRUE(sameBits(l, stepped)) << l.Num1 << " " << l.Num2 << " " << l.Num4;
        } else {
            EXPECT_TRUE(above);
            EXPECT_EQ(l.Num3, calculators::unsolvableRate);
        }
    }
}

TEST(Loans, AmortisationIsThatOfSteppingBitForBit) {
    Clients clients;
    for (int i = 0; i < 300; ++i) {
        Loans l{"", clients.money(1, 1e12), i < 40 ? i : clients.whole(1, 1000) * 1.0, clients.rate(), 0};
        calculators::RPAYMENT(l);
        l.Num4 += clients.between(-1, 1); // as after solving the period: not the formula's repayment
        const auto table = calculators::CalcAnnAmort(l);
        const auto stepped = stepping::CalcAnnAmort(l);
        const auto same = [](const std::vector<double>& expected, const auto& column) {
            return std::equal(expected.begin() + 1, expected.end(), column.begin() + 1,
                              [](double a, double b) { return bits(a) == bits(b); });
        };
        EXPECT_TRUE(same(stepped.MonthCapital, table.MonthCapital));
        EXPECT_TRUE(same(stepped.MonthInterest, table.MonthInterest));
        EXPECT_TRUE(same(stepped.YearCapital, table.YearCapital));
        EXPECT_TRUE(same(stepped.YearInterest, table.YearInterest));
        std::vector<double> balances = stepped.MonthBalance;
        if (table.AmortShape == 2) balances[stepped.YearCapital.size() - 1] = balances.back();
        EXPECT_TRUE(same(balances, table.MonthBalance)) << l.Num2;
        EXPECT_EQ(table.years(), static_cast<int>(stepped.YearCapital.size()) - 1);
    }
}

TEST(Loans, AmortisationRows) {
    // months; then rows of months and of years, the shape, and whole years
    const std::tuple<double, int, int, int, int> cases[] = {
        {240, 240, 20, 1, 20}, {25, 25, 3, 2, 2},        {12, 12, 1, 1, 1},        {5, 5, 1, 2, 0},
        {0, 0, 0, 1, 0},       {1200, 1000, 84, 2, 83},  {-7, 0, 0, 1, 0},         {24.5, 24, 2, 1, 2},
        {25.5, 26, 3, 2, 2},   {1e300, 1000, 84, 2, 83}, {notANumber, 0, 0, 1, 0}, {infinite, 1000, 84, 2, 83},
    };
    for (const auto& [months, monthRows, yearRows, shape, wholeYears] : cases) {
        const auto table = calculators::annualAmortisation({100000, months, 12, 5000});
        EXPECT_EQ(calculators::monthRows(calculators::monthlyAmortisation({100000, months, 12})).size(), monthRows);
        EXPECT_EQ(calculators::yearRows(table).size(), yearRows) << months;
        EXPECT_EQ(table.AmortShape, shape) << months;
        EXPECT_EQ(table.AmortYears, wholeYears) << months;
    }
}

TEST(Loans, ThePartYearTakesWhatIsLeft) {
    // 25 months at 12 %: the formula's repayment is 4 540.675; 5 000 was agreed, which shows in the last year's
    // interest
    const auto years = calculators::yearRows(calculators::annualAmortisation({100000, 25, 12, 5000}));
    ASSERT_EQ(years.size(), 3U);
    EXPECT_EQ(years[2].number, 3);
    EXPECT_DOUBLE_EQ(years[2].capital, 100000 - (years[0].capital + years[1].capital));
    EXPECT_NEAR(years[2].capital, 4540.675 / 1.01, 0.001);
    EXPECT_DOUBLE_EQ(years[2].interest, 25000 - (years[0].interest + years[1].interest));
    EXPECT_NEAR(years[2].balance, 0, 1e-6);
}

} // namespace
