#include "base/day.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(Day, NumbersCountFromTheEndOf1899) {
    EXPECT_EQ(base::dayNumber(1899, 12, 30), 0);
    EXPECT_EQ(base::dayNumber(1800, 1, 1), base::blankDate);
    EXPECT_EQ(base::dayNumber(2026, 3, 1), 46082);
    EXPECT_EQ(base::dayNumber(2027, 2, 28), 46446);
    EXPECT_FALSE(base::dayNumber(2026, 2, 29));
    for (double day = -36523; day < 80000; day += 97)
        EXPECT_EQ(base::parseDate(base::formatDate(day)), day) << base::formatDate(day);
    for (const auto& [day, shown] : {std::pair{-693593.0, "01/01/0001"}, {2958465.0, "31/12/9999"}})
        EXPECT_EQ(base::formatDate(day), shown);
    for (const double beyond : {-1e300, base::NoDate, -693594.0, 2958466.0, std::nan("")})
        EXPECT_EQ(base::formatDate(beyond), "") << beyond;
}

TEST(Day, ReadsADateAsTyped) {
    struct Case {
        const char* meant;
        std::vector<const char*> typed;
    };
    for (const auto& [meant, all] :
         {Case{"01/03/2026", {"1/3/2026", " 01-03-26 ", "1.3.2026"}},
          {"28/02/1966", {"28021966", "280266", "28 2 1966", "28 / 2 - 66", "1966-02-28", "1966/2/28"}},
          {"28/02/2026", {"28/2", "28 2"}},
          {"05/06/1930", {"5/6/30"}},
          {"05/06/2029", {"5/6/29"}},
          {"29/02/2024", {"290224"}}})
        for (const char* typed : all)
            EXPECT_EQ(base::formatDate(base::parseDate(typed, 2026).value_or(0)), meant) << typed;
    EXPECT_FALSE(base::parseDate("28/2")) << "no year";
    for (const char* wrong :
         {"", "13/13/2026", "3/2026", "2026/31/01", "1/2/203", "31/4/2026", "a/b/c", "1/3/26/", "29/2", "/1/3", "1//3",
          "2802", "2802196", "19660228", "28021966/", "1/3/026", "001/3/26", "28 2 1966 1"})
        EXPECT_FALSE(base::parseDate(wrong, 2026)) << wrong; // day and month are never swapped
}

TEST(Day, ReportsAndScreensDifferByADayInWhatIsNoDate) {
    EXPECT_FALSE(base::isShownOnScreen(base::blankDate));
    EXPECT_FALSE(base::isShownOnScreen(base::NoDate));
    EXPECT_TRUE(base::isShownOnScreen(-36521));
    EXPECT_EQ(base::reportDate(-36521), " ");
    EXPECT_EQ(base::reportDate(-36520), "03/01/1800");
    EXPECT_EQ(base::reportDate(base::NoDate), " ");
}

} // namespace
