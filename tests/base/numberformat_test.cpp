#include "base/numberformat.h"

#include <gtest/gtest.h>

namespace {

TEST(NumberFormat, PrintsByMask) {
    struct Case {
        double value;
        const char *mask, *printed;
    };
    for (const auto& [value, mask, printed] : {
             Case{1234567.891, "# ### ### ###.00", "1 234 567.89"},
             {0, "# ### ### ###.00", ".00"},
             {0.5, "# ### ### ###.00", ".50"},
             {-1234.5, "# ### ### ##0.00", "-1 234.50"},
             {-0.001, "0.00", "0.00"}, // no sign before 0
             {0, "### ### ###", ""},
             {0.4, "### ### ###", ""},
             {2.5, "### ### ###", "2"}, // ties to even
             {3.5, "### ### ###", "4"},
             {12345678901234, "### ### ###", "12 345 678 901 234"}, // groups without limit
             {12.5, "##.##", "12.5"},
             {12, "##.##", "12"},
             {-250000, "R # ### ##0", "-R 250 000"}, // the sign comes before the R
             {-0.4, "R # ##0", "R 0"},
             {0.123, "#0.0%", "12.3%"},
             {-0.055, "#0.0%", "-5.5%"},
             {0.145, "0%", "14%"}, // a tie in decimal digits
             {0.155, "0%", "16%"},
             {5e-324, "0.0%", "0.0%"},
             {1e308, "0%", ""},         // no figure, as it is too large for a double
             {12.3, "0.0 %", "12.3 %"}, // already percent
         })
        EXPECT_EQ(base::formatNumber(value, mask), printed) << value << ' ' << mask;
}

} // namespace
