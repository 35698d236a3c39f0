#include <gtest/gtest.h>

#include <QTableView>

#include "reports/frmGraph.h"
#include "reports/layout_support.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using assessment::DrawDownPhase, assessment::DrawDownPhases;
using screenkit::Answer;
using shelltest::RunningProgram;

constexpr const char* details = "Monthly requirement details";
constexpr const char* twoPhases =
    "numLumpInv 1000000, numFY(0) 1, numTY(0) 5, numInitDraw(0) 5000, numAnnIncEsc(0) 6, numGrowRate(0) 10, "
    "numFY(1) 6, numTY(1) 20, numInitDraw(1) 9000, numAnnIncEsc(1) 3, numGrowRate(1) 8";

class DrawDownScreen : public testing::Test {
protected:
    DrawDownScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        open();
    }
    void open() { run.menu("mnuLivAnn"); }
    DrawDownPhases& phases() { return run.record().drawDownPhases; }
    std::int16_t& flag() { return run.record().changed.DDLivAnnChanged; }
    screenkit::EditGrid* grid() { return run.control<screenkit::EditGrid>("grdMRD"); }
    /// Types into a cell of the table and leaves it by Enter.
    void typeCell(int row, int column, const QString& text) {
        grid()->setFocus();
        grid()->setCurrentIndex(grid()->model()->index(row, column));
        RunningProgram::keys(grid(), text.left(1));
        if (text.size() > 1) RunningProgram::keys(QApplication::focusWidget(), text.mid(1));
        RunningProgram::key(Qt::Key_Return);
    }
    RunningProgram run;
};

TEST_F(DrawDownScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    run.expectShown("txtCLName Ms T. Ṱhoho-Nḓou, txtAns ");
    run.record().drawDown = {0, 1, 2, 3};
    run.typeAll(twoPhases);
    EXPECT_EQ(run.record().drawDown, (assessment::DrawDown{1000000, 1, 2, 3}));
    EXPECT_EQ(phases(), (DrawDownPhases{{1, 5, 5000, 6, 10}, {6, 20, 9000, 3, 8}, {}}));
    EXPECT_EQ(flag(), 1);
    run.enter("numGrowRate(1)", "8");
    RunningProgram::key(Qt::Key_Return); // past the table, which shows the same figures
    run.expectShown("numNetPercent 98.450, numDrawYears 20, numLastPortfolio 311 760.21, numLastIncome 5 042.02");
    EXPECT_EQ(run.shown("txtAns"), "The income is paid for 20 years.");
    run.click("cmdPrint");
    run.click("Check1");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT Name, LSAmt, GRLA, MidP, ESC, Ans, FromYear0, ToYear0, LAInitDraw0, Esc0, GRLA0, "
                          "FromYear1, ToYear1, LAInitDraw1, Esc1, GRLA1, BrokerCom, SetupCosts, AnnPortFee, AnnualDiv, "
                          "TrailComm, MaxIncAllowed, MinIncAllowed, Sentence FROM LivAnn"),
              "Ms T. Ṱhoho-Nḓou|1000000|1|2|3|98.450000000000003|1|5|5000|6|10|6|20|9000|3|8|1.5|500|0.5|1|1|17.5|2.5|"
              "The income is paid for 20 years.");
    EXPECT_EQ(run.inPrint("SELECT printf('%.2f %.2f, %.2f %.2f, %.2f %.2f, %.2f %.2f, %.2f %.2f', T11, T21, T12, T22, "
                          "T13, T23, T14, T24, TY20, TY21) FROM LivAnn"),
              "1003783.40 5000.00, 1106558.37 6312.38, 902561.13 10129.58, 549462.16 8886.32, 311760.21 5042.02");
    EXPECT_EQ(run.inPrint("SELECT count(*), max(Year) FROM Amort"), "20|20");
    EXPECT_EQ(run.inPrint("SELECT printf('%.2f %.2f %.2f', Capital, Interest, Required) FROM Amort WHERE Year = 6"),
              "1079816.50 9000.00 42.58");
    auto* preview = run.program.reports().previews().back();
    EXPECT_EQ(preview->windowTitle(), "Draw Down Annuities With Amortisation");
    const auto report = run.program.reports().prepare("ddannA.rpt");
    reporttest::expectSound(report->layout);
    reporttest::expectWords(reporttest::textOfPdf(reports::toPdf(*report)).simplified(),
                            {"The income is paid for 20 years.", "Initial monthly income R 5 000.00 R 9 000.00",
                             "Year 20 311 760.21 5 042.02", "6 1 079 816.50 9 000.00 42.58",
                             "Growth rate, as saved earlier 1.00 % a year",
                             "This report may not be construed as any form of quotation issued by a"});
    run.click("cmdPrint");
    run.click("Check1");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Draw Down Annuities");
}

