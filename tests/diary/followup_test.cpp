#include "diary/followup.h"

#include "base/day.h"
#include "datastore/datastore_support.h"

namespace {

using namespace diary;
using datastoretest::rowsOf;

double on(int year, int month, int day) { return *base::dayNumber(year, month, day); }

std::string day(double number) { return number == base::NoDate ? "-" : base::formatDate(number); }
std::string shown(const std::vector<FoundClient>& found) {
    std::string text;
    for (const FoundClient& each : found)
        text += each.ClientName + "|" + each.other + "|" + each.IDNumber + "|" + day(each.BirthDate) + "|" +
                day(each.ReviewDate) + "\n";
    return text;
}

class FollowUp : public datastoretest::ClientFileTest {};

TEST_F(FollowUp, FindsReviewsByAnalysisAndRange) {
    // Eight review dates a client, each 100 days after the one before; the second client has no date of birth.
    folder.run("Data.Mdb",
               "INSERT INTO [Data] (DCLNO, Name, BirthDate, IDNumber, DTHLastReview, DTHNextReview, "
               "DISALastReview, DISANextReview, NaraLastReview, NaraNextReview, EducLastReview, "
               "EducNextReview) VALUES (1, 'Mr Z O''Brien', -400, '99', 46000, 46100, 46200, 46300, 46400, "
               "46500, 46600, 46700), (2, 'mrs A Êksteen', -36522, NULL, 46010, 46110, 46210, 46310, 46410, "
               "46510, 46610, 46710), (3, NULL, NULL, '', NULL, -36522, 0, 0, 0, 0, 0, 0)");
    ReviewSearch search;
    EXPECT_EQ(shown(searchReviews(file, search)), "|||-|-\nMr Z O'Brien||99|25/11/1898|-\nmrs A Êksteen||"
                                                  "|-|-\n");
    EXPECT_EQ(in("SELECT [BirthDate] FROM DBSearch"), "-400\n-693959\n");
    search.byDate = true; // everyone has no review date to be ordered by
    EXPECT_EQ(searchReviews(file, search).at(1).ClientName, "Mr Z O'Brien");

    const std::string ann = "mrs A Êksteen|||-|", zak = "Mr Z O'Brien||99|25/11/1898|";
    for (int analysis = 0; analysis < 4; ++analysis)
        for (int next = 0; next < 2; ++next) {
            const double date = 46000 + 200 * analysis + 100 * next;
            search = {next == 1 ? ReviewScope::nextReview : ReviewScope::lastReviewed,
                      static_cast<NeedsAnalysis>(analysis), date, date + 10, false};
            EXPECT_EQ(shown(searchReviews(file, search)),
                      zak + day(date) + "\n" + ann + day(date + 10) + "\n"); // both ends, by name
            search.start = date + 1;
            EXPECT_EQ(shown(searchReviews(file, search)), ann + day(date + 10) + "\n");
        }
    folder.run("Data.Mdb", "UPDATE [Data] SET DTHLastReview=46009 WHERE DCLNO=2; UPDATE [Data] SET "
                           "DTHLastReview=46010 WHERE DCLNO=1");
    search = {ReviewScope::lastReviewed, NeedsAnalysis::death, 46000, 46010, true};
    EXPECT_EQ(shown(searchReviews(file, search)), ann + day(46009) + "\n" + zak + day(46010) + "\n");
    search.end = base::NoDate;
    EXPECT_TRUE(searchReviews(file, search).empty());
    EXPECT_EQ(in("SELECT count(*) FROM DBSearch"), "0");
}

TEST_F(FollowUp, FindsBirthdaysByMonthAndAge) {
    const double today = on(2026, 11, 24);
    const BirthRange range = birthRange(today, 30, 50);
    EXPECT_EQ(range.to, today - 10957); // 30 years are 10957.5 days
    EXPECT_EQ(range.from, today - 18262);
    const auto date = [](int year, int month, int day) { return std::to_string(on(year, month, day)); };
    folder.run("Data.Mdb",
               "INSERT INTO PersDetails (DCLNO, Name, CLName, BirthDate, IDNumber, STitle, SInit, SLName, SDOB, DEP1, "
               "DEPDOB1, DEP2, DEPDOB2, DEP8, DEPDOB8) VALUES (1, 'Mr Z Adams', 'Adams', " +
                   date(1980, 2, 29) + ", 'id1', 'Mrs', 'Q', 'O''Brien', " + date(1899, 12, 1) + ", 'Kim', " +
                   date(2010, 2, 1) + ", 'Lee', -36522, 'Max', " + date(2015, 2, 28) +
                   "), (2, 'Ms B Êksteen', 'Êksteen', " + date(1890, 2, 28) + ", 'id2', NULL, NULL, 'Êksteen', " +
                   date(1990, 12, 31) + ", 'Ann', " + date(2012, 3, 1) + ", '', NULL, 'Bob', " + date(2009, 2, 14) +
                   "), (3, 'Mr C Daku', 'Daku', -36522, '', '', '', '', NULL, '', NULL, '', NULL, '', NULL)");
    const auto found = [&](const BirthdaySearch& search) { return shown(searchBirthdays(file, search, today)); };
    EXPECT_EQ(found({Born::clients, 2, 0, 150}), "Mr Z Adams||id1|29/02/1980|-\nMs B Êksteen||id2|28/02/1890|-\n");
    EXPECT_EQ(found({Born::clients, 2, 0, 150, true}),
              "Ms B Êksteen||id2|28/02/1890|-\nMr Z Adams||id1|29/02/1980|-\n");
    EXPECT_EQ(found({Born::clients, 2}), "Mr Z Adams||id1|29/02/1980|-\n"); // ages 0 to 120
    EXPECT_EQ(found({Born::clients, 1, 0, 150}), "");                       // 1 January 1800 is no date of birth
    EXPECT_EQ(found({Born::spouses, 12, 0, 150}), "Mr Z Adams|Mrs Q O'Brien|id1|01/12/1899|-\n"
                                                  "Ms B Êksteen|  Êksteen|id2|31/12/1990|-\n");
    EXPECT_EQ(found({Born::dependants, 2, 0, 150, true}), "Ms B Êksteen|Bob|id2|14/02/2009|-\n"
                                                          "Mr Z Adams|Kim|id1|01/02/2010|-\n"
                                                          "Mr Z Adams|Max|id1|28/02/2015|-\n");
    EXPECT_EQ(rowsOf(file, "SELECT [NameOrder], [Dependant] FROM DBSearch"), "Adams|Kim\nAdams|Max\nÊksteen|Bob");
    // Ages are counted in days: who was born on the last day of the range is in it, a day earlier is not.
    for (const auto& [born, in] :
         {std::pair{range.from - 1, false}, {range.from, true}, {range.to, true}, {range.to + 1, false}}) {
        folder.run("Data.Mdb", "UPDATE PersDetails SET BirthDate=" + std::to_string(born) + " WHERE DCLNO=1");
        EXPECT_EQ(searchBirthdays(file, {Born::clients, base::calendarDate(born)->month, 30, 50}, today).size(),
                  in ? 1U : 0U);
    }
}

TEST_F(FollowUp, LeavesTheLastSearchIfItFails) {
    folder.run("Data.Mdb", "INSERT INTO DBSearch ([Client Name]) VALUES ('before'); CREATE TRIGGER stop AFTER INSERT "
                           "ON DBSearch BEGIN SELECT RAISE(ABORT, 'no'); END; INSERT INTO [Data] (DCLNO, BirthDate) "
                           "VALUES (1, -36522)");
    EXPECT_NE(datastoretest::errorOf([&] { searchReviews(file, {}); }), 0);
    EXPECT_EQ(in("SELECT [Client Name] FROM DBSearch"), "before");
}

TEST_F(FollowUp, FeedsTheSchedules) {
    const std::vector<FoundClient> found{{"Mr Z O'Brien", "Kim", "id1", 29000, 46010},
                                         {"Ms B", "", "", base::NoDate, base::NoDate}};
    const auto header = [&] { return rowsOf(folder / "Print.mdb", "SELECT * FROM AllDetailsHeader"); };
    const auto rows = [&] { return rowsOf(folder / "Print.mdb", "SELECT * FROM AllDetails"); };
    const ReviewSearch last{ReviewScope::lastReviewed, NeedsAnalysis::death, 46000, 46100};
    EXPECT_EQ(feedReviews(folder / "Print.mdb", last, found).definition, "\\FindCust.rpt");
    EXPECT_EQ(header(), "Schedule of Customers Last Reviewed between 09/12/2025 and 19/03/2026|Client Name|Date Of "
                        "Birth|ID Number|Review Date");
    EXPECT_EQ(rows(), "1|Mr Z O'Brien|25/05/1979|id1|19/12/2025\n2|Ms B| || ");
    EXPECT_EQ(reviewHeading({ReviewScope::nextReview, NeedsAnalysis::death, 46000, 46100}),
              "Schedule of Customers To Be Reviewed Next between 09/12/2025 and 19/03/2026");
    feedReviews(folder / "Print.mdb", {}, {});
    EXPECT_EQ(header(), "Schedule of entire database.|Client Name|Date Of Birth|ID Number|");
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(feedBirthdays(folder / "Print.mdb", {Born::dependants, 2}, found).definition, "\\FndBirth.rpt");
    EXPECT_EQ(header(), "Schedule of Dependants Birthdays.|Dependant|Date Of Birth|Client Name|");
    EXPECT_EQ(rows(), "1|Kim|25/05/1979|Mr Z O'Brien|\n2|| |Ms B|");
    feedBirthdays(folder / "Print.mdb", {Born::spouses, 2}, found);
    EXPECT_EQ(header(), "Schedule of Spouses Birthdays.|Spouse|Date Of Birth|Client Name|");
    feedBirthdays(folder / "Print.mdb", {Born::clients, 2}, found);
    EXPECT_EQ(header(), "Schedule of Client Birthdays.|Client Name|Date Of Birth|ID Number|");
    EXPECT_EQ(rows(), "1|Mr Z O'Brien|25/05/1979|id1|\n2|Ms B| ||");
}

} // namespace
