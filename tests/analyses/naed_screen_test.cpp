#include <gtest/gtest.h>

#include <QTableView>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

class NAEd : public testing::Test {
protected:
    NAEd() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.menu("mnuNAEd");
    }
    void typeAll(const QStringList& figures) {
        int next = 0;
        for (const char* field : {"numFundsPres", "numInflaRate", "numYears", "numPerRequired", "numInvestRate"})
            run.type(field, figures[next++]);
    }
    RunningProgram run;
};

TEST_F(NAEd, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    run.type("dtBirthDate", "15/3/1981");
    run.type("dtEducLastReview", "1/2/2026");
    run.type("dtEducNextReview", "3/4/2027");
    typeAll({"10000.5", "10", "2", "3", "8"});
    run.enter("numInvestRate", "8.125");
    for (const char* result : {"numFundsFut", "txtAns"})
        EXPECT_TRUE(run.control(result)->font().italic()) << "out of date";
    RunningProgram::key(Qt::Key_Return); // from the last field it calculates
    for (const char* result : {"numFundsFut", "txtAns"})
        EXPECT_FALSE(run.control(result)->font().italic());
    const assessment::NAEducation typed{10000.5, 10, 2, 3, 8.125, 46054, 46480};
    EXPECT_EQ(run.record().education, typed);
    EXPECT_EQ(run.record().client.BirthDate, *base::dayNumber(1981, 3, 15));
    EXPECT_EQ(run.record().changed.NAEdChanged, 1);
    EXPECT_EQ(run.shown("txtName"), "Ms T. Ṱhoho-Nḓou");
    EXPECT_EQ(run.shown("numFundsFut"), "12 100");
    EXPECT_EQ(run.shown("txtAns"), "34 200 capital required to invest to provide funds.");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Needs Analysis for Education");
    EXPECT_EQ(run.inPrint("SELECT * FROM NAED"),
              "Ms T. Ṱhoho-Nḓou|10000.5|15/03/1981|10|2|12100|3|8.125|34 200 required "
              "to invest to provide funds.|||0||0||0||0||0|||");
    EXPECT_EQ(run.inPrint("SELECT count(*) FROM Amort"), "0") << "left alone while it is not asked for";
    run.type("numInvestRate", "0");
    run.click("cmdPrint"); // calculates first
    run.click("Check1");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(),
              "Needs Analysis for Education Including Amortisation");
    EXPECT_EQ(run.inPrint("SELECT Year, Capital, Interest, Required FROM Amort LIMIT 2"),
              "1|40100|0|12100\n2|28000|0|13310");
}

TEST_F(NAEd, TableAndGraphShowTheYearsAndChangeNothing) {
    typeAll({"10000", "0", "0", "3", "0"});
    run.record().changed.NAEdChanged = 0;
    run.click("cmdAmort"); // this and the graph calculate first
    QStringList cells;
    for (const QStringList& row : RunningProgram::cells(run.control<QTableView>("grdPayments")))
        cells << row.join("|");
    EXPECT_EQ(cells.join("|"), "1|30 000||10 000|2|20 000||10 000|3|10 000||10 000|4|||10 000");
    run.click("cmdGridClose");
    run.type("numPerRequired", "2");
    run.record().changed.NAEdChanged = 0;
    run.click("cmdNAEDGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Education Needs ");
    EXPECT_EQ(graph.points, 2);
    ASSERT_EQ(graph.series.size(), 3u);
    EXPECT_EQ(graph.series[0].values[1], 10000);
    EXPECT_EQ(graph.series[2].values[1], 10000);
    run.click("cmdOK");
    EXPECT_EQ(run.shown("txtAns"), "20 000 capital required to invest to provide funds.");
    EXPECT_EQ(run.record().changed.NAEdChanged, 0);
    run.type("numPerRequired", "0");
    run.click("cmdNAEDGraph"); // nothing is asked for, nothing can be drawn
    EXPECT_EQ(run.front()->objectName(), "frmNAEd");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    EXPECT_EQ(run.shown("txtAns"), "");
    run.click("cmdInflation");
    EXPECT_EQ(run.front()->objectName(), "frmInflation");
}

TEST_F(NAEd, LimitsAreToldAndAFilesRatesCorrected) {
    const struct {
        const char *field, *refused, *taken, *told, *title;
    } cases[] = {
        {"numInflaRate", "30.001", "30", "The range for the Inflation Rate is between -5% and 30%",
         "Incorrect Inflation Rate!"},
        {"numYears", "26", "25", "The Maximum Period is 25 years", "Incorrect Period!"},
        {"numPerRequired", "11", "10", "The Maximum Period is 10 years", "Incorrect Period!"},
        {"numPerRequired", "-1", "0", "The minimum Period is 0 years", "Incorrect Period!"},
        {"numInvestRate", "50.001", "50", "The maximum Bank Interest Rate allowed is 50%",
         "Incorrect Bank Interest Rate!"},
    };
    for (const auto& c : cases) {
        run.expectRefused(c.field, c.refused, c.told, c.title);
        run.type(c.field, c.taken);
    }
    run.record().education.InflationEDU = 99;
    run.record().education.BankRate = 99;
    run.record().changed.NAEdChanged = 0;
    run.front()->refill();
    EXPECT_EQ(run.shown("numInflaRate"), "30.000");
    EXPECT_EQ(run.shown("numInvestRate"), "50.000");
    EXPECT_EQ(run.record().changed.NAEdChanged, 0) << "to look is no change";
}

} // namespace
