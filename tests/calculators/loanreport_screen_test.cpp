#include "calculators/loan_screen.h"

#include "reports/export.h"
#include "reports/previewwindow.h"
#include "reports/report.h"

namespace {

using namespace loantest;

class LoanReport : public LoanScreen {
protected:
    void set(const char* name, bool on) {
        if (run.control<QAbstractButton>(name)->isChecked() != on) run.click(name);
    }
    void openPanel(bool amortised, bool monthly) {
        run.click("cmdPrint");
        set("Check1", amortised);
        EXPECT_EQ(visible("fraIncAmort"), amortised);
        if (amortised) set(monthly ? "Option1(1)" : "Option1(0)", true);
    }
    const reports::PreviewWindow& lastPreview() { return *run.program.reports().previews().back(); }
};

TEST_F(LoanReport, EveryModeHasItsDefinitionsAndTitles) {
    struct Mode {
        QStringList typed;
        QString title, annual, monthly; ///< its own title, and those of the windows of its tables
    };
    const std::vector<Mode> all{
        {{"100000", "25", "12", ""},
         "Monthly repayment",
         "Annual repayment of Loan with",
         "Annual repayment of Loan with Monthly"},
        {{"", "25", "12", "4540"},
         "Principal amount",
         "Principal calculation of Loan with Annual",
         "Principal calculation of Loan with Monthly"},
        {{"100000", "", "12", "4540"},
         "Repayment period",
         "Repayment period calculation of Loan with Annual",
         "Repayment period calculation of Loan with Monthly"},
        {{"100000", "25", "", "4540"},
         "Interest rate",
         "Interest rate calculation of Loan with Annual",
         "Interest rate calculation of Loan with Monthly"},
    };
    for (int mode = 0; mode < 4; ++mode) {
        const Mode& expected = all[static_cast<std::size_t>(mode)];
        typeLoan(mode, expected.typed);
        run.click("cmdCalculate");
        for (const bool amortised : {false, true})
            for (const bool monthly : {false, true}) {
                openPanel(amortised, monthly);
                run.click("cmdVR");
                EXPECT_EQ(lastPreview().report().content.title,
                          expected.title + " of a loan" + (amortised ? " with amortisation" : ""));
                EXPECT_EQ(lastPreview().windowTitle(),
                          (amortised && monthly ? expected.monthly : expected.annual) + " Amortisation");
                EXPECT_FALSE(visible("fraPrint"));
                EXPECT_EQ(run.inPrint("SELECT [Heading],[YearMon] FROM [Loans]"),
                          modes[mode].toStdString() + (!amortised ? "|"
                                                       : monthly  ? "|Month"
                                                                  : "|Year"));
            }
        run.program.reports().closePreviews();
        RunningProgram::settle();
    }
    EXPECT_TRUE(run.desk.boxes.empty());
}

TEST_F(LoanReport, FeedsTheLoanItsChargesAndItsTable) {
    const std::string charges = "SELECT [FinText1],[FinText1A],round([FinNum1],2),[FinText2],round([FinNum2],2) "
                                "FROM [Loans]";
    const std::string table = "SELECT [Year],round([Capital],2),round([Interest],2),round([Required],2) FROM [Amort]";
    typeLoan(0, {"100000", "25", "12", ""});
    openPanel(true, false); // Print solves the loan first
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT [Num1],[Num2],[Num3],round([Num4],2) FROM [Loans]"),
              "100000|25|12|4540.6800000000003");
    EXPECT_EQ(run.inPrint(charges), "||0||0");
    EXPECT_EQ(run.inPrint(table), "1|44904.629999999997|9583.4799999999996|55095.370000000003\n"
                                  "2|50599.660000000003|3888.4499999999998|4495.7200000000003\n"
                                  "3|4495.7200000000003|44.960000000000001|0");

    run.click("cmdFinCharge");
    openPanel(true, true);
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint(charges), "Total Interest|: |13516.879999999999|Total Repayments|113516.88");
    EXPECT_EQ(run.inPrint("SELECT count(*),min([Year]),max([Year]) FROM [Amort]"), "25|1|25");
    EXPECT_EQ(run.inPrint("SELECT count(*) FROM [Loans]"), "1");

    openPanel(false, false); // the earlier table stays unchanged
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT count(*) FROM [Amort]"), "25");
    QTest::keyClick(run.program.reports().previews().back(), Qt::Key_F1);
    EXPECT_EQ(run.front()->objectName(), "frmBrowser");
}

TEST_F(LoanReport, TickingTheTableChoosesTheAnnualOne) {
    typeLoan(0, {"100000", "25", "12", ""});
    openPanel(true, true);
    run.click("Check1");
    EXPECT_FALSE(visible("fraIncAmort"));
    run.click("Check1");
    EXPECT_TRUE(run.control<QRadioButton>("Option1(0)")->isChecked());
    EXPECT_EQ(run.control<QRadioButton>("Option1(0)")->text(), "Annual");
    EXPECT_EQ(run.control<QRadioButton>("Option1(1)")->text(), "Monthly ");
    run.click("cmdPrintCancel");
    EXPECT_FALSE(visible("fraPrint"));
}

TEST_F(LoanReport, PrintsTheOneRowYearOfAShortLoan) {
    typeLoan(0, {"1000", "7", "12", ""});
    openPanel(true, false);
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT [Year],[Capital] FROM [Amort]"), "1|1000");
}

TEST_F(LoanReport, NothingIsPrintedOfALoanThatLacksAFigure) {
    const std::string before = run.inPrint("SELECT * FROM [Loans]");
    for (const QStringList& loan :
         {QStringList{"0", "25", "12", ""}, QStringList{"1000", "0", "12", ""}, QStringList{"1000", "25", "0", ""}}) {
        typeLoan(0, loan);
        openPanel(true, true);
        run.click("cmdVR");
        EXPECT_FALSE(visible("fraPrint"));
        EXPECT_EQ(run.focused(), "cmdOK");
        EXPECT_TRUE(run.program.reports().previews().empty());
    }
    EXPECT_EQ(run.inPrint("SELECT * FROM [Loans]"), before);
}

} // namespace
