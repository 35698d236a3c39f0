#include <QTableView>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using assessment::DrawDownPhases;
using shelltest::RunningProgram;

class DrawDownScreen : public testing::Test {
protected:
    DrawDownScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.record().drawDown = {0, 1, 2, 3};
        run.menu("mnuLivAnn");
        run.typeAll("numLumpInv 1000000, numFY(0) 1, numTY(0) 5, numInitDraw(0) 5000, numAnnIncEsc(0) 6, "
                    "numGrowRate(0) 10, numFY(1) 6, numTY(1) 20, numInitDraw(1) 9000, numAnnIncEsc(1) 3");
        run.enter("numGrowRate(1)", "8");
        RunningProgram::key(Qt::Key_Return); // past the table, which shows the same figures
    }
    DrawDownPhases& phases() { return run.record().drawDownPhases; }
    std::int16_t& flag() { return run.record().changed.DDLivAnnChanged; }
    screenkit::EditGrid* grid() { return run.control<screenkit::EditGrid>("grdMRD"); }
    void typeCell(int row, int column, const QString& text) {
        grid()->setFocus();
        grid()->setCurrentIndex(grid()->model()->index(row, column));
        RunningProgram::keys(grid(), text.left(1));
        RunningProgram::keys(QApplication::focusWidget(), text.mid(1));
        RunningProgram::key(Qt::Key_Return);
    }
    RunningProgram run;
};

TEST_F(DrawDownScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().drawDown, (assessment::DrawDown{1000000, 1, 2, 3}));
    EXPECT_EQ(phases(), (DrawDownPhases{{1, 5, 5000, 6, 10}, {6, 20, 9000, 3, 8}, {}}));
    EXPECT_EQ(flag(), 1);
    run.expectShown("txtCLName Ms T. Ṱhoho-Nḓou, numNetPercent 98.450, numDrawYears 20, numLastPortfolio 311 760.21, "
                    "numLastIncome 5 042.02, txtAns The income is paid for 20 years.");
    for (const char* title : {"Draw Down Annuities", "Draw Down Annuities With Amortisation"}) {
        run.click("cmdPrint");
        if (title[19] != 0) run.click("Check1");
        run.click("cmdVR");
        EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), title);
        EXPECT_EQ(run.inPrint("SELECT count(*) FROM Amort"), title[19] != 0 ? "20" : "0");
    }
    EXPECT_EQ(run.inPrint("SELECT Name, LSAmt, GRLA, MidP, ESC, printf('%.4f', Ans), FromYear0, ToYear0, LAInitDraw0, "
                          "Esc0, GRLA0, FromYear1, ToYear1, LAInitDraw1, Esc1, GRLA1, BrokerCom, SetupCosts, "
                          "AnnPortFee, AnnualDiv, TrailComm, MaxIncAllowed, MinIncAllowed FROM LivAnn"),
              "Ms T. Ṱhoho-Nḓou|1000000|1|2|3|98.4500|1|5|5000|6|10|6|20|9000|3|8|1.5|500|0.5|1|1|17.5|2.5");
    reporttest::expectWords(
        reporttest::textOfPdf(reports::toPdf(*run.program.reports().prepare("ddannA.rpt"))).simplified(),
        {"The income is paid for 20 years.", "Initial monthly income R 5 000.00 R 9 000.00",
         "Year 1 1 003 783.40 5 000.00 Year 5 1 106 558.37 6 312.38 Year 10 902 561.13 10 129.58 Year 15 549 462.16 "
         "8 886.32 Year 20 311 760.21 5 042.02",
         "5 1 106 558.37 6 312.38 6.00 6 1 079 816.50 9 000.00 42.58 7"});
}

TEST_F(DrawDownScreen, TheTableIsAnotherViewOfThePhases) {
    flag() = 0;
    typeCell(0, 2, "7000.5");
    EXPECT_EQ(flag(), 1);
    run.click("cmdAddRow");
    typeCell(2, 0, "9");
    EXPECT_EQ(phases(), (DrawDownPhases{{1, 5, 7000.5, 6, 10}, {6, 20, 9000, 3, 8}, {{9}}}));
    run.click("cmdOK");
    run.menu("mnuLivAnn"); // the rows stay for the session
    run.type("numGrowRate(1)", "8.5");
    QStringList rows;
    for (const QStringList& row : RunningProgram::cells(grid()))
        rows << row.join('|');
    EXPECT_EQ(rows.join('/'), "1|5|7 000.50|6.000|10.000/6|20|9 000.00|3.000|8.500/9|0|0.00|0.000|0.000");
    for (int row = 0; row < 2; ++row)
        run.click("cmdDeleteRow");
    EXPECT_EQ(phases(), (DrawDownPhases{{9}, {}, {}}));
    run.expectShown("numFY(0) 9, numTY(1) 0");
    EXPECT_EQ(grid()->model()->rowCount(), 2);
}

