#include <QRadioButton>
#include <QTextBrowser>

#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class MonthlyScreen : public testing::Test {
protected:
    void open() { run.menu("mnuPAYE"); }
    void leave() {
        run.screen("frmMonthly")->parentWidget()->close();
        RunningProgram::settle();
    }
    void inSettings(const std::string& sql) { store::Database(run.folder / "Default.Mdb").execute(sql); }
    std::string settings() { return shelltest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM [PAYESetup]"); }
    void confirmSettings() {
        run.click("cmdSettings");
        run.click("cmdSetupOK");
    }
    bool checked(const char* option) { return run.control<QRadioButton>(option)->isChecked(); }
    double& salary() { return run.record().tax.Salary; }

    RunningProgram run;
};

TEST_F(MonthlyScreen, WorksOutAMonth) {
    open();
    EXPECT_EQ(run.focused(), "silgEdit9");
    run.expectShown("dtMStartDate 01/03/2026, dtMEndDate 31/03/2026, numTaxLiability 0.00");
    // Cents in whole-rand fields are dropped, not rounded.
    run.typeAll("silgEdit9 65, numSalRemun 30000.99, numComm 1000, silgEdit13 10000.50, silgEdit12 0.25, "
                "numEmpRRFundCont 6000, numEmpERFundCont 9000, numEmpERMedAidCont 4000, numEmpEEMedAidCont 2000, "
                "numMedAidBens 2");
    run.expectShown("numSalRemun 30 000, silgEdit13 10 000.50, silgEdit12 0.25");
    run.click("cmdCalculate");
    // The first run set the rate to 0.8, so 27.5 % of 49 000.65 allows 13 475.18; the tax is 93 390.82 on 426 302.655 a
    // year, less 26 679.
    run.expectShown("numAllowableRFundDed 13 475, numMTAAns 8 000, numMAns1 177.12, numMAns2 177.12, numMAns3 355.25, "
                    "numMAns 5 559.40, numTaxCredit 752.00, numMTCForContri 1 246.75, numTaxLiability 3 560.64");
    EXPECT_NEAR(salary(), 426302.655, 0.001);
    EXPECT_FALSE(run.record().changed.any()); // it is a separate check: nothing of the client was edited

    run.typeAll("numSalRemun 99999999999, silgEdit13 0, numEmpRRFundCont 0, numEmpERFundCont 0");
    run.enter("silgEdit12", "   ");
    run.click("cmdCalculate");
    run.expectShown("numSalRemun 99 999 999 999, silgEdit13 0.00, silgEdit12 0.00, numMAns3 1 000 000 049.99");
    for (const auto& [field, most] : {std::pair{"silgEdit9", "150"}, std::pair{"numMedAidBens", "99"}}) {
        run.desk.expect(Answer::ok);
        run.type(field, "99999");
        EXPECT_EQ(run.focused(), field);
        run.type(field, most);
    }
}

TEST_F(MonthlyScreen, SettingsAreKeptAndTheirRateReachesTheFundTestARunLater) {
    open();
    run.typeAll("numSalRemun 10000, silgEdit13 10000, numEmpERFundCont 5000");
    run.click("cmdCalculate");
    run.expectShown("numAllowableRFundDed 4 950, numMTAAns 8 000"); // of 18 000
    run.click("cmdSettings");
    EXPECT_TRUE(checked("optTAIncRate80"));
    for (const char* button : {"cmdOK", "cmdCalculate", "cmdSettings", "cmdPrint"})
        EXPECT_FALSE(run.control(button)->isEnabled()) << button;
    run.click("optTAIncRate20");
    run.typeAll("numEmpEUIF 2, numEmpRUIF 3, numSkillPercent 1.5, numUIFLimit 1000.50");
    run.click("cmdSetupOK");
    EXPECT_TRUE(run.control("cmdPrint")->isEnabled());
    EXPECT_EQ(settings(), "2|3|1.5|1000.5|0.20000000000000001");
    // the levy is 1.5 % of 12 000 - 4 950
    run.expectShown("numAllowableRFundDed 4 950, numMTAAns 2 000, numMAns1 20.01, numMAns2 30.02, numMAns3 105.75");
    run.click("cmdCalculate");
    run.expectShown("numAllowableRFundDed 3 300"); // of 12 000
    run.click("cmdSettings");
    EXPECT_TRUE(checked("optTAIncRate20"));
    run.type("numEmpEUIF", "9");
    run.key(Qt::Key_Escape);
    EXPECT_EQ(settings(), "2|3|1.5|1000.5|0.20000000000000001");
    run.click("cmdSettings");
    run.expectShown("numEmpEUIF 2.000");
    for (const char* field : {"numEmpEUIF", "numEmpRUIF", "numSkillPercent"}) {
        run.desk.expect(Answer::ok);
        run.type(field, "100.5");
        EXPECT_EQ(run.desk.last().text, "Please enter a percentage from 0 to 100.");
        EXPECT_EQ(RunningProgram::focused(), field);
        run.enter(field, "100");
    }
}

