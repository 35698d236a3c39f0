#include <QTableView>

#include "reports/frmGraph.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// A living annuity in two phases.
namespace tour {

namespace {

/// The portfolio after the first year: a nominal 9.57 % compounded monthly is 10 % a year.
double afterAYear(double amount, double income) {
    double portfolio = (amount * 0.985 - 500) * 0.99;
    for (int month = 0; month < 12; ++month)
        portfolio = (portfolio - income) * (1 + 9.57 / 1200);
    return portfolio * 1.01 * 0.995 * 0.99;
}

} // namespace

void drawDown(Hands& hands) {
    say("Draw Down Annuity: R2 500 000 that pay R9 000 a month, from year 11 on R20 000.");
    hands.menu({"mnuCalc", "mnuLivAnn"});
    hands.expectFront("frmDDLivAnn");
    hands.enter(std::vector<Entry>{{"numLumpInv", "2500000"},
                                   {"numFY(0)", "1"},
                                   {"numTY(0)", "10"},
                                   {"numInitDraw(0)", "9000"},
                                   {"numAnnIncEsc(0)", "5"},
                                   {"numGrowRate(0)", "10"},
                                   {"numFY(1)", "11"},
                                   {"numTY(1)", "25"},
                                   {"numInitDraw(1)", "20000"},
                                   {"numAnnIncEsc(1)", "4"},
                                   {"numGrowRate(1)", "8.5"}});
    hands.click("cmdCalculate");
    say("  " + hands.shown("txtAns"));
    picture(&hands.window(), "draw-down");
    hands.click("cmdAmort");
    const auto* years = hands.control<QTableView>("grdPayments")->model();
    check(cellOf(years, 0, 1) == std::round(afterAYear(2500000, 9000)), "the first year's portfolio is another");
    check(cellOf(years, 1, 2) == 9450 && cellOf(years, 10, 2) == 20000, "the incomes are others");
    check(years->rowCount() == static_cast<int>(hands.figure("numDrawYears")), "the table does not have each year");
    picture(&hands.window(), "draw-down-years");
    hands.key(Qt::Key_Escape);
    hands.click("cmdGraph");
    hands.expectFront("frmGraph");
    picture(&hands.window(), "draw-down-graph");
    hands.click("cmdOK");
    hands.click("cmdCosts");
    picture(&hands.window(), "draw-down-costs");
    hands.click("cmdCancelCosts");
    hands.click("cmdPrint");
    hands.click("Check1");
    hands.click("cmdVR");
    exportPdf(hands, "draw-down-report");
    hands.desk().expect("NEW ?", screenkit::Answer::no);
    hands.menu({"mnuFile", "mnuNewFile"});
}

} // namespace tour
