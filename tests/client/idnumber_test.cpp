#include <gtest/gtest.h>

#include "base/day.h"
#include "client/idnumber.h"

namespace {

constexpr double today = 46349; // 23 November 2026

TEST(IDNumber, IsCheckedOfferedAndComparedAndOthersPass) {
    const char* const wrong = "The check digit does not fit: please compare the ID number.";
    const char* const noDate = "The ID number does not begin with a date of birth.";
    for (const auto& [number, birth, remark, offered] : {
             std::tuple{"8001015009087", "01/01/1980", "", ""},
             {" 800101 5009 087 ", "01/01/1980", "", ""},
             {"8001015009087", "", "Born on 01/01/1980 by the ID number.", "01/01/1980"},
             {"8001015009087", "02/01/1980", "By the ID number the date of birth is 01/01/1980.", ""},
             {"8001015009078", "01/01/1980", wrong, ""}, // two digits swapped
             {"8001015009088", "", wrong, ""},           // offers no date
             {"0002295000083", "", "Born on 29/02/2000 by the ID number.", "29/02/2000"},
             {"0002295000083", "29/02/2000", "", ""},
             {"0102295000081", "", noDate, ""}, // neither 2001 nor 1901 had such a day
             {"2611235000082", "", "Born on 23/11/2026 by the ID number.", "23/11/2026"},
             {"2611245000080", "", "Born on 24/11/1926 by the ID number.", "24/11/1926"}, // the day after today
             {"0404045000084", "04/04/1904", "", ""},                                     // aged 122, if so entered
             {"8013015009082", "01/03/1980", noDate, ""},
             {"800101500908", "02/01/1980", "", ""}, // not complete yet
             {"A001015009087", "02/01/1980", "", ""},
             {"", "", "", ""},
         }) {
        const auto check = client::checkIDNumber(number, base::parseDate(birth).value_or(base::NoDate), today);
        EXPECT_EQ(check.remark, remark) << number;
        EXPECT_EQ(check.offered, base::parseDate(offered)) << number;
    }
}

TEST(IDNumber, AnUnlikelyDateOfBirthGetsARemark) {
    const double years120 = 121 * 365.25 - 0.25; // the last day at the age of 120
    EXPECT_EQ(client::birthRemark(today + 1, today), "Born in the future ?");
    EXPECT_EQ(client::birthRemark(today - years120, today), "");
    EXPECT_EQ(client::birthRemark(today - years120 - 1, today), "More than 120 years old ?");
    for (const double fine : {today, base::NoDate, base::blankDate})
        EXPECT_EQ(client::birthRemark(fine, today), "");
}

} // namespace
