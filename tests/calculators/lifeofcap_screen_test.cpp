#include <gtest/gtest.h>

#include <QTableView>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class LifeOfCapScreen : public testing::Test {
protected:
    LifeOfCapScreen() { run.menu("mnuLifeOfCap"); }
    void typeAll(const QStringList& figures) {
        for (int i = 0; i < figures.size(); ++i)
            run.type(QString("sidbEdit%1").arg(13 + i), figures[i]);
    }
    QString caption() { return run.captionOf("sidbEdit18")->text(); }
    RunningProgram run;
};

TEST_F(LifeOfCapScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().changed.LifeOfCapChanged, 0);
    typeAll({"500000.25", "5000.5", "9.125", "25.5", "6.375"});
    const assessment::LifeOfCapital typed{500000.25, 5000.5, 9.125, 25.5, 6.375};
    EXPECT_EQ(run.record().lifeOfCapital, typed);
    EXPECT_EQ(run.record().changed.LifeOfCapChanged, 1);
    run.enter("sidbEdit17", "6.375");
    for (const bool isOld : {true, false}) { // Enter in the last field calculates
        EXPECT_EQ(run.control("sidbEdit18")->font().italic(), isOld);
        RunningProgram::key(Qt::Key_Return);
    }
    EXPECT_EQ(run.shown("sidbEdit18"), "9");
    EXPECT_EQ(caption(), "Will provide required income for");
    const auto prints = [&](const char* title) {
        run.click("cmdVR");
        EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), title);
    };
    run.click("cmdPrint");
    prints("Life Of Capital");
    EXPECT_EQ(run.inPrint("SELECT * FROM LOcap"),
              "500000.25|5000.5|9.125|25.5|6.375|Will provide required income for 9 years.");
    EXPECT_EQ(run.inPrint("SELECT count(*) FROM Amort"), "0") << "left alone while it is not asked for";
    run.type("sidbEdit14", "10000");
    run.click("cmdPrint"); // calculates first
    run.click("Check1");
    prints("Life Of Capital Including Amortisation");
    EXPECT_EQ(run.inPrint("SELECT count(*), max(Year) FROM Amort"), "4|4");
    EXPECT_EQ(run.inPrint("SELECT Year, Capital, printf('%.6f', Interest), Required FROM Amort LIMIT 1"),
              "1|500000.25|33990.641995|120000");
}

TEST_F(LifeOfCapScreen, TableAndGraphShowAsManyYearsAsTheAnswer) {
    const struct {
        QStringList figures;
        const char *shown, *caption;
        int rows;
    } cases[] = {
        {{"500000", "1000", "9", "25", "0"}, "50", "Will provide required income for more than ", 50},
        {{"185500", "1000", "6", "0", "0"}, "45", "Will provide required income for", 45},
        {{"1", "1000", "10", "0", "0"}, "1", "Will provide required income for", 1},
    };
    for (const auto& c : cases) {
        typeAll(c.figures);
        run.click("cmdAmortLifeCap");
        const auto* table = run.control<QTableView>("grdPayments")->model();
        EXPECT_EQ(table->rowCount(), c.rows);
        EXPECT_EQ(table->index(0, 3).data().toString(), "12 000.00");
        run.click("cmdGridClose");
        EXPECT_EQ(run.shown("sidbEdit18"), c.shown);
        EXPECT_EQ(caption(), c.caption);
        run.click("cmdAmortGraph");
        const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
        EXPECT_EQ(graph.points, c.rows);
        EXPECT_EQ(graph.xTitle, "LIFE OF CAPITAL (years)");
        ASSERT_EQ(graph.series.size(), 3u);
        EXPECT_EQ(graph.series[0].values[0], c.figures[0].toDouble());
        EXPECT_EQ(graph.series[2].values[0], 12000);
        run.click("cmdOK");
    }
    typeAll({"0", "1000", "10", "0", "0"});
    run.click("cmdAmortGraph");
    EXPECT_FALSE(run.isOpen("frmGraph"));
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.click("cmdAmortLifeCap");
    EXPECT_EQ(run.control<QTableView>("grdPayments")->model()->rowCount(), 1);
}

TEST_F(LifeOfCapScreen, LimitsAreToldAndTheRisesOneSendsToTheTaxRate) {
    const struct {
        const char *field, *refused, *taken, *told, *title;
    } cases[] = {
        {"sidbEdit16", "40.001", "40", "The maximum tax rate allowed is 40%", "Incorrect Tax Rate!"},
        {"sidbEdit16", "-1", "0", "The minimum tax rate allowed is 0%", "Incorrect Tax Rate!"},
        {"sidbEdit17", "50.001", "50", "The maximum Annual income escalation allowed is 50%",
         "Incorrect Annual Income Escalation!"},
    };
    for (const auto& c : cases) {
        run.desk.expect(Answer::ok);
        run.enter(c.field, c.refused);
        run.click("cmdCalculate");
        EXPECT_EQ(run.desk.last().text, c.told);
        EXPECT_EQ(run.desk.last().title, c.title);
        EXPECT_EQ(RunningProgram::focused(), "sidbEdit16");
        run.enter(c.field, c.taken);
    }
    run.record().lifeOfCapital = {1e308, 1, 1e6, 0, 0};
    run.front()->refill();
    EXPECT_EQ(run.shown("sidbEdit18"), "   Error");
    run.click("cmdPrint");
    run.click("cmdVR"); // figures that no report can hold
    EXPECT_TRUE(run.program.reports().previews().empty());
}

} // namespace
