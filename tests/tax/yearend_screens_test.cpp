// The screens of a client's tax year's end: lump sums, estate duty, retirement funding and travel.
#include <QRadioButton>

#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class YearEnd : public testing::Test {
protected:
    YearEnd() { run.record().client.Name = "Ms Ṱhoho-Nḓou"; }
    bool isOn(const char* option) { return run.control<QRadioButton>(option)->isChecked(); }
    std::string inDefault(const char* table) { return shelltest::rowsOf(run.folder / "Default.Mdb", table); }
    void setDefault(const char* table) { store::Database(run.folder / "Default.Mdb").execute(table); }
    /// Types, works out by `calculate`, and compares what is shown; then prints: the row, the title and a line.
    void expectPrinted(const char* typed, const QString& calculate, const char* shown, const std::string& table,
                       const std::string& row, const char* report, const char* title, const char* line) {
        run.typeAll(typed);
        run.click(calculate);
        run.expectShown(shown);
        run.click("cmdPrint");
        run.click("cmdVR");
        QStringList cells;
        for (const QString& cell : QString::fromStdString(run.inPrint("SELECT * FROM " + table)).split('|'))
            cells << (cell.contains('.') && !cell.contains('%') ? QString::number(cell.toDouble(), 'g', 12) : cell);
        EXPECT_EQ(cells.join('|').toStdString(), row);
        EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), title);
        const QString page = reporttest::textOfPdf(run.program.reports().pdf(report)).simplified();
        EXPECT_TRUE(page.contains(line)) << page.toStdString();
        run.window().activateWindow(); // the report was in front
        RunningProgram::settle();
    }
    RunningProgram run;
};

TEST_F(YearEnd, LumpSumsAreHeldEachInItsFieldAndPrinted) {
    run.menu("mnuTaxLumpSum");
    const QString columns[] = {"RRExGrtCTY0204", "RetrenchmentLumps", "RetDeath"};
    QString typed = "numRetireLumpSumBefore 11.5";
    std::string figures = "11.5";
    for (int i = 0; i < 21; ++i) {
        typed += QString(", num%1%2 %3").arg(columns[i % 3]).arg(2021 + i / 3).arg(100001 + i);
        figures += "|" + std::to_string(100001 + i);
    }
    run.typeAll(typed);
    for (const char* option : {"opt1stLumpTaken(0)", "opt1stLumpTaken(2)", "opt1stLumpTaken(1)"})
        run.click(option);
    // 36 % of this year's 200 041
    expectPrinted("numRetDeath2021 100003", "cmdCalculate", "numAnsLS2 72 015", "IRP5IncDed",
                  figures + "||T||72014.76|2100242.5|483837.3|1900201.5|411822.54", "LumpSums.rpt",
                  "Lump Sums - To export printout click on the suitcase button or goto Marlowbeck Help",
                  "Tax due on lump sums taken this year 72 014.76");
    EXPECT_EQ(run.record().lumpSums.FstLumpTaken, 2);
}

TEST_F(YearEnd, ATIsForAnAmountThisYearAndGoesWithIt) {
    auto& sums = run.record().lumpSums;
    run.saveClient("Botha");
    sums.FstLumpTaken = 1; // beside an amount of 0: to look changes nothing
    run.menu("mnuTaxLumpSum");
    run.click("cmdCalculate");
    EXPECT_TRUE(sums.FstLumpTaken == 1 && isOn("opt1stLumpTaken(0)") && run.record().ClientChanged == 0);
    const auto isEnabled = [&] { return run.control("opt1stLumpTaken(2)")->isEnabled(); };
    run.type("numRetDeath2027", "-5");
    EXPECT_FALSE(isEnabled());
    run.type("numRetDeath2027", "600000");
    EXPECT_EQ(RunningProgram::focused(), "opt1stLumpTaken(2)");
    run.key(Qt::Key_Space);
    run.enter("numRetDeath2027", ""); // being retyped
    EXPECT_EQ(sums.FstLumpTaken, 3);
    run.type("numRetDeath2027", "-7");
    EXPECT_TRUE(isEnabled() && isOn("opt1stLumpTaken(2)"));
    run.type("numRetDeath2027", "");
    EXPECT_FALSE(isEnabled() || isOn("opt1stLumpTaken(2)") || sums.FstLumpTaken != 0);
    EXPECT_EQ(run.record().changed.LumpSumChanged, 1);
    run.menu("mnuPersDet");
    run.menu("mnuTaxLumpSum"); // its own flag ends here, the client's stays
    EXPECT_TRUE(run.record().changed.LumpSumChanged == 0 && run.record().ClientChanged == 1);
}

