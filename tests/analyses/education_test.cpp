#include "analyses/education.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using analyses::EducationAnalysis;
using analyses::NAEdCalc;
using assessment::NAEducation;

/// A slow reference for the analysis: one step after the other, every run from the beginning.
struct Stepped {
    double FundsFV, CapitalTried = 0, solved = 0;
    int YearsCovered = 0;
    double CapitalByYear[52] = {}, InterestByYear[52] = {}, RequiredByYear[52] = {};

    explicit Stepped(const NAEducation& needs) : FundsFV(needs.FundsPD) {
        for (int year = 0; year < needs.YearsToEdu; ++year)
            FundsFV = FundsFV * needs.InflationEDU / 100 + FundsFV;
        FundsFV = std::floor(FundsFV);
        project(needs);
        if (YearsCovered >= needs.FundsForYears) return;
        do {
            CapitalTried += 100;
            project(needs);
        } while (YearsCovered < needs.FundsForYears);
        solved = CapitalTried;
    }

    void project(const NAEducation& needs) {
        if (CapitalTried < FundsFV) YearsCovered = 0;
        if (CapitalTried <= FundsFV) return;
        int y = YearsCovered = 1;
        CapitalByYear[1] = CapitalTried;
        RequiredByYear[1] = FundsFV;
        InterestByYear[1] = std::floor(CapitalTried * needs.BankRate / 100);
        while (y < 51) {
            ++y;
            CapitalByYear[y] =
                CapitalByYear[y - 1] + CapitalByYear[y - 1] * needs.BankRate / 100 - RequiredByYear[y - 1];
            InterestByYear[y] = CapitalByYear[y] * needs.BankRate / 100;
            RequiredByYear[y] = RequiredByYear[y - 1] + RequiredByYear[y - 1] * needs.InflationEDU / 100;
            if (RequiredByYear[y] > CapitalByYear[y] + InterestByYear[y]) break;
        }
        YearsCovered = y - 1;
    }
};

TEST(Education, FastSearchGivesTheAnswersOfPlainSteppingBitForBit) {
    std::mt19937_64 random{20261123};
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    int searched = 0;
    for (int number = 0; number < 3000; ++number) {
        NAEducation needs;
        needs.FundsPD = pick(-100, 20000) + pick(0, 3) / 4.0;
        needs.InflationEDU = pick(-5, 12) + pick(0, 7) / 8.0;
        needs.YearsToEdu = pick(0, 25);
        needs.FundsForYears = pick(0, 20) / 2.0;
        needs.BankRate = pick(0, 3) * pick(0, 16) + pick(0, 7) / 8.0;
        const EducationAnalysis fast = NAEdCalc(needs);
        const Stepped plain(needs);
        ASSERT_EQ(fast.FundsFV, plain.FundsFV) << number;
        ASSERT_EQ(fast.CapitalTried, plain.solved) << number;
        if (plain.solved == 0) continue;
        ++searched;
        ASSERT_EQ(fast.run.YearsCovered, plain.YearsCovered) << number;
        for (std::size_t year = 1; year <= static_cast<std::size_t>(plain.YearsCovered) + 1; ++year) {
            ASSERT_EQ(fast.run.CapitalByYear[year], plain.CapitalByYear[year]) << number << " " << year;
            ASSERT_EQ(fast.run.InterestByYear[year], plain.InterestByYear[year]) << number << " " << year;
            ASSERT_EQ(fast.flows.RequiredByYear[year], plain.RequiredByYear[year]) << number << " " << year;
        }
    }
    EXPECT_GT(searched, 2000);
}

TEST(Education, SentencesToTheLetter) {
    struct Case {
        NAEducation needs; // cost today, inflation, years to it, years of it, bank rate
        double atStart;
        std::string answer, onPaper;
        std::size_t rows;
        int points;
    };
    const auto takes = [](std::string amount) { return amount + " capital required to invest to provide funds."; };
    const auto paper = [](std::string amount) { return amount + " required to invest to provide funds."; };
    const std::string error = "   Error", negative = "Cannot compute unless monthly Shortfall is real";
    const Case cases[] = {
        {{10000, 0, 0, 3, 0}, 10000, takes("30 000"), paper("30 000"), 4, 3},
        {{10000, 0, 0, 3, 10}, 10000, takes("24 900"), paper("24 900"), 4, 3}, // 24 868.52: the last year's interest
                                                                               // counts
        {{1000.5, 10, 2, 3, 0}, 1210, takes("4 100"), paper("4 100"), 4, 3},   // 1210 + 1331 + 1464.10
        {{1000, 10, 2.5, 1, 0}, 1210, takes("1 300"), paper("1 300"), 2, 1},   // ties to even: two years
        {{1000, 10, 3.5, 1, 0}, 1464, takes("1 500"), paper("1 500"), 2, 1},
        {{1000, 99, 1, 1, 99}, 1300, takes("1 400"), paper("1 400"), 2, 1}, // 30 and 50 % at most
        {{100, 0, 0, 1, 0}, 100, takes("200"), paper("200"), 2, 1},         // exactly the year's cost is not enough
        {{0, 5, 3, 4, 5}, 0, takes("100"), paper("100"), 5, 4},
        {{0, 5, 3, 0, 5}, 0, "", "", 1, 0},
        {{5000, 0, 0, 0, 0}, 5000, "", "", 1, 0},                              // no years asked for
        {{1000, 0, 0, 80, 0}, 1000, takes("50 000"), paper("50 000"), 50, 50}, // a period from a file
        {{-1000.5, 0, 0, 4, 0}, -1001, negative, negative, 5, 4},
        {{1e14, 0, 0, 10, 0}, 1e14, takes("1 000 000 000 000 000"), paper("1 000 000 000 000 000"), 11, 10},
        {{2e14, 0, 0, 10, 0}, 2e14, error, "", 1, 0}, // needs more than 10^15 rand
        {{1e308, 30, 25, 10, 0}, INFINITY, error, "", 1, 0},
    };
    for (Case c : cases) {
        const EducationAnalysis analysis = NAEdCalc(c.needs);
        const std::string label = std::to_string(c.needs.FundsPD) + " " + std::to_string(c.needs.YearsToEdu);
        EXPECT_EQ(analysis.FundsFV, c.atStart) << label;
        EXPECT_EQ(analysis.txtAns, c.answer) << label;
        EXPECT_EQ(analysis.FundsReq, c.onPaper) << label;
        EXPECT_EQ(analysis.years().size(), c.rows) << label;
        EXPECT_EQ(analysis.points(), c.points) << label;
        EXPECT_LE(c.needs.InflationEDU, 30) << label;
        EXPECT_LE(c.needs.BankRate, 50) << label;
    }
}

} // namespace
