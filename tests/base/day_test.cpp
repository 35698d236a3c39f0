#include "base/day.h"

#include <gtest/gtest.h>

namespace {

TEST(Day, NumbersCountFromTheEndOf1899) {
    EXPECT_EQ(base::dayNumber(1899, 12, 30), 0);
    EXPECT_EQ(base::dayNumber(1800, 1, 1), base::blankDate);
    EXPECT_EQ(base::dayNumber(2026, 3, 1), 46082);
    EXPECT_EQ(base::dayNumber(2027, 2, 28), 46446);
    EXPECT_FALSE(base::dayNumber(2026, 2, 29));
    for (double day = -36523; day < 80000; day += 97)
        EXPECT_EQ(base::parseDate(base::formatDate(day)), day) << base::formatDate(day);
}

TEST(Day, ReadsADateAsTyped) {
    EXPECT_EQ(base::parseDate("1/3/2026"), 46082);
    EXPECT_EQ(base::parseDate(" 01-03-26 "), 46082);
    EXPECT_EQ(base::parseDate("1.3.2026"), 46082);
    EXPECT_EQ(base::formatDate(*base::parseDate("5/6/30")), "05/06/1930");
    EXPECT_EQ(base::formatDate(*base::parseDate("5/6/29")), "05/06/2029");
    for (const char* wrong : {"", "13/13/2026", "3/2026", "2026/03/01", "1/2/203", "31/4/2026", "a/b/c", "1/3/26/"})
        EXPECT_FALSE(base::parseDate(wrong)) << wrong; // day and month are never swapped to make sense of it
}

TEST(Day, ReportsAndScreensDrawTheLineOfNoDateADayApart) {
    EXPECT_FALSE(base::isShownOnScreen(base::blankDate));
    EXPECT_FALSE(base::isShownOnScreen(base::NoDate));
    EXPECT_TRUE(base::isShownOnScreen(-36521));
    EXPECT_EQ(base::reportDate(-36521), " ");
    EXPECT_EQ(base::reportDate(-36520), "03/01/1800");
    EXPECT_EQ(base::reportDate(base::NoDate), " ");
}

} // namespace