TEST_F(MonthlyScreen, AnotherStoredRateIsUsedAndKept) {
    inSettings("UPDATE [PAYESetup] SET [TAIncRate8020] = 0.5");
    open();
    run.type("silgEdit13", "1000");
    run.click("cmdSettings");
    EXPECT_FALSE(checked("optTAIncRate80") || checked("optTAIncRate20"));
    run.click("cmdSetupOK");
    run.expectShown("numMTAAns 500");
    EXPECT_EQ(settings(), "1|1|1|17712|0.5");
}

TEST_F(MonthlyScreen, SettingsThatCannotBeReadOrWrittenAreTold) {
    open();
    run.click("cmdSettings");
    run.type("numEmpEUIF", "2");
    inSettings("DELETE FROM [PAYESetup]");
    run.desk.expect(Answer::ok);
    run.click("cmdSetupOK");
    EXPECT_TRUE(run.desk.last().text.contains("PAYESetup")) << run.desk.last().text.toStdString();
    run.expectShown("numEmpEUIF 2.000");
    run.click("cmdSetupCancel");
    run.click("cmdOK");
    for (const char* broken :
         {"DELETE FROM [PAYESetup]", "INSERT INTO [PAYESetup] VALUES (1, 1, 1, NULL, 0.8)",
          "UPDATE [PAYESetup] SET [UIFLimit] = -1", "UPDATE [PAYESetup] SET [UIFLimit] = 1, [SkillLevy] = 100.5",
          "UPDATE [PAYESetup] SET [SkillLevy] = 1, [EmployeeUIF] = -0.5",
          "UPDATE [PAYESetup] SET [EmployeeUIF] = 1, [EmployerUIF] = 'one'",
          "UPDATE [PAYESetup] SET [EmployerUIF] = 100, [TAIncRate8020] = 80"}) {
        inSettings(broken);
        salary() = 7;
        run.desk.expect(Answer::ok);
        open();
        EXPECT_FALSE(run.isOpen("frmMonthly")) << broken;
        EXPECT_EQ(salary(), 7);
    }
}

TEST_F(MonthlyScreen, WrongDatesHaveTheirBoxesAndNothingIsWorkedOut) {
    open();
    run.type("numSalRemun", "20000");
    run.click("cmdCalculate");
    run.type("numSalRemun", "30000");
    for (const char* answer : {"numMTAAns", "numMAns", "numTaxLiability"}) // of the salary before
        EXPECT_TRUE(run.control<QLineEdit>(answer)->font().italic()) << answer;
    for (const auto& [dates, text, focus] :
         {std::tuple{"dtMStartDate 31/03/2026, dtMEndDate 01/04/2026",
                     "The Start and End dates entered must be for the same Month", "dtMEndDate"},
          {"dtMStartDate 16/03/2026, dtMEndDate 15/03/2027", "The Start date entered must be before the End date",
           "dtMStartDate"}}) {
        run.typeAll(dates);
        for (const char* button : {"cmdCalculate", "cmdPrint"}) {
            run.desk.expect(Answer::ok);
            run.click(button);
            EXPECT_EQ(run.desk.last().text, text);
            EXPECT_EQ(run.desk.last().title, "Incorrect Date");
            EXPECT_EQ(run.desk.last().style, screenkit::BoxStyle::critical);
            EXPECT_EQ(run.focused(), focus);
            run.expectShown("numMAns 2 163.75");
            EXPECT_EQ(salary(), 240000);
        }
    }
    run.typeAll("dtMStartDate 15/03/2026, dtMEndDate 15/03/2026");
    run.click("cmdCalculate");
    EXPECT_NE(salary(), 240000);
    for (const char* bad : {"", "31/04/2026", "soon"}) { // the fields answer for what is no date
        run.desk.expect(Answer::ok);
        run.type("dtMEndDate", bad);
        EXPECT_EQ(run.desk.last().title, "Incorrect Date") << bad;
        run.desk.expect(Answer::ok);
        run.click("cmdCalculate");
        EXPECT_EQ(run.focused(), "dtMEndDate") << bad;
        run.type("dtMEndDate", "15/03/2026");
    }
}

