#include "base/amount.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using base::readAmount;

TEST(Amount, reads) {
    constexpr int whole = 0, money = 2, rate = 3;
    const struct {
        double figure;
        int places;
        std::vector<const char*> typed;
    } cases[] = {
        {0, money, {"  ", "", "-0", "=-0"}},
        {0.5, money, {".5", "=10/4/5"}},
        {7, money, {"+7"}},
        // blanks of every width, apostrophes, units, signs
        {1250000, money, {"1250000", "1’250’000", "1,250,000", "1.250.000"}},
        {1250000.5, money, {"1 250 000.50", "1'250'000.50", "R 1 250 000,50", "1,250,000.50", "1.250.000,50"}},
        {1250000000.5, money, {"1\u00A0250\u202F000\u2009000,5"}},
        {12.5, money, {"r12.5"}},
        {9, rate, {"% 9"}},
        {-250, money, {"-R 250", "R-250"}},
        {-250000, money, {"\u2212R\u00A0250\u00A0000"}},
        {3500.25, money, {"\t3500.25\r\n"}},
        // of two kinds the last is the decimal sign, twice the same parts thousands; then a single one
        {1250, money, {"1 250R", "1,250.000", "1250,000"}},
        {12345678, rate, {"12,345,678"}},
        {6000, money, {"6,000"}},
        {25000, whole, {"25,000"}},
        {-1250, money, {"-1,250"}},
        {6.125, rate, {"6,125"}},
        {1.25, 4, {"1,250"}},
        {0.125, money, {"0,125", ",125"}},
        {1.25, money, {"1,25", "1,2500", "1.250"}},
        {5, money, {"5."}},
        {6, whole, {"6.000"}},
        {12.5, whole, {"12,5"}},
        {12.5, rate, {"12,5%"}},
        // sums, only with =
        {12000, money, {"=1000*12"}},
        {6.5, money, {"= 2 + 3 * (4 - 1) / 2"}},
        {-7, money, {"=-(5--2)"}},
        {1250001, money, {"=R1,250,000.50+,5"}},
        {2000, money, {"=6,000/3"}},
        {12.25, rate, {"=6,125*2"}},
        {-1, money, {"=1\u22122"}},
        {123456789012345678901234.0, money, {"123456789012345678901234"}},
    };
    for (const auto& [figure, places, all] : cases)
        for (const char* typed : all) {
            const auto reading = readAmount(typed, places);
            ASSERT_TRUE(reading.figure) << typed << ": " << reading.why;
            EXPECT_EQ(*reading.figure, figure) << typed;
            EXPECT_FALSE(*reading.figure == 0 && std::signbit(*reading.figure)) << typed;
        }
}

TEST(Amount, refusesWithTheReasonAndWhatIsUnderstood) {
    const struct {
        const char* why;
        std::vector<std::string> typed;
    } cases[] = {
        {"groups of three", {"1.2.3", "1,25,000", "1,2.3", "1250,000.50", "1,250.5,0", "1.2,5.345,0", ",250,000"}},
        {"groups of three", {"1,250,", "=1.2.3*2"}},
        {"“1e6” can't be read", {"1e6"}},
        {"can't be read", {"12a", "-", ".", "R", "inf", "\u0663"}},
        {"type =", {"1000*12", "10+5", "5-", "(250)", "--5"}},
        {"not several", {"100\t200", "1\n2"}},
        {"can't be calculated", {"=", "=1+", "=1)", "=2(3)", "=12%", "=1e3"}},
        {"bracket", {"=(1", "=" + std::string(150, '(') + "1"}},
        {"divide by 0", {"=5/0", "=5/(2-2)"}},
        {"too long", {std::string(201, '1')}},
    };
    for (const auto& [why, all] : cases)
        for (const std::string& typed : all) {
            const auto reading = readAmount(typed, 2);
            EXPECT_FALSE(reading.figure) << typed;
            EXPECT_NE(reading.why.find(why), std::string::npos) << typed << ": " << reading.why;
            EXPECT_NE(reading.why.find("1 250 000.50"), std::string::npos) << "what is understood";
        }
}

} // namespace
