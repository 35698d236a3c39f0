#include "calculators/debts.h"

#include <gtest/gtest.h>

#include <QTableView>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using assessment::DebtConsolidation;
using shelltest::RunningProgram;

const DebtConsolidation five{120000, 45000, 30000, 8000, 2500.5, 14.5, 21, 17.25, 24.5, 0, 12.125, 30};

TEST(Debts, ComparesTheLoansWithOneForTheirSum) {
    const std::tuple<DebtConsolidation, double, double, double> cases[] = {
        {five, 8330.788290, 7974.880036, 355.908255}, // the loan without a rate adds its amount only
        {{10000, 0, 0, 0, 0, 12, 0, 0, 0, 0, 0, 24}, 470.734722, 0, 470.734722},
        {{50, 0, 0, 0, 0, 12.2, 0, 0, 0, 0, 12, 24}, 2.358346, 2.353674, 0}, // less than half a cent
        {{50, 0, 0, 0, 0, 12.3, 0, 0, 0, 0, 12, 24}, 2.360684, 2.353674, 0.007011},
    };
    for (const auto& [debts, before, after, saving] : cases) {
        const auto result = calculators::DCCalc(debts);
        EXPECT_NEAR(result.BeforeTotal, before, 1e-6);
        EXPECT_NEAR(result.AfterRep(), after, 1e-6);
        EXPECT_NEAR(result.saving(), saving, 1e-6);
    }
}

class DebtScreen : public testing::Test {
protected:
    DebtScreen() { run.menu("mnuDebtCon"); }
    void show(const DebtConsolidation& debts) {
        run.record().debts = debts;
        run.front()->refill();
    }
    /// The heads and lines of a table; nothing if it does not open.
    std::vector<QStringList> table(const char* button) {
        run.click(button);
        auto* grid = run.front()->findChild<QTableView*>("grdPayments");
        if (grid == nullptr || !grid->isVisible()) return {};
        QStringList heads;
        for (int column = 0; column < 4; ++column)
            heads << grid->model()->headerData(column, Qt::Horizontal).toString();
        auto lines = RunningProgram::cells(grid);
        lines.insert(lines.begin(), heads);
        run.click("cmdGridClose");
        return lines;
    }
    /// Prints with these choices.
    std::string printed(const QStringList& choices, const std::string& sql) {
        run.click("cmdPrint");
        for (const QString& choice : choices)
            run.click(choice);
        run.click("cmdVR");
        return run.inPrint(sql) + " " + run.program.reports().previews().back()->windowTitle().toStdString();
    }
    RunningProgram run;
};

TEST_F(DebtScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    show({10000, 0, 0, 0, 0, 10, 0, 0, 0, 0, 12, 24});
    EXPECT_FALSE(run.control("numAns3")->isVisible());
    EXPECT_EQ(run.record().ClientChanged, 0);
    EXPECT_EQ(RunningProgram::focused(), "numLoan1Amt");
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.typeAll("numPeriod 30, numLoan1Amt 120000, numLoan2Amt 45000, numLoan3Amt 30000, numLoan4Amt 8000, "
                "numLoan5Amt 2500.5, numLoan1Int 14.5, numLoan2Int 21, numLoan3Int 17.25, numLoan4Int 24.5, "
                "numLoan5Int 0.5, numLoanIntTot 12.125");
    DebtConsolidation typed = five;
    typed.Loan5Int = 0.5;
    EXPECT_EQ(run.record().debts, typed);
    EXPECT_EQ(run.record().ClientChanged, 1);
    run.expectShown("numLoanAmtTot 205 500.50, numAns1 461.45");
    run.click("cmdCalculate");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.expectShown("numAns1 8 414.68, numAns2 7 974.88, numAns3 439.80");
    EXPECT_EQ(printed({}, "SELECT Loan1Amt, Loan2Amt, Loan3Amt, Loan4Amt, Loan5Amt, Loan1Int, Loan2Int, Loan3Int, "
                          "Loan4Int, Loan5Int, LoanAmtTot, printf('%.2f %.2f', ANS1, ANS2), ANS3Text1, ANS3Text2, "
                          "printf('%.2f', ANS3), YearMon FROM DebtCon"),
              "120000|45000|30000|8000|2500.5|14.5|21|17.25|24.5|0.5|205 500.50 at 12.125 %p.a. for 30 months.|8414.68 "
              "7974.88|Monthly saving after consolidation|: |439.80| Debt Consolidation");
    run.typeAll("numLoanIntTot 30, numPeriod 24");
    EXPECT_EQ(printed({}, "SELECT ANS3Text1, ANS3Text2, ANS3, LoanAmtTot FROM DebtCon"),
              "|||205 500.50 at 30 %p.a. for 24 months. Debt Consolidation");
}