TEST_F(YearEnd, AnEstateIsHeldAndPrintedWithThePracticesRates) {
    run.record().estateDuty.PropEstate = 1.75;
    run.menu("mnuEstateDutyEstimator");
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().estateDuty.PropEstate, 1.75) << "keeps its cents until retyped";
    expectPrinted(
        "numPropEstate 3500100.99, numPolInvEstate 20, numOtherEstate 3, numLessAccEstate 101, "
        "numPropExecutor 4000001, numPolInvExecutor 60, numOtherExecutor 7, numLessAccExecutor 8",
        "cmdCalculate", "numEstateDuty 4, numExecutorsFees 140 002", "EstateDutyEst",
        "3500000|20|3.5|25|30000000|Ms Ṱhoho-Nḓou|3500100|20|3|3500123|101|3500022|4.4|4000001|60|7|4000068|8|"
        "4000060|140002.1",
        "estatedutyest.rpt", "Estate Duty Estimator", "Estate duty, executor's fees 4.40 140 002.10");
    run.expectRefused("numLessAccExecutor", "-1", "Please enter an amount that is not negative.", "Incorrect Amount");
    run.type("numLessAccExecutor", "0");
    run.click("cmdSettings");
    run.expectRefused("numRateofTax", "101", "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
    run.typeAll("numRateofTax 10, numEstateDutyRebate 1000000.5, numSndBracket 2000000, numRateofTax2 30, "
                "numExecFeesRate 2.125");
    setDefault("DELETE FROM EstateDutyEst");
    run.desk.expect(Answer::ok);
    run.click("cmdOKCosts");
    run.expectShown("numRateofTax 10.000, numEstateDuty 4");
    setDefault("INSERT INTO EstateDutyEst DEFAULT VALUES");
    run.click("cmdOKCosts");
    EXPECT_EQ(inDefault("SELECT * FROM EstateDutyEst"), "1000000|10|2.125|30|2000000");
    run.expectShown("numEstateDuty 550 037, numExecutorsFees 85 001"); // of 1 million and of 1 500 123
    run.click("cmdOK");
    setDefault("UPDATE EstateDutyEst SET SndBracket = -1");
    run.desk.expect(Answer::ok);
    run.menu("mnuEstateDutyEstimator");
    EXPECT_FALSE(run.isOpen("frmEstateDutyEst"));
}

TEST_F(YearEnd, AContributionIsHeldAndPrintedAndTheClientsIncomeComesBackUnlessTheUserCalculated) {
    double& salary = run.record().tax.Salary;
    auto& held = run.record().raTaxAdvantage;
    salary = 5;
    run.record().tax.Age = 45;
    run.menu("mnuRATaxAdv");
    run.expectShown("txtLastName Ms Ṱhoho-Nḓou, numTaxPayerAge 45, lblPerAns (0.0%)");
    EXPECT_EQ(held, assessment::RATaxAdvantage()) << "to look changes nothing";
    run.type("numProposedRF", "100000");
    EXPECT_TRUE(held.RASurname == "Ms Ṱhoho-Nḓou" && run.record().changed.RATaxAdvChanged == 1);
    const char* const title = "R/A Advantage - To export printout click on the suitcase button or goto Holtwick Help";
    const std::string table = "RATaxAdvantage";
    expectPrinted("txtLastName Ndou & Seun, numTaxPayerAge 66, numRemuneration 610000.5, numTaxableInc 500000.25, "
                  "numTaxCGT 20000.75",
                  "cmdRAdvCalculate",
                  "numMaxBen 167 750.14, numTaxSave 31 000.00, numPropRFPaidSARS 31 000.00, lblPerAns (31.0%)", table,
                  "Ndou & Seun|66|610000.5|500000.25|20000.75|167750.1375|100000|31000|31000|69000|(31.0%)|0",
                  "RATaxAdvantage.rpt", title, "Tax savings R 31 000.00");
    run.click("cmdOkLC");
    EXPECT_EQ(salary, 420001);
    salary = 5;
    run.menu("mnuRATaxAdv"); // taxes again, but only to show it
    EXPECT_EQ(salary, 420001);
    run.type("numTaxableInc", "0");
    run.click("cmdRAdvCalculate"); // taxes nothing
    run.click("cmdOkLC");
    EXPECT_EQ(salary, 5);
    setDefault("UPDATE Setup SET RptLanguage = 'A'");
    run.menu("mnuRATaxAdv");
    expectPrinted("numTaxableInc 90000", "cmdRAdvCalculate", "numMaxBen 90 000.00, lblPerAns 0.0%", table,
                  "Ndou & Seun|66|610000.5|90000|20000.75|90000|100000|0|0|0|0.0%|1", "RATaxAdvantageA.rpt", title,
                  "Inkomste is onder die belastingdrempel");
    EXPECT_TRUE(run.control("Label1(6)")->isVisible());
    run.click("cmdVideo");
    EXPECT_TRUE(run.desk.opened.back().endsWith("/rf-advantage-videos/"));
}

