#include <QRadioButton>
#include <QTableView>
#include <cmath>

#include "reports/frmGraph.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The loan: solved in each mode, with charges, tables and graph.
namespace tour {

namespace {

constexpr double cent = 0.01;

/// The content of the four fields.
QString loanLine(Hands& hands) {
    return QString("Loan: R %1 over %2 months at %3 % -> R %4 a month")
        .arg(hands.shown("numPrinAmount"), hands.shown("numPeriod"), hands.shown("numIntRate"),
             hands.shown("numMonRePay"));
}

/// Clears one of the four figures and solves it from the other three.
void solveFor(Hands& hands, int mode, const QString& field) {
    const QString before = hands.shown(field);
    hands.type(field, "0");
    hands.click(QString("optLoanCalc(%1)").arg(mode));
    hands.click("cmdCalculate");
    const QString sought = hands.control<QRadioButton>(QString("optLoanCalc(%1)").arg(mode))->text();
    check(hands.shown(field) == before, QString("%1: %2 comes back as %3").arg(sought, before, hands.shown(field)));
    say(QString("  %1 from the other three: %2, as it was").arg(sought, before));
    picture(&hands.window(), "loan-" + QString(sought).toLower().replace(' ', '-'));
}

/// A table on the screen must repay the whole loan and end at 0.
void checkTable(Hands& hands, const QString& unit, int rows) {
    const auto* table = hands.control<QTableView>("grdPayments")->model();
    check(table->rowCount() == rows, QString("the table has %1 rows instead of %2").arg(table->rowCount()).arg(rows));
    double repaid = 0;
    for (int row = 0; row < rows; ++row)
        repaid += cellOf(table, row, 1);
    check(std::abs(repaid - hands.figure("numPrinAmount")) <= rows * cent / 2, "the table does not repay the loan");
    check(cellOf(table, rows - 1, 3) == 0, "the table does not end at 0");
    for (const int row : {0, rows - 1})
        say(QString("  %1 %2: capital %3, interest %4, balance %5")
                .arg(unit)
                .arg(row + 1)
                .arg(cellOf(table, row, 1), 0, 'f', 2)
                .arg(cellOf(table, row, 2), 0, 'f', 2)
                .arg(cellOf(table, row, 3), 0, 'f', 2));
}

} // namespace

void solveLoan(Hands& hands) {
    say("Calculations, Loans: a bond, by the keyboard.");
    hands.menu({"mnuCalc", "mnuLoans", "mnuLoansCalc"});
    hands.expectFront("frmLoans");
    hands.type("numPrinAmount", "250000", Qt::Key_Return);
    hands.type("numPeriod", "240", Qt::Key_Return);
    hands.type("numIntRate", "11.75", Qt::Key_Return);
    check(hands.figure("numMonRePay") > 0, "Enter in the last field does not work out the repayment");
    say(loanLine(hands));
    picture(&hands.window(), "loan-monthly-repayment");
    const QString line = loanLine(hands);
    solveFor(hands, 1, "numPrinAmount");
    solveFor(hands, 2, "numPeriod");
    solveFor(hands, 3, "numIntRate");
    hands.click("optLoanCalc(0)");
    hands.type("numIntRate", hands.shown("numIntRate")); // the solved rate differs slightly from the round one
    hands.key(Qt::Key_C, Qt::AltModifier);
    check(loanLine(hands) == line, "the loan is now " + loanLine(hands));
}

void showCharges(Hands& hands) {
    say("Fin. charges.");
    hands.click("cmdFinCharge");
    const double interest = hands.figure("numAns1");
    const double repayments = hands.figure("numAns2");
    check(std::abs(repayments - hands.figure("numPeriod") * hands.figure("numMonRePay")) < cent &&
              std::abs(repayments - interest - hands.figure("numPrinAmount")) < cent,
          "the financial charges do not add up");
    say(QString("  total interest R %1, total repayments R %2").arg(hands.shown("numAns1"), hands.shown("numAns2")));
    picture(&hands.window(), "charges");
}

void showTables(Hands& hands) {
    const int months = static_cast<int>(hands.figure("numPeriod"));
    say("Monthly Amort.");
    hands.key(Qt::Key_N, Qt::AltModifier);
    checkTable(hands, "month", months);
    picture(&hands.window(), "monthly-table");
    hands.key(Qt::Key_Return);
    say("Annual Amort.");
    hands.key(Qt::Key_A, Qt::AltModifier);
    checkTable(hands, "year", (months + 11) / 12);
    picture(&hands.window(), "annual-table");
    hands.key(Qt::Key_Escape);
}

void showGraph(Hands& hands) {
    say("Annual Graph.");
    const int years = (static_cast<int>(hands.figure("numPeriod")) + 11) / 12;
    hands.click("cmdLoanGraph");
    hands.expectFront("frmGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(hands.front())->graph();
    check(graph.points == years && !graph.series.empty(), "the graph does not show each year");
    say(QString("  %1: %2 lines over %3 years")
            .arg(QString::fromStdString(graph.title).trimmed())
            .arg(graph.series.size())
            .arg(graph.points));
    picture(&hands.window(), "graph");
    hands.desk().expectFile("loan graph.png");
    hands.click("cmdExport");
    check(QPixmap("loan graph.png").width() > 0, "the exported graph is no picture");
    hands.click("cmdOK");
    hands.expectFront("frmLoans");
}

void showLoan(Hands& hands, const QString& pictureName) {
    hands.menu({"mnuCalc", "mnuLoans", "mnuLoansCalc"});
    hands.click("cmdFinCharge");
    say(loanLine(hands));
    picture(&hands.window(), pictureName);
}

} // namespace tour