TEST_F(DebtScreen, TablesGraphAndReportsShowTheLoanOfTheFieldsAsTheyAreNow) {
    show(five);
    run.typeAll("numPeriod 18, numLoanIntTot 9");
    run.click("cmdCalculate");
    run.typeAll("numPeriod 30, numLoanIntTot 12.125");
    const auto months = table("cmdMonAmort");
    EXPECT_EQ(months.at(0), QStringList({"Month", "Capital payment", "Interest payment", "Balance"}));
    EXPECT_EQ(months.at(1), QStringList({"1", "5 898.47", "2 076.41", "199 602.03"}));
    EXPECT_EQ(months.at(30), QStringList({"30", "7 895.11", "79.77", ".00"}));
    EXPECT_EQ(table("cmdAnnAmort"),
              std::vector<QStringList>({{"Year", "Capital payments", "Interest payments", "Balance"},
                                        {"1", "74 850.71", "20 847.85", "130 649.79"},
                                        {"2", "84 448.10", "11 250.46", "46 201.69"},
                                        {"3", "46 201.69", "1 647.59", ".00"}}));
    const std::string last = "SELECT YearMon, Year, printf('%.2f %.2f %.2f', Capital, Interest, Required) FROM Amort, "
                             "DebtCon ORDER BY Year DESC LIMIT 1";
    EXPECT_EQ(printed({"Check1"}, last), "Year|3|46201.69 1647.59 0.00 Debt Consolidation With Annual Amortisation");
    EXPECT_EQ(printed({"Option1(1)"}, last),
              "Month|30|7895.11 79.77 0.00 Debt Consolidation With Monthly Amortisation");
    run.click("cmdDCGraph");
    const reports::Graph& graph = dynamic_cast<reports::frmGraph*>(run.front())->graph();
    EXPECT_EQ(graph.title, "Illustration of Debt Consolidation");
    ASSERT_EQ(graph.points, 3);
    EXPECT_NEAR(graph.series[0].values[1], 46201.69, 0.005);
    EXPECT_NEAR(graph.series[1].values[0], 74850.71, 0.005);
}

TEST_F(DebtScreen, WithoutALoanToShowThereIsNoTable) {
    DebtConsolidation debts = five;
    for (const auto& [rate, months, rows] :
         {std::tuple{0.0, 30, 0U}, {12.0, 12, 13U}, {12.0, 0, 0U}, {1e-13, 30, 0U}, {12.0, 1200, 1001U}}) {
        debts.ConInt = rate;
        debts.ConPeriod = static_cast<std::int16_t>(months);
        show(debts);
        EXPECT_EQ(table("cmdMonAmort").size(), rows) << months;
        if (months > 600) continue;
        EXPECT_TRUE(table("cmdAnnAmort").empty()) << months;
        EXPECT_EQ(RunningProgram::focused(), "numLoan1Amt");
        run.click("cmdDCGraph");
        EXPECT_FALSE(run.isOpen("frmGraph"));
        EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    }
    debts.ConInt = 1e-13;
    show(debts);
    run.expectShown("numAns2    Error");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_TRUE(run.program.reports().previews().empty());
}

} // namespace