TEST_F(DrawDownScreen, LimitsAreTold) {
    const QString range = "Initial Monthly Income Drawn", most = "The Initial Monthly Income can only be maximum of ";
    const auto only = [](const QString& from) { return "Only a value between " + from + " can be entered!"; };
    // entry: the field, what it refuses, and a legal figure, or nothing where the screen enters one
    const auto refuses = [this](const QString& entry, const QString& told,
                                const QString& title = "Monthly requirement details") {
        const QStringList words = entry.split(' ');
        run.expectRefused(words[0], words[1], told, title);
        if (words.size() > 2) run.type(words[0], words[2]);
    };
    refuses("numInitDraw(0) 14583.34 5000", most + "14 583", range);
    refuses("numInitDraw(0) 2083.33 5000", "The Initial Monthly Income can only be a minimum of 2 083", range);
    refuses("numLumpInv 340000 1000000", most + "4 958", range);
    refuses("numFY(1) 7", "Only a value of one year more than the Previous 'To Year' Allowed.", "From Year!");
    refuses("numFY(0) 100 1", only("0 and 99"));
    refuses("numTY(1) 51 0", only("1 and 50"));
    refuses("numInitDraw(1) 100000000 0", only("0 and 99 999 999"));
    refuses("numAnnIncEsc(0) 99 98.9", only("-99 and 99"));
    refuses("numAnnIncEsc(1) -99 0", only("-99 and 99"));
    refuses("numGrowRate(1) 99.01 99", only("0 and 99"));
    const auto cell = [&](int row, int column, const QString& typed, const QString& told) {
        run.desk.expect(screenkit::Answer::ok);
        typeCell(row, column, typed);
        EXPECT_EQ(run.desk.last().text, told);
        RunningProgram::key(Qt::Key_Escape);
    };
    for (const char* year : {"1", "51"})
        cell(1, 1, year, only("1 and 50"));
    cell(0, 2, "14584", most + "14 583");
    typeCell(1, 2, "14584"); // the range is the first row's, and only from above
    typeCell(0, 2, "1");
    EXPECT_EQ(phases().phase1.LAInitDraw + phases().phase0.LAInitDraw, 14585);
    run.click("cmdCosts");
    const auto cost = [&](const QString& entry, const QString& name, const QString& fault) {
        refuses(entry, "The " + name + " cannot " + fault, "Incorrect " + name + "!");
    };
    cost("numInitCom 99.5 3", "Initial up-front commission", "exceed 99%");
    cost("numAnnPortFee 30.5 3", "Annual management fee", "exceed 30%");
    cost("numAnnDiv 50.5 3", "Annual Dividend", "exceed 50%");
    cost("numMaxIncAllowed 17.6", "Maximum income allowed", "be below 2.5% or exceed 17.5%");
    cost("numMinIncAllowed 2.4 3", "Minimum income allowed", "be below 2.5% or exceed 17.5%");
    run.expectShown("numFY(1) 6, numMaxIncAllowed 2.500");
}

TEST_F(DrawDownScreen, CostsTableGraphAndASave) {
    run.click("cmdCosts");
    for (const char* name : {"cmdOK", "cmdAmort", "cmdCalculate", "cmdGraph", "cmdCosts"})
        EXPECT_FALSE(run.control(name)->isEnabled()) << name;
    run.typeAll("numInitCom 2, numSetupCosts 750.5, numAnnPortFee 0.75, numAnnDiv 1.25, numTrailComm 0.625, "
                "numMaxIncAllowed 16, numMinIncAllowed 3");
    run.click("cmdOKCosts");
    EXPECT_EQ(shelltest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM livann"), "2|750.5|0.75|1.25|0.625|16|3");
    EXPECT_EQ(run.shown("numNetPercent"), "97.925");
    run.click("cmdAmort");
    const auto years = RunningProgram::cells(run.control<QTableView>("grdPayments"));
    EXPECT_EQ(years[5].join('|'), "6|1 107 069|9 000.00|42.58");
    run.click("cmdGridClose");
    run.click("cmdGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Living Annuity");
    EXPECT_NEAR(graph.series[0].values[5], 1107068.744, 1e-3);
    EXPECT_EQ(graph.series[1].values[5], 108000);
    EXPECT_EQ(graph.points, 20);
    run.click("cmdOK");
    run.typeAll("numGrowRate(0) 1.05, numTY(1) 0"); // no nominal rate of its own: the run before lends its own
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numLastPortfolio"), "1 013 137.66");
    run.menu("mnuSave");
    EXPECT_EQ(flag(), 1) << "for good: the phases are not saved";
    run.type("numLumpInv", "0");
    run.click("cmdGraph");
    EXPECT_FALSE(run.isOpen("frmGraph"));
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    EXPECT_EQ(run.shown("txtAns"), "Enter the amount, and the income and growth rate of the first phase.");
}

} // namespace
