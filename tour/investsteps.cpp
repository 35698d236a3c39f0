#include <cmath>

#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// What to do with a lump sum: an annuity or a deposit, abroad or at home.
namespace tour {

namespace {

constexpr double income = 320000, annuityTaxed = 9500, annuityTaxFree = 2600, lumpSum = 1500000;

/// Tax for a year on incomes from 245 100 to 383 100, before the rebate, which cancels out in each comparison.
double tax(double yearly) { return 44118 + (yearly - 245100) * 0.26; }

/// What the deposit leaves a month at a rate, while the income with it stays in the bracket of 26 %.
double depositLeaves(double rate) {
    const double interest = lumpSum * rate / 100;
    return (interest - std::fmax(tax(income + interest - 23800) - tax(income), 0)) / 12;
}

} // namespace

void compareOffers(Hands& hands) {
    say("Investment Comparison: a life annuity beside a fixed deposit of R1 500 000.");
    hands.menu({"mnuCalc", "mnuInvestComp"});
    hands.expectFront("frmInvestComp");
    hands.enter(std::vector<Entry>{{"numAge", "45"},
                                   {"numCTaxInc", "320000"},
                                   {"numAnnAmount", "1500000"},
                                   {"txtAnnDet", "Level, guaranteed for ten years"},
                                   {"numMonTFAnn", "2600"},
                                   {"numMonTAnn", "9500"},
                                   {"numFDAmount", "1500000"},
                                   {"txtFXDet", "Twelve months, renewed"},
                                   {"numFXInt", "4.5"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numMonAfterAnn", 9500 + 2600 - (79998 + (434000 - 383100) * 0.31 - tax(income)) / 12);
    hands.expectFigure("numFXMonAftTax", depositLeaves(4.5));
    const QString answer = hands.shown("txtAns");
    say("  " + answer);
    const double rate = QString(answer).section(' ', 6, 6).toDouble();
    check(rate > 4.5 && answer.endsWith(" %p.a. would beat the annuity!"), "no rate beats the annuity: " + answer);
    picture(&hands.window(), "investment-comparison");
    hands.type("numFXInt", QString::number(rate));
    hands.click("cmdCalculate");
    check(hands.figure("numFXMonAftTax") > hands.figure("numMonAfterAnn"), "that rate does not beat the annuity");
    check(hands.shown("txtAns").isEmpty(), "the deposit pays more, and another rate is named");
    hands.type("numFXInt", "4.5");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "investment-comparison-report");
    hands.click("cmdOK");
}

void investOffshore(Hands& hands) {
    say("Offshore Investments: R250 000 for ten years, while the rand falls by 3 % a year.");
    hands.menu({"mnuCalc", "mnuOffShore"});
    hands.expectFront("frmOffShore");
    hands.enter(std::vector<Entry>{{"numInvAmount", "250000"},
                                   {"numOSPeriod", "10"},
                                   {"numLCurrChange", "-3"},
                                   {"numOFInvRate", "6.25"},
                                   {"numOFTaxRate", "20"},
                                   {"numLInvRate", "10.5"},
                                   {"numLTaxRate", "30"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numOFMatVal", 250000 * std::pow(1.05, 10));
    hands.expectFigure("numOFRealMatVal", 250000 * std::pow(1.05 * 1.03, 10));
    hands.expectFigure("numLRealMatVal", 250000 * std::pow(1.0735, 10));
    picture(&hands.window(), "offshore");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "offshore-report");
    hands.click("cmdOK");
}

void drawFromShares(Hands& hands) {
    say("Income From Shares: R8 000 a month from R1 200 000 in shares that grow by 11 % a year.");
    hands.menu({"mnuCalc", "mnuIncShares"});
    hands.expectFront("frmIncomeShares");
    hands.enter(std::vector<Entry>{{"numInvestAmount", "1200000"},
                                   {"numGrowthRate", "11"},
                                   {"numInitPercRequire", "8000"},
                                   {"numAnnIncEsca", "5"},
                                   {"numEffTaxRate", "36"}});
    hands.click("optMonthly");
    hands.click("cmdCalculate");
    say("  " + hands.shown("txtAns"));
    check(hands.shown("txtAns") == "The capital lasts 18 years and 8 months.", "R8 000 a month");
    picture(&hands.window(), "income-from-shares");
    hands.click("cmdAmort");
    picture(&hands.window(), "income-from-shares-months");
    hands.click("cmdGridClose");
    hands.click("cmdGraph");
    picture(&hands.window(), "income-from-shares-graph");
    hands.click("cmdOK");
    hands.type("numInitPercRequire", "9000");
    hands.click("cmdCalculate");
    check(hands.shown("txtAns") == "The capital lasts 15 years and 7 months.", "R9 000 a month");
    hands.click("cmdDefaultRates");
    picture(&hands.window(), "income-from-shares-rates");
    hands.click("cmdCancelDefault");
    hands.click("cmdPrint");
    hands.click("chkIncComms");
    hands.click("cmdVR");
    exportPdf(hands, "income-from-shares-report");
    hands.click("cmdOK");
}

} // namespace tour