// The scale uses the client's own income; looking at a month must not lose that figure.
TEST_F(MonthlyScreen, TheClientsIncomeComesBackUnlessTheUserCalculated) {
    run.saveClient("Botha");
    salary() = 500000;
    open();
    EXPECT_EQ(salary(), 0);
    EXPECT_FALSE(run.record().changed.any());
    confirmSettings(); // calculates, but the user did not ask for it
    leave();
    EXPECT_EQ(salary(), 500000);

    open();
    run.type("numSalRemun", "20000");
    run.click("cmdCalculate");
    leave();
    EXPECT_EQ(salary(), 240000);

    open();
    run.menu("mnuQuickTax");
    run.type("sidbEdit1(0)", "300000"); // entered in quick tax meanwhile
    open();
    confirmSettings(); // now overwrites that figure
    run.menu("mnuQuickTax");
    EXPECT_EQ(run.shown("sidbEdit1(0)"), "0.00");
    run.menu("mnuSave"); // stores the client's own
    EXPECT_EQ(run.inClients("SELECT [Salary] FROM [Data]"), "300000");
    EXPECT_EQ(run.shown("sidbEdit1(0)"), "300 000.00");

    open();
    confirmSettings();
    run.menu("mnuNewFile");
    EXPECT_EQ(salary(), 0) << "it was another client's";
}

TEST_F(MonthlyScreen, ExplainsItselfAndPrints) {
    open();
    run.click("cmdInfo");
    const QString text = run.control<QTextBrowser>("txtInfo")->toPlainText();
    EXPECT_TRUE(text.contains("\n\nNote that both the employer’s and the employee’s R/Fund contributions qualify"));
    EXPECT_TRUE(text.contains("limited to the lessor of contributions paid or 27.5%"));
    run.key(Qt::Key_Escape);
    EXPECT_FALSE(run.control("fraInfo_One")->isVisible());

    run.typeAll("silgEdit9 65, numSalRemun 20000, silgEdit13 1000, numEmpERMedAidCont 3000, numMedAidBens 1");
    run.click("cmdPrint"); // first calculates what was typed since
    run.type("Text1", "Ṱhoho-Nḓou <& Seun>");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT [TypeAM],[Employee],[AgeNum],[SalNum],[TravOne],[TravTwo],[MedExpNum],[SDateNum],"
                          "[EDateNum],[UIFEMPENum],round([SDLNum],2),round([Taxliabilitynum],2),[Taxcreditnum],"
                          "round([TaxcreditnumCons],3),[AnnCalcBens3num],round([TotalNum],3) FROM [IRP5Mon]"),
              "Monthly Check| For : Ṱhoho-Nḓou <& Seun>|65|20000|1000|800|0|01/03/2026|31/03/2026|177.12|238|"
              "2330.75|376|623.37599999999998|1|1331.374");
    EXPECT_EQ(run.inPrint("SELECT * FROM [PAYESetup]"), "1|1|1|17712|0.80000000000000004");
    ASSERT_EQ(run.program.reports().previews().size(), 1u);
    EXPECT_EQ(run.program.reports().previews().front()->windowTitle(),
              "Monthly - To export printout click on the suitcase button or goto Help");
    QString page = reporttest::textOfPdf(run.program.reports().pdf("Monthly.rpt")).simplified();
    for (const char* line : {"Monthly Check For : Ṱhoho-Nḓou <& Seun>", "Start date 01/03/2026, End date 31/03/2026",
                             "Remuneration/salary 20 000.00", "Total tax deduction 1 331.37",
                             "U.I.F. contribution employee (1 %) 177.12", "(E.& O.E.)"})
        EXPECT_TRUE(page.contains(line)) << line << "\n" << page.toStdString();

    run.type("numEmpERFundCont", "20000"); // more than may be deducted
    run.click("cmdPrint");
    run.type("Text1", " ");
    run.click("cmdVR");
    page = reporttest::textOfPdf(run.program.reports().pdf("Monthly.rpt")).simplified();
    EXPECT_TRUE(page.contains("Allowable R/Fund deduction 6 545.00")) << page.toStdString();
    EXPECT_FALSE(page.contains("For :"));
}

} // namespace
