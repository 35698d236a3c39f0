#include "reports/report.h"
#include "screenkit/combofield.h"
#include "screenkit/grid.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

class FollowUpScreens : public testing::Test {
protected:
    FollowUpScreens() {
        run.inClients(
            "INSERT INTO [Data] (DCLNO, Name, BirthDate, IDNumber, EducNextReview) VALUES (1, 'Mr P O''Brien',"
            " 29000, 'id1', 46350), (2, 'Ms A Êksteen', -36522, '', 46340)");
        run.inClients("INSERT INTO PersDetails (DCLNO, Name, CLName, BirthDate, IDNumber, SLName, SDOB, DEP8, DEPDOB8) "
                      "VALUES (1, 'Mr P O''Brien', 'O''Brien', 29000, 'id1', 'Wife', 30000, 'Kim', 43000)");
    }
    std::vector<QStringList> list() { return RunningProgram::cells(run.control<screenkit::Grid>("DBGrid1")); }
    std::string printed() {
        return run.inPrint("SELECT Name FROM AllDetailsHeader") + "\n" +
               run.inPrint("SELECT [Client Name] FROM AllDetails");
    }
    void month(int number) {
        auto* months = run.control<screenkit::ComboField>("Combo1"); // a preview may have the keyboard
        QTest::keyClick(months, Qt::Key_Home);
        for (int down = 1; down < number; ++down)
            QTest::keyClick(months, Qt::Key_Down);
    }
    RunningProgram run;
};

using Lines = std::vector<QStringList>;

TEST_F(FollowUpScreens, ListAndPrintReviewDates) {
    run.menu("mnuReviewDates");
    EXPECT_EQ(run.desk.told([&] { run.click("cmdPrint"); }).text, "No Data found to Print !");
    EXPECT_EQ(run.inClients("SELECT count(*) FROM DBSearch"), "0"); // opening writes nothing
    run.click("cmdSearch");
    EXPECT_EQ(list(), (Lines{{"Mr P O'Brien", "25/05/1979", "id1"}, {"Ms A Êksteen", "", ""}}));
    EXPECT_EQ(run.desk.told([&] { run.menu("mnuBackup"); }).text, // the list shown holds the file
              "Please ensure that all windows in Marlowbeck are closed and try the Backup data option again!");
    run.click("Option3");
    run.click("Option7");
    run.click("cmdSearch"); // without dates
    EXPECT_EQ(list(), Lines{});
    run.type("dtNextRevDateStart", "14/11/2026");
    run.expectRefused("dtNextRevDateEnd", "13/11/2026", "The Minimum Date allowed is 14/11/2026", "Incorrect Date!");
    run.type("dtNextRevDateEnd", "24/11/2026");
    run.expectRefused("dtNextRevDateStart", "25/11/2026", "The Maximum Date allowed is 24/11/2026", "Incorrect Date!");
    run.expectRefused("dtNextRevDateStart", "31/11/2026",
                      "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.", "Incorrect Date!");
    run.type("dtNextRevDateStart", "14/11/2026");
    run.click("Option9");
    run.click("cmdSearch");
    EXPECT_EQ(list(),
              (Lines{{"Ms A Êksteen", "", "", "14/11/2026"}, {"Mr P O'Brien", "25/05/1979", "id1", "24/11/2026"}}));
    EXPECT_EQ(run.shown("txtFound"), "2 found");
    run.click("Option2"); // what is printed is what is shown
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(printed(), "Schedule of Customers To Be Reviewed Next between 14/11/2026 and 24/11/2026\n"
                         "Ms A Êksteen\nMr P O'Brien");
    ASSERT_EQ(run.program.window().workplace().reports.previews().size(), 1U);
    // The other range and the other analyses are fields of their own.
    run.inClients("UPDATE [Data] SET DTHLastReview=40000, DISALastReview=40001, NaraLastReview=40002 WHERE DCLNO=1");
    run.type("dtLastRevDateStart", "05/07/2009");
    run.type("dtLastRevDateEnd", "10/07/2009");
    for (const auto& [option, date] :
         {std::pair{"Option4", "06/07/2009"}, {"Option5", "07/07/2009"}, {"Option6", "08/07/2009"}}) {
        run.click(option);
        run.click("cmdSearch");
        ASSERT_EQ(list().size(), 1U) << option;
        EXPECT_EQ(list()[0][3], date);
    }
    run.click("Option8");
    run.click("Option1");
    run.click("cmdSearch");
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(run.record().ClientChanged, 0);
}

TEST_F(FollowUpScreens, ListAndPrintBirthdays) {
    run.menu("mnuBirthdays");
    auto box = run.desk.told([&] { run.click("cmdSearch"); });
    EXPECT_EQ(box.text, "Please select a Month to search in.");
    EXPECT_EQ(run.focused(), "Combo1");
    month(5);
    run.type("numEndAge", "47");
    run.type("numStartAge", "48");
    box = run.desk.told([&] { run.click("cmdSearch"); });
    EXPECT_EQ(box.text, "Please ensure that the 'From' Age is less than or equal to the 'End' Age.");
    EXPECT_EQ(run.focused(), "numStartAge");
    run.expectRefused("numStartAge", "151", "An age is between 0 and 150 years.", "Incorrect Age!");
    run.type("numStartAge", "47");
    run.click("cmdSearch");
    EXPECT_EQ(list(), Lines{}); // 47 to 47 is one day
    run.type("numEndAge", "48");
    run.click("cmdSearch");
    EXPECT_EQ(list(), (Lines{{"Mr P O'Brien", "25/05/1979", "id1"}}));
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(printed(), "Schedule of Client Birthdays.\nMr P O'Brien");
    run.typeAll("numStartAge 0, numEndAge 150");
    month(2);
    run.click("Option2");
    run.click("Option9");
    run.click("cmdSearch");
    EXPECT_EQ(list(), (Lines{{"  Wife", "18/02/1982", "Mr P O'Brien"}}));
    month(9);
    run.click("Option3");
    run.click("Option8");
    run.click("cmdSearch");
    EXPECT_EQ(list(), (Lines{{"Kim", "22/09/2017", "Mr P O'Brien"}}));
}

} // namespace
