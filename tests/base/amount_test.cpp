#include "base/amount.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using base::readAmount;

TEST(Amount, reads) {
    constexpr int whole = 0, money = 2, rate = 3;
    const struct {
        const char* typed;
        int places;
        double figure;
    } cases[] = {
        {"1250000", money, 1250000},
        {"  ", money, 0},
        {"", money, 0},
        {"-0", money, 0},
        {".5", money, 0.5},
        {"5.", money, 5},
        {"+7", money, 7},
        {"1 250 000.50", money, 1250000.5},
        // blanks of every width, apostrophes, units, signs
        {"1\u00A0250\u202F000\u2009000,5", money, 1250000000.5},
        {"1'250'000.50", money, 1250000.5},
        {"1’250’000", money, 1250000},
        {"R 1 250 000,50", money, 1250000.5},
        {"1 250R", money, 1250},
        {"r12.5", money, 12.5},
        {"12,5%", rate, 12.5},
        {"% 9", rate, 9},
        {"-R 250", money, -250},
        {"R-250", money, -250},
        {"\u2212R\u00A0250\u00A0000", money, -250000},
        {"\t3500.25\r\n", money, 3500.25},
        // of two kinds the last is the decimal sign, twice the same parts thousands
        {"1,250,000.50", money, 1250000.5},
        {"1.250.000,50", money, 1250000.5},
        {"1,250.000", money, 1250},
        {"1,250,000", money, 1250000},
        {"1.250.000", money, 1250000},
        {"12,345,678", rate, 12345678},
        // a single one
        {"6,000", money, 6000},
        {"25,000", whole, 25000},
        {"650,000", money, 650000},
        {"-1,250", money, -1250},
        {"6,125", rate, 6.125},
        {"1,250", 4, 1.25},
        {"0,125", money, 0.125},
        {"1250,000", money, 1250},
        {"1,25", money, 1.25},
        {"1,2500", money, 1.25},
        {",125", money, 0.125},
        {"1.250", money, 1.25},
        {"6.000", whole, 6},
        {"12,5", whole, 12.5},
        // sums, with = alone
        {"=1000*12", money, 12000},
        {"= 2 + 3 * (4 - 1) / 2", money, 6.5},
        {"=-(5--2)", money, -7},
        {"=R1,250,000.50+,5", money, 1250001},
        {"=6,000/3", money, 2000},
        {"=6,125*2", rate, 12.25},
        {"=10/4/5", money, 0.5},
        {"=1\u22122", money, -1},
        {"=-0", money, 0},
        {"123456789012345678901234", money, 123456789012345678901234.0},
    };
    for (const auto& c : cases) {
        const auto reading = readAmount(c.typed, c.places);
        ASSERT_TRUE(reading.figure) << c.typed << ": " << reading.why;
        EXPECT_EQ(*reading.figure, c.figure) << c.typed;
        EXPECT_FALSE(*reading.figure == 0 && std::signbit(*reading.figure)) << c.typed;
    }
}

TEST(Amount, refusesWithTheReasonAndWhatIsUnderstood) {
    const std::string many(201, '1');
    const struct {
        std::string typed, why;
    } cases[] = {
        {"1.2.3", "groups of three"},
        {"1,25,000", "groups of three"},
        {"1,2.3", "groups of three"},
        {"1250,000.50", "groups of three"},
        {"1,250.5,0", "groups of three"},
        {"1.2,5.345,0", "groups of three"},
        {",250,000", "groups of three"},
        {"1,250,", "groups of three"},
        {"1e6", "“1e6” can't be read"},
        {"12a", "can't be read"},
        {"-", "can't be read"},
        {".", "can't be read"},
        {"R", "can't be read"},
        {"--5", "="},
        {"inf", "can't be read"},
        {"\u0663", "can't be read"},
        {"1000*12", "put ="},
        {"10+5", "put ="},
        {"5-", "put ="},
        {"(250)", "put ="},
        {"100\t200", "several figures"},
        {"1\n2", "several figures"},
        {"=", "can't be worked out"},
        {"=1+", "can't be worked out"},
        {"=(1", "bracket"},
        {"=1)", "can't be worked out"},
        {"=2(3)", "can't be worked out"},
        {"=12%", "can't be worked out"},
        {"=1e3", "can't be worked out"},
        {"=5/0", "divide by 0"},
        {"=5/(2-2)", "divide by 0"},
        {"=1.2.3*2", "groups of three"},
        {many, "too long"},
        {"=" + std::string(150, '(') + "1", "bracket"},
    };
    for (const auto& c : cases) {
        const auto reading = readAmount(c.typed, 2);
        EXPECT_FALSE(reading.figure) << c.typed;
        EXPECT_NE(reading.why.find(c.why), std::string::npos) << c.typed << ": " << reading.why;
        EXPECT_NE(reading.why.find("1 250 000.50"), std::string::npos) << "what is understood";
    }
}

} // namespace
