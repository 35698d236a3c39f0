#include "base/numberformat.h"

#include <gtest/gtest.h>

namespace {

struct MaskCase {
    double value;
    const char* mask;
    const char* printed;
};

TEST(NumberFormat, PrintsByMask) {
    const MaskCase cases[] = {
        {1234567.891, "# ### ### ###.00", "1 234 567.89"},
        {0, "# ### ### ###.00", ".00"},
        {0.5, "# ### ### ###.00", ".50"},
        {-1234.5, "# ### ### ##0.00", "-1 234.50"},
        {-0.001, "0.00", "0.00"}, // no sign before a nought
        {0, "### ### ###", ""},
        {0.4, "### ### ###", ""},
        {2.5, "### ### ###", "2"}, // ties to even
        {3.5, "### ### ###", "4"},
        {12345678901234, "### ### ###", "12 345 678 901 234"}, // groups without limit
        {12.5, "##.##", "12.5"},
        {12, "##.##", "12"},
        {7.25, "0.000", "7.250"},
        {240, "##", "240"},
        {1234.5, "R # ##0.00", "R 1 234.50"},
    };
    for (const MaskCase& c : cases)
        EXPECT_EQ(base::formatNumber(c.value, c.mask), c.printed) << c.value << ' ' << c.mask;
}

TEST(NumberFormat, ReadsWhatIsTyped) {
    EXPECT_EQ(base::parseNumber("1 234 567,89"), 1234567.89);
    EXPECT_EQ(base::parseNumber(" -0.25 "), -0.25);
    EXPECT_EQ(base::parseNumber("1\u00A0000"), 1000);
    EXPECT_EQ(base::parseNumber(".5"), 0.5);
    for (const char* wrong : {"", " ", "-", "1.2.3", "1,234,567", "1e5", "inf", "12a", "5-", "0x10"})
        EXPECT_FALSE(base::parseNumber(wrong)) << wrong;
    EXPECT_EQ(base::Val("65 years"), 65);
    EXPECT_EQ(base::Val("years"), 0);
}

} // namespace