TEST_F(YearEnd, ATravelClaimIsHeldAndPrintedInTwoLanguagesAndNotStored) {
    run.menu("mnuTravClaim");
    const char* const title = "Car Allowance - To export printout click on the suitcase button or goto Help";
    const std::string table = "traveldeduction";
    run.click("Check1");
    expectPrinted(
        "Text1 Citi Golf, silgEdit1 385000.5, silgEdit2 60000, silgEdit3 40000, silgEdit4 10000, "
        "silgEdit5 12000, dtCarAlEndDate 31/12/2026, dtCarAlStartDate 01/07/2026",
        "cmdCalculate",
        "silgEdit12 184, sidbEdit3(0) 12 000.00, sidbEdit3(1) 18 000.00, sidbEdit3(2) 30 000.00, "
        "sidbEdit3(3) 111 273.00, silgEdit13(4) 184, sidbEdit3(4) 30 000.00, silgEdit13(6) 365, "
        "sidbEdit1(0) 186.9792, sidbEdit1(1) 0.0, sidbEdit1(2) 71.4, sidbEdit1(3) 258.4, "
        "sidbEdit1(4) 31 005.50",
        table,
        "|1|Citi Golf|60000|40000|10000|12000|31005.504|30000|12000|18000||385000.5|184|111273|186.9792|0|71.4|258.4|"
        "Fuel costs not included|Maintenance costs|01/07/2026|31/12/2026|0|0|0|0|0|0|0|0",
        "caepnrk.rpt", title, "Claim R 31 005.50");
    EXPECT_TRUE(!run.control("silgEdit6")->isEnabled() && !run.control("fraActual")->isVisible());
    run.click("Check2");
    run.click("Option4");
    EXPECT_TRUE(!run.control("dtCarAlEndDate")->isEnabled() && !run.control("fraDeemed")->isVisible());
    run.click("cmdPrint");
    run.type("Text3", "Ṱhoho-Nḓou <& Seun>");
    run.click("optRptLanguage(1)");
    run.click("cmdVR");
    EXPECT_EQ(inDefault("SELECT RptLanguage FROM Setup"), "A");
    expectPrinted(
        "silgEdit6 30000, silgEdit7 20000, silgEdit8 10000, silgEdit9 5000, silgEdit11 85000.25", "cmdCalculate",
        "sidbEdit2(0) 12 000.00, sidbEdit2(1) 18 000.00, sidbEdit2(2) 30 000.00, "
        "sidbEdit2(3) 150 000.25, sidbEdit2(4) 90 000.15, sidbEdit2(5) 60 000.00, sidbEdit2(6) 60 000.00",
        table,
        "Ṱhoho-Nḓou <& Seun>|1|Citi Golf|60000|40000|10000|12000|60000|30000|12000|18000||385000.5|184|0|0|0|0|0|"
        "Brandstofkoste uitgesluit|Instandhouding koste uitgesluit|01/07/2026|31/12/2026|30000|20000|10000|5000|0|"
        "85000.25|150000.25|90000.15",
        "caaprk.rpt", title, "Huurbetalings 85 000.25");
    // Whichever of lease and wear and tear is typed second goes back.
    for (const auto& [first, second] : {std::pair{"silgEdit11", "silgEdit10"}, {"silgEdit10", "silgEdit11"}}) {
        run.type(first, "100");
        run.enter(second, "200");
        run.desk.expect(Answer::ok);
        run.click("cmdCalculate");
        EXPECT_EQ(run.desk.last().title, "Single Payment");
        EXPECT_EQ(run.desk.last().text, "Only one amount for either Wear & Tear or Lease payments will be accepted");
        run.expectShown(QString("%1 100.00, %2 0.00").arg(first, second));
        run.type(first, "0");
    }
    EXPECT_FALSE(run.record().changed.any());
    run.menu("mnuNewFile");
    EXPECT_EQ(run.record().car, assessment::CarAll());
    EXPECT_EQ(run.control<QLineEdit>("silgEdit1", "frmCarAll")->text(), "0.00");
}

TEST_F(YearEnd, TheDatesOfATravelClaimStayInTheYearAndInOrder) {
    run.menu("mnuTravClaim");
    const QString first = "The date entered is not correct please enter a date between ";
    run.expectRefused("dtCarAlStartDate", "28/02/2026", first + "01/03/2026 and 28/02/2027", "Incorrect Date");
    run.type("dtCarAlStartDate", "01/04/2026");
    for (const char* end : {"01/03/2027", "31/03/2026"})
        run.expectRefused("dtCarAlEndDate", end, first + "01/04/2026 and 28/02/2027", "Incorrect Date");
    run.type("dtCarAlEndDate", "01/04/2026");
    run.expectRefused("dtCarAlStartDate", "02/04/2026", first + "01/03/2026 and 01/04/2026", "Incorrect Date");
    run.typeAll("dtCarAlStartDate 01/03/2026, dtCarAlEndDate ");
    run.expectShown("silgEdit12 0");
    run.desk.expect(Answer::ok);
    run.click("cmdOK");
    EXPECT_EQ(run.desk.last().text,
              "The dates entered are not correct please enter a dates between 01/03/2026 and 28/02/2027");
    EXPECT_EQ(RunningProgram::focused(), "dtCarAlEndDate");
}

} // namespace
