#include <gtest/gtest.h>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class IncomeSharesScreen : public testing::Test {
protected:
    IncomeSharesScreen() { run.menu("mnuIncShares"); }
    void fill() {
        run.typeAll("numInvestAmount 1000000.25, numGrowthRate 12.125, numInitPercRequire 8000.5, numAnnIncEsca 6.25, "
                    "numEffTaxRate 40.5");
        run.click("optMonthly");
    }
    auto summary() { return RunningProgram::cells(run.control<QAbstractItemView>("grdIncomeShares")); }
    auto table() { return RunningProgram::cells(run.control<QAbstractItemView>("grdPayments")); }
    std::string costs() { return storetest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM IncFromShares"); }
    RunningProgram run;
};

TEST_F(IncomeSharesScreen, HoldsItsFieldsAndShowsYearsMonthsAndGraph) {
    EXPECT_EQ(run.record().changed.IncomeSharesChanged, 0);
    EXPECT_EQ(run.record().incomeShares, assessment::IncomeShares());
    for (const char* button : {"cmdAmort", "cmdGraph"}) { // nothing to show
        run.click(button);
        EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    }
    EXPECT_FALSE(run.isOpen("frmGraph"));
    fill();
    const assessment::IncomeShares typed{1000000.25, 12.125, 8000.5, 6.25, 40.5, "monthly"};
    EXPECT_EQ(run.record().incomeShares, typed);
    EXPECT_EQ(run.record().changed.IncomeSharesChanged, 1);
    EXPECT_TRUE(summary().empty()) << "nothing moves while the user types";
    run.click("cmdCalculate");
    ASSERT_EQ(summary().size(), 7u);
    EXPECT_EQ(summary()[1], QStringList({"2", "1 004 093", "102 006", "6 171"}));
    EXPECT_EQ(run.shown("txtAns"), "The capital lasts 14 years and 1 month.");
    run.click("cmdAmort");
    ASSERT_EQ(table().size(), 170u);
    EXPECT_EQ(table()[12], QStringList({"13", "993 282", "8 501", "0"}));
    EXPECT_EQ(table()[169], QStringList({"170", "0", "0", "0"}));
    run.click("cmdGridClose");
    run.click("cmdGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Income From Shares");
    EXPECT_EQ(graph.points, 15);
    EXPECT_NEAR(graph.series[1].values[1], 102006.375, 1e-6);
    EXPECT_EQ(graph.series[0].values[14], 0);
    run.click("cmdOK");
    run.click("optAnnually");
    EXPECT_EQ(run.record().incomeShares.AnnMonIncShare, "annually");
    run.click("cmdAmort"); // calculates first
    EXPECT_EQ(table().size(), 50u);
    EXPECT_EQ(table()[1].mid(0, 1) + table()[1].mid(2, 1), QStringList({"2", "8 501"}));
}

TEST_F(IncomeSharesScreen, EachKeyOfTheGrowthRateCountsAndOneOutOfRangeBecomesNothing) {
    const auto firstYear = [&](const char* rate) {
        run.type("numGrowthRate", rate);
        run.click("cmdCalculate");
        return summary()[0][1];
    };
    run.typeAll("numInvestAmount 100000, numInitPercRequire 1000");
    const QString none = firstYear("0"), twelve = firstYear("12");
    EXPECT_EQ(none, "97 505");
    EXPECT_EQ(twelve, "109 320");
    EXPECT_EQ(firstYear("1"), twelve) << "rates up to 1.05 have no nominal one";
    EXPECT_EQ(run.record().incomeShares.ISGrowthRate, 1);
    for (const char* refused : {"121", "-3"}) {
        run.type("numGrowthRate", refused); // no box
        EXPECT_EQ(RunningProgram::focused(), "numGrowthRate");
        EXPECT_EQ(run.shown("numGrowthRate"), "0.000");
        EXPECT_EQ(run.record().incomeShares.ISGrowthRate, 0);
        run.click("cmdCalculate");
        EXPECT_EQ(summary()[0][1], twelve) << "the rate of 12, typed on the way";
    }
    run.enter("numGrowthRate", "121");
    EXPECT_EQ(run.record().incomeShares.ISGrowthRate, 12) << "121 is not stored";
    run.type("numGrowthRate", "1");
    run.click("cmdOK");
    run.menu("mnuIncShares");
    EXPECT_EQ(summary()[0][1], none) << "opened again";
}

TEST_F(IncomeSharesScreen, CostsArePracticeSettingsAndReachTheReport) {
    fill();
    const std::int16_t changed = std::exchange(run.record().changed.IncomeSharesChanged, 0);
    EXPECT_EQ(changed, 1);
    const char* typed =
        "numInitCom 1.25, numInitAdminFee 100.5, numAnnDivBonus 0.5, numAnnManFee 1.5, numTrailComm 0.75";
    const std::string before = costs();
    for (const char* button : {"cmdCancelDefault", "cmdOKDefault"}) {
        EXPECT_EQ(costs(), before);
        run.click("cmdDefaultRates");
        run.expectShown("numInitCom 1.000, numInitAdminFee 0.00, numAnnDivBonus 0.000, numAnnManFee 1.000, "
                        "numTrailComm 0.500");
        run.typeAll(typed);
        run.click(button);
    }
    EXPECT_EQ(costs(), "1.25|100.5|0.5|1.5|0.75");
    EXPECT_EQ(run.record().changed.IncomeSharesChanged, 0) << "settings are no edits of the client";
    EXPECT_EQ(summary()[6], QStringList({"7", "880 976", "138 125", "9 776"})) << "calculated with them";
    run.click("cmdDefaultRates");
    run.expectRefused("numTrailComm", "100.5", "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
    run.click("cmdCancelDefault");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT ComStatement_1 || ComStatement_2 || ComStatement_3 FROM IncFromShares"), "");
    run.click("cmdPrint");
    run.click("chkIncComms");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Income From Shares");
    const std::string head =
        "1.25|100.5|0.5|1.5|0.75|The following commissions are payable…|A commission amount equal "
        "to 1.25% of the initial capital amount invested is payable.|Trail commission of 1/12th "
        "of 0.75% of the capital will be paid monthly.|1000000.25|12.125|8000.5|6.25|40.5|monthly|";
    const std::string row = run.inPrint("SELECT * FROM IncFromShares");
    EXPECT_EQ(row.substr(0, head.size()), head);
    EXPECT_EQ(run.inPrint("SELECT MonRep2, printf('%.2f|%.2f|%.2f', IntPaid2, Total2, IncDrawn2), MonRep7, "
                          "printf('%.2f|%.2f|%.2f', IntPaid7, Total7, IncDrawn7) FROM IncFromShares"),
              "2|1002478.00|6170.89|102006.38|7|880976.20|9775.57|138124.91");
    EXPECT_EQ(run.record().changed.IncomeSharesChanged, 0);
    run.type("numInvestAmount", "0");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().size(), 2u) << "nothing to print";
}

} // namespace
