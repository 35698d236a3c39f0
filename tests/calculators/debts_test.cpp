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
    const struct {
        DebtConsolidation debts; // amounts, rates, rate of the one loan, months
        double before, after, saving;
    } cases[] = {
        {five, 8330.788290, 7974.880036, 355.908255}, // the loan without a rate adds its amount only
        {{10000, 0, 0, 0, 0, 12, 0, 0, 0, 0, 12, 24}, 470.734722, 470.734722, 0},
        {{10000, 0, 0, 0, 0, 10, 0, 0, 0, 0, 12, 24}, 461.449263, 470.734722, 0},
        {{10000, 0, 0, 0, 0, 12, 0, 0, 0, 0, 0, 24}, 470.734722, 0, 470.734722},
        {{10000, 0, 0, 0, 0, 12, 0, 0, 0, 0, 12, 0}, 0, 0, 0},
        {{50, 0, 0, 0, 0, 12.2, 0, 0, 0, 0, 12, 24}, 2.358346, 2.353674, 0}, // less than half a cent
        {{50, 0, 0, 0, 0, 12.3, 0, 0, 0, 0, 12, 24}, 2.360684, 2.353674, 0.007011},
    };
    for (const auto& c : cases) {
        const auto result = calculators::DCCalc(c.debts);
        EXPECT_NEAR(result.BeforeTotal, c.before, 1e-6);
        EXPECT_NEAR(result.AfterRep(), c.after, 1e-6);
        EXPECT_NEAR(result.saving(), c.saving, 1e-6);
        EXPECT_TRUE(result.isFinite());
    }
    const auto result = calculators::DCCalc(five);
    EXPECT_EQ(result.consolidated.principal, 205500.5);
    EXPECT_NEAR(result.repayments[3], 359.249098, 1e-6);
    EXPECT_EQ(result.repayments[4], 0);
}

class DebtScreen : public testing::Test {
protected:
    DebtScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.menu("mnuDebtCon");
    }
    DebtConsolidation& debts() { return run.record().debts; }
    void show(const DebtConsolidation& other) {
        debts() = other;
        run.front()->refill();
    }
    QString head(int column) {
        return run.control<QTableView>("grdPayments")->model()->headerData(column, Qt::Horizontal).toString();
    }
    std::vector<QStringList> rows() { return RunningProgram::cells(run.control<QTableView>("grdPayments")); }
    bool hasTable(const char* button) {
        run.click(button);
        const auto* panel = run.front()->findChild<QWidget*>("fraGrid");
        return panel != nullptr && panel->isVisible();
    }
    void print() {
        run.click("cmdPrint");
        run.click("cmdVR");
    }
    std::string title() { return run.program.reports().previews().back()->windowTitle().toStdString(); }
    std::string amort(const char* row) {
        return run.inPrint("SELECT Year, printf('%.2f', Capital), printf('%.2f', Interest), printf('%.2f', Required) "
                           "FROM Amort ORDER BY "
                           "rowid " +
                           std::string(row) + " LIMIT 1");
    }
    RunningProgram run;
};

TEST_F(DebtScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().ClientChanged, 0);
    run.expectRefused("numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!");
    run.type("numPeriod", "600");
    run.type("numLoan5Amt", "2500.5");
    run.expectShown("numLoanAmtTot 2 500.50");
    run.typeAll("numLoan1Amt 120000, numLoan2Amt 45000, numLoan3Amt 30000, numLoan4Amt 8000, numLoan1Int 14.5, "
                "numLoan2Int 21, numLoan3Int 17.25, numLoan4Int 24.5, numLoan5Int 0.5, numLoanIntTot 12.125, "
                "numPeriod 30");
    DebtConsolidation typed = five;
    typed.Loan5Int = 0.5;
    EXPECT_EQ(debts(), typed);
    EXPECT_EQ(run.record().ClientChanged, 1);
    run.expectShown("numLoanAmtTot 205 500.50");
    run.click("cmdCalculate");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.expectShown("numAns1 8 414.68, numAns2 7 974.88, numAns3 439.80");
    print();
    EXPECT_EQ(
        run.inPrint("SELECT Loan1Amt, Loan2Amt, Loan3Amt, Loan4Amt, Loan5Amt, Loan1Int, Loan2Int, Loan3Int, "
                    "Loan4Int, Loan5Int, LoanAmtTot, printf('%.2f', ANS1), printf('%.2f', ANS2), ANS3Text1, ANS3Text2, "
                    "printf('%.2f', ANS3), YearMon FROM DebtCon"),
        "120000|45000|30000|8000|2500.5|14.5|21|17.25|24.5|0.5|205 500.50 at 12.125 %p.a. for 30 months.|8414.68|"
        "7974.88|Monthly saving after consolidation|: |439.80|");
    EXPECT_EQ(title(), "Debt Consolidation");
}