TEST_F(DrawDownScreen, TheTableIsAnotherViewOfThePhases) {
    run.typeAll("numTY(0) 5, numFY(1) 6, numAnnIncEsc(1) 3");
    EXPECT_EQ(RunningProgram::cells(grid()),
              (std::vector<QStringList>{{"0", "5", "0.00", "0.000", "0.000"}, {"6", "0", "0.00", "3.000", "0.000"}}));
    flag() = 0;
    typeCell(0, 2, "7000.5");
    EXPECT_EQ(flag(), 1);
    typeCell(1, 4, "8.125");
    run.click("cmdAddRow");
    typeCell(2, 0, "9");
    EXPECT_EQ(phases(), (DrawDownPhases{{0, 5, 7000.5}, {6, 0, 0, 3, 8.125}, {{9}}}));
    run.expectShown("numInitDraw(0) 7 000.50, numGrowRate(1) 8.125");
    run.click("cmdOK");
    open(); // the rows stay for the session
    EXPECT_EQ(RunningProgram::cells(grid()).back().front(), "9");
    EXPECT_EQ(run.shown("numFY(1)"), "6");
    grid()->setCurrentIndex(grid()->model()->index(0, 0));
    run.click("cmdDeleteRow");
    run.click("cmdDeleteRow");
    EXPECT_EQ(phases(), (DrawDownPhases{{9}, {}, {}}));
    EXPECT_EQ(grid()->model()->rowCount(), 2);
    run.record().changed = {};
    run.menu("mnuNewFile");
    open();
    EXPECT_EQ(phases(), DrawDownPhases{});
}

TEST_F(DrawDownScreen, LimitsAreTold) {
    constexpr const char* range = "Initial Monthly Income Drawn";
    constexpr const char* above = "The Initial Monthly Income can only be maximum of 14 583";
    run.typeAll("numLumpInv 1000000, numTY(0) 5, numInitDraw(0) 5000");
    const struct {
        const char *field, *typed, *told, *title, *after;
    } cases[] = {
        {"numInitDraw(0)", "14583.34", above, range, "5000"},
        {"numInitDraw(0)", "2083.33", "The Initial Monthly Income can only be a minimum of 2 083", range, "5000"},
        {"numLumpInv", "340000", "The Initial Monthly Income can only be maximum of 4 958", range, "1000000"},
        {"numFY(1)", "7", "Only a value of one year more than the Previous 'To Year' Allowed.", "From Year!", "6"},
        {"numFY(0)", "100", "Only a value between 0 and 99 can be entered!", details, "1"},
        {"numTY(1)", "51", "Only a value between 1 and 50 can be entered!", details, "0"},
        {"numInitDraw(1)", "100000000", "Only a value between 0 and 99 999 999 can be entered!", details, "0"},
        {"numAnnIncEsc(0)", "99", "Only a value between -99 and 99 can be entered!", details, "98.9"},
        {"numGrowRate(1)", "99.01", "Only a value between 0 and 99 can be entered!", details, "99"},
    };
    for (const auto& c : cases) {
        run.expectRefused(c.field, c.typed, c.told, c.title);
        if (QString(c.field) == "numFY(1)") {
            EXPECT_EQ(run.shown(c.field), c.after) << "set right by the screen";
        }
        run.type(c.field, c.after);
    }
    run.type("numTY(0)", "8");
    run.desk.expect(Answer::ok);
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numFY(1)"), "9");
    const struct {
        int row, column;
        const char *typed, *told, *title;
    } cells[] = {
        {0, 0, "100", "Only a value between 0 and 99 can be entered!", details},
        {1, 1, "1", "Only a value between 1 and 50 can be entered!", details},
        {1, 1, "51", "Only a value between 1 and 50 can be entered!", details},
        {1, 2, "100000000", "Only a value between 0 and 99 999 999 can be entered!", details},
        {0, 2, "14584", above, range},
        {1, 3, "-99", "Only a value between -99 and 99 can be entered!", details},
        {0, 4, "99.5", "Only a value between 0 and 99 can be entered!", details},
    };
    const DrawDownPhases before = phases();
    for (const auto& c : cells) {
        run.desk.expect(Answer::ok);
        typeCell(c.row, c.column, c.typed);
        EXPECT_EQ(run.desk.last().text, c.told);
        EXPECT_EQ(run.desk.last().title, c.title);
        RunningProgram::key(Qt::Key_Escape);
    }
    EXPECT_EQ(phases(), before);
    typeCell(1, 2, "14584"); // only the first row has the range, and only from above
    typeCell(0, 2, "1");
    EXPECT_EQ(phases().phase1.LAInitDraw, 14584);
    EXPECT_EQ(phases().phase0.LAInitDraw, 1);
}

