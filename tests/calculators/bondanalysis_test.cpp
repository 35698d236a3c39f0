#include <QTableView>

#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

TEST(BondAnalysis, ComparesSixTermsOnTheScreenAndInTheReport) {
    RunningProgram run;
    run.menu("mnuLoansBondAna");
    const auto costs = [&] { return RunningProgram::cells(run.control<QTableView>("grdPayments")); };
    const auto isFaded = [&] { return run.control<QTableView>("grdPayments")->font().italic(); };
    EXPECT_EQ(run.record().changed.BondAnaChanged, 0);
    run.typeAll("numBAmt 500000, numIntRate 11.35");
    EXPECT_EQ(run.record().bond, assessment::Bond(0, 0, 0, 0, 500000, 11.35F));
    EXPECT_EQ(run.record().changed.BondAnaChanged, 1);
    EXPECT_TRUE(isFaded());
    run.click("cmdCalculate");
    EXPECT_FALSE(isFaded());
    EXPECT_EQ(costs(), std::vector<QStringList>({{"5 yrs.", "10 958.69 ", "157 521.34 ", "657 521.34 "},
                                                 {"10 yrs.", "6 986.93 ", "338 431.86 ", "838 431.86 "},
                                                 {"15 yrs.", "5 793.36 ", "542 803.97 ", "1 042 803.97 "},
                                                 {"20 yrs.", "5 280.56 ", "767 335.47 ", "1 267 335.47 "},
                                                 {"25 yrs.", "5 027.60 ", "1 008 278.75 ", "1 508 278.75 "},
                                                 {"30 yrs.", "4 894.31 ", "1 261 952.69 ", "1 761 952.69 "}}));
    run.type("numIntRate", "0"); // no repayment: the interest is the principal below 0
    run.click("cmdCalculate");
    EXPECT_EQ(costs()[0], QStringList({"5 yrs.", "0.00 ", "-500 000.00 ", "0.00 "}));
    run.expectRefused("numIntRate", "50.5", "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!");
    run.type("numIntRate", "0.0000000000001");
    run.click("cmdCalculate");
    EXPECT_EQ(costs()[5], QStringList({"30 yrs.", "Error", "Error", "Error"}));
    run.click("cmdPrint");
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");

    run.type("numIntRate", "11.35");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(
        run.inPrint("SELECT PAmt, IntRate, printf('%.2f|%.2f|%.2f|%.2f|%.2f|%.2f|%.2f|%.2f|%.2f', MonRep1, IntPaid1, "
                    "Total1, MonRep2, IntPaid3, Total4, MonRep5, IntPaid6, Total6) FROM BondComp"),
        "500000|11.35|10958.69|157521.34|657521.34|6986.93|542803.97|1267335.47|5027.60|1261952.69|1761952.69");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Bond Analysis");
}

} // namespace