TEST_F(DebtScreen, OpeningChangesNothingAndLeavesTheFocusInTheFirstField) {
    EXPECT_EQ(RunningProgram::focused(), "numLoan1Amt");
    show(five);
    run.expectShown("numAns1 8 330.79, numAns2 7 974.88, numAns3 355.91");
    EXPECT_EQ(debts(), five);
    EXPECT_EQ(run.record().ClientChanged, 0);
    show({10000, 0, 0, 0, 0, 10, 0, 0, 0, 0, 12, 24});
    EXPECT_FALSE(run.control("numAns3")->isVisible());
    print();
    EXPECT_EQ(run.inPrint("SELECT ANS3Text1, ANS3Text2, ANS3, printf('%.2f', ANS1), LoanAmtTot FROM DebtCon"),
              "|||461.45|10 000.00 at 12 %p.a. for 24 months.");
}

TEST_F(DebtScreen, TablesGraphAndReportsShowTheConsolidatedLoanOfTheFieldsNow) {
    DebtConsolidation other = five;
    other.ConPeriod = 18;
    other.ConInt = 9;
    show(other);
    run.typeAll("numPeriod 30, numLoanIntTot 12.125"); // no Calculate after it
    EXPECT_TRUE(hasTable("cmdMonAmort"));
    EXPECT_EQ(head(0) + head(1) + head(2) + head(3), "MonthCapital paymentInterest paymentBalance");
    EXPECT_EQ(rows().front(), QStringList({"1", "5 898.47", "2 076.41", "199 602.03"}));
    EXPECT_EQ(rows().back(), QStringList({"30", "7 895.11", "79.77", ".00"}));
    run.click("cmdGridClose");
    EXPECT_TRUE(hasTable("cmdAnnAmort"));
    EXPECT_EQ(head(0) + head(1) + head(2) + head(3), "YearCapital paymentsInterest paymentsBalance");
    EXPECT_EQ(rows(), std::vector<QStringList>({{"1", "74 850.71", "20 847.85", "130 649.79"},
                                                {"2", "84 448.10", "11 250.46", "46 201.69"},
                                                {"3", "46 201.69", "1 647.59", ".00"}}));
    run.click("cmdGridClose");
    run.click("cmdPrint");
    run.click("Check1");
    run.click("cmdVR");
    EXPECT_EQ(title(), "Debt Consolidation With Annual Amortisation");
    EXPECT_EQ(run.inPrint("SELECT YearMon FROM DebtCon"), "Year");
    EXPECT_EQ(amort("DESC"), "3|46201.69|1647.59|0.00");
    run.click("cmdPrint");
    run.click("Option1(1)");
    run.click("cmdVR");
    EXPECT_EQ(title(), "Debt Consolidation With Monthly Amortisation");
    EXPECT_EQ(run.inPrint("SELECT YearMon FROM DebtCon"), "Month");
    EXPECT_EQ(amort("ASC"), "1|5898.47|2076.41|199602.03");
    run.click("cmdDCGraph");
    const reports::Graph& graph = dynamic_cast<reports::frmGraph*>(run.front())->graph();
    EXPECT_EQ(graph.title, "Illustration of Debt Consolidation");
    ASSERT_EQ(graph.points, 3);
    EXPECT_NEAR(graph.series[0].values[1], 46201.69, 0.005);
    EXPECT_NEAR(graph.series[1].values[0], 74850.71, 0.005);
    EXPECT_NEAR(graph.series[2].values[2], 1647.59, 0.005);
}

TEST_F(DebtScreen, WithoutALoanToShowThereIsNoTable) {
    DebtConsolidation year = five;
    for (const auto& [rate, months] : {std::pair{0.0, 30}, {12.0, 12}, {12.0, 0}}) {
        year.ConInt = rate;
        year.ConPeriod = static_cast<std::int16_t>(months);
        show(year);
        EXPECT_EQ(hasTable("cmdMonAmort"), months == 12);
        if (months == 12) run.click("cmdGridClose");
        EXPECT_FALSE(hasTable("cmdAnnAmort"));
        EXPECT_EQ(RunningProgram::focused(), "numLoan1Amt");
        run.click("cmdDCGraph");
        EXPECT_FALSE(run.isOpen("frmGraph"));
        EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    }
    year.ConPeriod = 1200; // from a file
    year.ConInt = 12;
    show(year);
    EXPECT_TRUE(hasTable("cmdMonAmort"));
    EXPECT_EQ(rows().size(), 1000U);
    run.click("cmdGridClose");
    year.ConPeriod = 12;
    year.ConInt = 1e-13;
    show(year);
    run.expectShown("numAns2    Error");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_TRUE(run.program.reports().previews().empty());
}

} // namespace
