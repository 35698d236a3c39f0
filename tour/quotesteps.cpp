#include <QTableView>
#include <cmath>

#include "reports/frmGraph.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Kwik-Quotes: one saving plan quoted in four ways, and the premium that reaches a million.
namespace tour {

namespace {

constexpr double single = 50000, firstMonthly = 1500, growth = 9.5, escalation = 6;
constexpr int months = 120;

/// The payment of a month of the plan.
double payment(int month) { return firstMonthly * std::pow(1 + escalation / 100, (month - 1) / 12); }

double paidFrom(int firstMonth) {
    double paid = single;
    for (int month = firstMonth; month <= months; ++month)
        paid += payment(month);
    return paid;
}

double bankValue() {
    double value = single;
    for (int month = 1; month <= months; ++month) {
        if (month > 1) value += payment(month); // the first payment comes in the second month
        value *= 1 + growth / 1200;
    }
    return value;
}

/// With the rates as delivered: commission 2.5 % and 3 %, a fee of R100, 0.5 % trail, 1 % a year, tax of 30 %.
double endowmentValue() {
    double value = single - single * 0.025 - firstMonthly * 12 * 0.03 - 100, yearAgo = 0;
    for (int month = 1; month <= months; ++month) {
        if (month % 12 == 0) value = (value - (value - yearAgo) * 0.3) * 0.99;
        value = (value + payment(month)) * (1 + growth / 1200) * (1 - 0.005 / 12);
        if (month % 12 == 0) yearAgo = value;
    }
    return value;
}

void exportQuote(Hands& hands, const QString& name) {
    hands.click("cmdPrint");
    if (name.endsWith("all")) {
        hands.click("chkIncComms");
        hands.click("chkIncAmort");
    }
    hands.click("cmdVR");
    exportPdf(hands, name);
}

} // namespace

void quote(Hands& hands) {
    say("Kwik-Quotes: R50 000 and R1 500 a month for ten years, quoted in four ways.");
    hands.menu({"mnuCalc", "mnuKwikQuotes"});
    hands.expectFront("frmKwikQuotes");
    hands.enter(std::vector<Entry>{{"numLumpsum", "50000"},
                                   {"numMonPay", "1500"},
                                   {"numTerm", "120"},
                                   {"numIntRate", "9.5"},
                                   {"numPremEsc", "6"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numAns1", paidFrom(1));
    hands.expectFigure("numAns2", endowmentValue());
    picture(&hands.window(), "quote-endowment");
    hands.click("cmdAmort");
    const auto* table = hands.control<QTableView>("grdPayments")->model();
    check(table->rowCount() == months && std::abs(cellOf(table, months - 1, 2) - endowmentValue()) < 1,
          "the months do not end at the maturity value");
    picture(&hands.window(), "quote-months");
    hands.key(Qt::Key_Escape);
    hands.click("cmdGraph");
    hands.expectFront("frmGraph");
    check(qobject_cast<reports::frmGraph*>(hands.front())->graph().points == months / 12, "the graph lacks years");
    picture(&hands.window(), "quote-graph");
    hands.click("cmdOK");
    exportQuote(hands, "quote-report");
    exportQuote(hands, "quote-report-with-all");
    hands.click("optRA");
    check(std::abs(hands.figure("numAns3") - hands.figure("numAns2") * 0.3333) < 1 &&
              std::abs(hands.figure("numAns4") - (hands.figure("numAns2") - hands.figure("numAns3")) * 0.08 / 12) < 1,
          "the retirement annuity does not pay out what it is worth");
    picture(&hands.window(), "quote-retirement-annuity");
    hands.click("optBankInvest");
    hands.expectFigure("numAns1", paidFrom(2));
    hands.expectFigure("numAns2", bankValue());
    picture(&hands.window(), "quote-bank");
    for (const auto& [button, name] : {std::pair{"cmdLifeOfCap", "quote-life-of-capital"},
                                       {"cmdDefault", "quote-rates"},
                                       {"cmdUnitHist", "quote-fund-history"}}) {
        hands.click(button);
        picture(&hands.window(), name);
        hands.key(Qt::Key_Escape);
    }
}

void findPremium(Hands& hands) {
    say("The premium that reaches a million in 15 years.");
    constexpr double goal = 1000000;
    hands.turnTo("numPremEmv");
    hands.enter(std::vector<Entry>{
        {"numPremEmv", "1000000"}, {"numPremPeriod", "180"}, {"numPremGR", "9"}, {"numPremPEsc", "5"}});
    hands.click("cmdCalculate");
    const double premium = hands.figure("numPremAnsUT");
    say("  unit trusts: R" + hands.shown("numPremAnsUT") + " a month");
    picture(&hands.window(), "quote-premium");
    hands.turnTo("numLumpsum");
    hands.click("optUnitTrust");
    hands.enter(std::vector<Entry>{{"numLumpsum", "0"}, {"numTerm", "180"}, {"numIntRate", "9"}, {"numPremEsc", "5"}});
    for (const double paid : {premium - 1, premium}) {
        hands.type("numMonPay", QString::number(paid));
        hands.click("cmdCalculate");
        check((hands.figure("numAns3") > goal) == (paid == premium), "the premium is not the first to pass the goal");
    }
    picture(&hands.window(), "quote-unit-trust");
    hands.click("cmdOK");
}

} // namespace tour
