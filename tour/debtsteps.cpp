#include <QTableView>
#include <cmath>

#include "reports/frmGraph.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The bond paid off sooner and over other terms, and the client's debts made into one.
namespace tour {

namespace {

constexpr double cent = 0.01;

double repayment(double principal, double months, double percentAYear) {
    const double month = percentAYear / 1200;
    return principal * month / (1 - std::pow(1 + month, -months));
}

void exportReport(Hands& hands, const QString& name) {
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, name);
}

} // namespace

void bustBond(Hands& hands) {
    say("Bond Buster: R500 more each month on the bond of R250 000.");
    hands.menu({"mnuCalc", "mnuLoans", "mnuLoansBondBust"});
    hands.expectFront("frmBondBuster");
    hands.enter(std::vector<Entry>{{"numPrinAmount", "250000"}, {"numPeriod", "240"}, {"numIntRate", "11.75"}});
    hands.type("numXtraPay", "500", Qt::Key_Return);
    hands.expectFigure("numMonRePay", repayment(250000, 240, 11.75));
    const double months = hands.figure("numAns2"), extra = hands.figure("numXtraPay");
    check(extra >= 500 && months < 240, "the extra payment shortens nothing");
    hands.expectFigure("numAns1(4)", repayment(250000, months, 11.75));
    hands.expectFigure("numAns1(7)", 240 * hands.figure("numMonRePay") - months * hands.figure("numAns1(4)"));
    say(QString("  R %1 extra a month: repaid in %2 months, R %3 saved")
            .arg(hands.shown("numXtraPay"), hands.shown("numAns2"), hands.shown("numAns1(7)")));
    picture(&hands.window(), "bond-buster");
    exportReport(hands, "bond-buster-report");
    hands.click("cmdOK");
}

void analyseBond(Hands& hands) {
    say("Bond Analysis: the same bond over six terms.");
    hands.menu({"mnuCalc", "mnuLoans", "mnuLoansBondAna"});
    hands.expectFront("frmBondAna");
    hands.type("numBAmt", "250000", Qt::Key_Return);
    hands.type("numIntRate", "11.75", Qt::Key_Return);
    const auto* costs = hands.control<QTableView>("grdPayments")->model();
    check(costs->rowCount() == 6, "not six terms");
    for (int term = 0; term < 6; ++term)
        check(std::abs(cellOf(costs, term, 1) - repayment(250000, 60 * (term + 1), 11.75)) < cent, "a wrong repayment");
    picture(&hands.window(), "bond-analysis");
    exportReport(hands, "bond-analysis-report");
    hands.click("cmdOK");
}

void consolidateDebts(Hands& hands) {
    say("Debt Consolidation: a car, two cards and a store account in one loan over five years.");
    hands.menu({"mnuCalc", "mnuMainBanking", "mnuDebtCon"});
    hands.expectFront("frmDebtCon");
    hands.enter(std::vector<Entry>{{"numLoan1Amt", "185000"},
                                   {"numLoan1Int", "13.25"},
                                   {"numLoan2Amt", "42000"},
                                   {"numLoan2Int", "20.75"},
                                   {"numLoan3Amt", "18500"},
                                   {"numLoan3Int", "21"},
                                   {"numLoan4Amt", "6400"},
                                   {"numLoan4Int", "24.5"},
                                   {"numLoanIntTot", "11.75"}});
    hands.type("numPeriod", "60", Qt::Key_Return);
    const double before = repayment(185000, 60, 13.25) + repayment(42000, 60, 20.75) + repayment(18500, 60, 21) +
                          repayment(6400, 60, 24.5);
    const double after = repayment(251900, 60, 11.75);
    hands.expectFigure("numLoanAmtTot", 251900);
    hands.expectFigure("numAns1", before);
    hands.expectFigure("numAns2", after);
    hands.expectFigure("numAns3", before - after);
    say(QString("  R %1 a month instead of R %2").arg(hands.shown("numAns2"), hands.shown("numAns1")));
    picture(&hands.window(), "debts");
    hands.click("cmdAnnAmort");
    const auto* years = hands.control<QTableView>("grdPayments")->model();
    check(years->rowCount() == 5 && cellOf(years, 4, 3) == 0, "five years do not clear the debts");
    picture(&hands.window(), "debts-annual-table");
    hands.key(Qt::Key_Escape);
    hands.click("cmdDCGraph");
    hands.expectFront("frmGraph");
    check(qobject_cast<reports::frmGraph*>(hands.front())->graph().points == 5, "the graph does not show each year");
    picture(&hands.window(), "debts-graph");
    hands.click("cmdOK");
    hands.click("cmdPrint");
    hands.click("Check1");
    hands.click("cmdVR");
    exportPdf(hands, "debts-report");
    hands.click("cmdOK");
}

void showDebts(Hands& hands, const QString& look) {
    for (const auto& [item, name] : {std::pair{QStringList{"mnuCalc", "mnuLoans", "mnuLoansBondBust"}, "bond-buster-"},
                                     {QStringList{"mnuCalc", "mnuLoans", "mnuLoansBondAna"}, "bond-analysis-"},
                                     {QStringList{"mnuCalc", "mnuMainBanking", "mnuDebtCon"}, "debts-"}}) {
        hands.menu(item);
        picture(&hands.window(), name + look);
    }
}

} // namespace tour
