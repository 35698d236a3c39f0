#include <gtest/gtest.h>

#include "reports/frmGraph.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

QStringList line(RunningProgram& run, const char* table, std::size_t row) {
    return RunningProgram::cells(run.control<QAbstractItemView>(table)).at(row);
}

TEST(IncomeSharesScreen, HoldsItsFieldsAndCostsAndShowsThemEverywhere) {
    RunningProgram run;
    run.menu("mnuIncShares");
    for (const char* button : {"cmdAmort", "cmdGraph"}) {
        run.click(button);
        EXPECT_EQ(RunningProgram::focused(), "cmdOK") << "nothing to show";
    }
    const auto stored = [&] { return storetest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM IncFromShares"); };
    for (const char* button : {"cmdCancelDefault", "cmdOKDefault"}) {
        EXPECT_EQ(stored(), "1|0|0|1|0.5");
        run.click("cmdDefaultRates");
        run.typeAll("numInitCom 1.25, numInitAdminFee 100.5, numAnnDivBonus 0.5, numAnnManFee 1.5");
        run.expectRefused("numTrailComm", "100.5", "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
        run.type("numTrailComm", "0.75");
        run.click(button);
    }
    EXPECT_EQ(stored(), "1.25|100.5|0.5|1.5|0.75");
    run.typeAll("numInvestAmount 1000000.25, numGrowthRate 12.125, numInitPercRequire 8000.5, numAnnIncEsca 6.25, "
                "numEffTaxRate 40.5");
    run.click("optMonthly");
    EXPECT_EQ(run.record().incomeShares, (assessment::IncomeShares{1000000.25, 12.125, 8000.5, 6.25, 40.5, "monthly"}));
    run.click("cmdCalculate");
    EXPECT_EQ(line(run, "grdIncomeShares", 6), QStringList({"7", "880 976", "138 125", "9 776"}));
    EXPECT_EQ(run.shown("txtAns"), "The capital lasts 14 years.");
    run.click("cmdAmort");
    EXPECT_EQ(line(run, "grdPayments", 12), QStringList({"13", "987 337", "8 501", "0"}));
    EXPECT_EQ(line(run, "grdPayments", 168), QStringList({"169", "0", "0", "0"}));
    run.click("cmdGridClose");
    run.click("cmdGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Income From Shares");
    EXPECT_EQ(graph.points, 15);
    for (const auto& [series, figure] : {std::pair{0u, 1002477.9976}, {1u, 102006.375}, {2u, 6170.8887}})
        EXPECT_NEAR(graph.series[series].values[1], figure, 1e-3);
    run.click("cmdOK");
    const std::string texts = "The following commissions are payable…|A commission amount equal to 1.25% of the "
                              "initial capital amount invested is payable.|Trail commission of 1/12th of 0.75% of the "
                              "capital will be paid monthly.";
    for (const std::string& said : {std::string("||"), texts}) {
        run.click("cmdPrint");
        if (said == texts) run.click("chkIncComms");
        run.click("cmdVR");
        const std::string head = "1.25|100.5|0.5|1.5|0.75|" + said + "|1000000.25|12.125|8000.5|6.25|40.5|monthly|1|";
        EXPECT_EQ(run.inPrint("SELECT * FROM IncFromShares").substr(0, head.size()), head);
    }
    EXPECT_EQ(run.inPrint("SELECT MonRep7, printf('%.2f|%.2f|%.2f', IntPaid7, Total7, IncDrawn7) FROM IncFromShares"),
              "7|880976.20|9775.57|138124.91");
    run.click("optAnnually");
    run.click("cmdAmort");
    EXPECT_EQ(line(run, "grdPayments", 1), QStringList({"2", "1 207 352", "8 501", "0"}));
}

TEST(IncomeSharesScreen, EachKeyOfTheGrowthRateCountsAndOneOutOfRangeBecomesNothing) {
    RunningProgram run;
    run.menu("mnuIncShares");
    run.typeAll("numInvestAmount 100000, numInitPercRequire 1000");
    const auto expectFirstYear = [&](const char* capital) {
        run.click("cmdCalculate");
        EXPECT_EQ(line(run, "grdIncomeShares", 0)[1], capital);
    };
    expectFirstYear("97 505");
    for (const char* rate : {"12", "1"}) { // rates up to 1.05 have no nominal one
        run.type("numGrowthRate", rate);
        expectFirstYear("109 320");
    }
    for (const auto& [refused, kept] : {std::pair{"121", 12.0}, {"-3", -3.0}}) {
        run.enter("numGrowthRate", refused); // 121 has 12 on the way, and is not stored
        EXPECT_EQ(run.record().incomeShares.ISGrowthRate, kept);
        RunningProgram::key(Qt::Key_Tab); // no box
        EXPECT_EQ(RunningProgram::focused(), "numGrowthRate");
        EXPECT_EQ(run.record().incomeShares.ISGrowthRate, 0);
        EXPECT_EQ(run.shown("numGrowthRate"), "0.000");
        expectFirstYear("109 320");
    }
    run.click("cmdOK");
    run.record().incomeShares.ISGrowthRate = 150; // from an old file
    run.menu("mnuIncShares");
    expectFirstYear("97 505");
    EXPECT_EQ(run.control<QLabel>("lblFaults")->text(), "Please check Growth rate: The figure is outside its limits.");
}

} // namespace