TEST_F(DrawDownScreen, CostsAreThePractices) {
    run.typeAll(twoPhases);
    flag() = 0;
    run.click("cmdCosts");
    EXPECT_EQ(RunningProgram::focused(), "numInitCom");
    for (const char* name : {"cmdOK", "cmdAmort", "cmdCalculate", "cmdGraph", "cmdCosts"})
        EXPECT_FALSE(run.control(name)->isEnabled()) << name;
    const struct {
        const char *field, *typed, *told, *title;
    } cases[] = {
        {"numInitCom", "99.5", "The Initial up-front commission cannot exceed 99%",
         "Incorrect Initial up-front commission!"},
        {"numAnnPortFee", "30.5", "The Annual management fee cannot exceed 30%", "Incorrect Annual management fee!"},
        {"numAnnDiv", "50.5", "The Annual Dividend cannot exceed 50%", "Incorrect Annual Dividend!"},
        {"numTrailComm", "101", "The Trail commission cannot be below 0% or exceed 100%",
         "Incorrect Trail commission!"},
        {"numMaxIncAllowed", "17.6", "The Maximum income allowed cannot be below 2.5% or exceed 17.5%",
         "Incorrect Maximum income allowed!"},
        {"numMinIncAllowed", "2.4", "The Minimum income allowed cannot be below 2.5% or exceed 17.5%",
         "Incorrect Minimum income allowed!"},
    };
    for (const auto& c : cases) {
        run.expectRefused(c.field, c.typed, c.told, c.title);
        if (QString(c.field) == "numMaxIncAllowed") {
            EXPECT_EQ(run.shown(c.field), "2.500");
        }
        run.type(c.field, "3");
    }
    run.click("cmdCancelCosts");
    const std::string shipped = "1.5|500|0.5|1|1|17.5|2.5";
    const auto stored = [&] { return shelltest::rowsOf(run.folder / "Default.Mdb", "SELECT * FROM livann"); };
    EXPECT_EQ(stored(), shipped);
    run.click("cmdCosts");
    run.expectShown("numInitCom 1.500, numSetupCosts 500.00, numAnnPortFee 0.500, numMaxIncAllowed 17.500");
    run.typeAll("numInitCom 2, numSetupCosts 750.5, numAnnPortFee 0.75, numAnnDiv 1.25, numTrailComm 0.625, "
                "numMaxIncAllowed 16, numMinIncAllowed 3");
    run.click("cmdOKCosts");
    EXPECT_EQ(stored(), "2|750.5|0.75|1.25|0.625|16|3");
    EXPECT_EQ(run.shown("numNetPercent"), "97.925");
    EXPECT_EQ(flag(), 0);
    run.click("cmdOK");
    open();
    EXPECT_EQ(run.shown("numNetPercent"), "97.925");
}

TEST_F(DrawDownScreen, TableAndGraphShowTheYears) {
    run.click("cmdGraph");
    EXPECT_FALSE(run.isOpen("frmGraph"));
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
    run.typeAll(twoPhases);
    run.click("cmdAmort");
    const auto* years = run.control<QTableView>("grdPayments");
    EXPECT_EQ(years->model()->headerData(3, Qt::Horizontal).toString(), "% Change");
    EXPECT_EQ(RunningProgram::cells(years)[5], (QStringList{"6", "1 079 816", "9 000.00", "42.58"}));
    EXPECT_EQ(years->model()->rowCount(), 20);
    run.click("cmdGridClose");
    run.click("cmdGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Living Annuity");
    EXPECT_EQ(graph.points, 20);
    EXPECT_NEAR(graph.series[0].values[5], 1079816.4997, 1e-3);
    EXPECT_EQ(graph.series[1].values[5], 108000);
    run.click("cmdOK");
    run.typeAll("numTY(1) 0, numTY(0) 0, numFY(1) 1"); // no years
    run.click("cmdAmort");
    EXPECT_EQ(years->model()->rowCount(), 0);
}

TEST_F(DrawDownScreen, AGrowthWithoutANominalRateKeepsTheOneBeforeAndASaveKeepsTheFlag) {
    run.typeAll("numLumpInv 1000000, numTY(0) 3, numInitDraw(0) 5000, numAnnIncEsc(0) 6, numGrowRate(0) 1.05");
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numLastPortfolio"), "771 321.50");
    for (const char* rate : {"10", "1.05"}) {
        run.type("numGrowRate(0)", rate);
        run.click("cmdCalculate");
        EXPECT_EQ(run.shown("numLastPortfolio"), "1 059 355.37") << rate;
    }
    run.menu("mnuPersDet");
    run.type("txtCLName", "Botha");
    run.menu("mnuSave");
    EXPECT_EQ(run.inClients("SELECT LSAmt FROM Data"), "1000000");
    EXPECT_EQ(flag(), 1);
    EXPECT_EQ(phases().phase0.LAInitDraw, 5000);
}

} // namespace
