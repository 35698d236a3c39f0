#include <cmath>

#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// What a bank's rate comes to, and what an investment has really returned.
namespace tour {

namespace {

/// Views the report of the front screen, keeps it as a PDF, and closes the screen.
void printAndClose(Hands& hands, const QString& name) {
    picture(&hands.window(), name);
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, name + "-report");
    hands.click("cmdOK");
}

/// What a lump sum becomes with a premium at the beginning of each month, which rises once a year; an income is below
/// 0.
double matured(double lump, double premium, double rise, int months, double rate) {
    double value = lump;
    for (int month = 0; month < months; ++month)
        value = (value + premium * std::pow(1 + rise / 100, month / 12)) * (1 + rate / 1200);
    return value;
}

/// The rate is the first of three places that reaches the maturity value.
void checkReturn(Hands& hands, double maturity, double lump, double premium, double rise, int months) {
    const double rate = hands.figure("numRRR");
    check(matured(lump, premium, rise, months, rate) >= maturity &&
              matured(lump, premium, rise, months, rate - 0.001) < maturity,
          QString("%1 % is not the rate of return").arg(rate));
    say(QString("  %1 % a year").arg(rate));
}

} // namespace

void convertRate(Hands& hands) {
    say("Nominal/Effective: R250 000 for two years at 9.25 %, compounded every month and every half-year.");
    hands.menu({"mnuCalc", "mnuMainBanking", "mnuNomEffec"});
    hands.expectFront("frmNomEffec");
    hands.enter(std::vector<Entry>{{"numAmount", "250000"}, {"numPeriod", "24"}, {"numNomRate", "9.25"}});
    hands.key(Qt::Key_C, Qt::AltModifier);
    hands.expectFigure("numAns3", 250000 * (std::pow(1 + 0.0925 / 12, 24) - 1));
    say(QString("  %1 % effective").arg(hands.shown("numAns1")));
    hands.click("Option1(4)");
    hands.click("cmdCalculate");
    hands.expectFigure("numAns3", 250000 * (std::pow(1 + 0.0925 / 2, 4) - 1));
    printAndClose(hands, "nominal-effective");
}

void balanceADeposit(Hands& hands) {
    say("Daily Balance: R85 000 for a winter at 7.75 %.");
    hands.menu({"mnuCalc", "mnuMainBanking", "mnuDayBal"});
    hands.expectFront("frmDayBal");
    hands.type("numCapAmount", "85000");
    hands.type("dtStartDate", "01/03/2026");
    hands.type("dtEndDate", "31/08/2026");
    hands.type("numIntRate", "7.75");
    hands.key(Qt::Key_C, Qt::AltModifier);
    hands.expectFigure("numAnsDB2", 183);
    hands.expectFigure("numAnsDB1", 85000 * 0.0775 * 183 / 365);
    printAndClose(hands, "daily-balance");
}

void measureReturns(Hands& hands) {
    say("Real Rate of Return: R500 000 that paid R6 000 a month for ten years, rising by 6 %, and left R350 000.");
    hands.menu({"mnuCalc", "mnuRealRate"});
    hands.expectFront("frmRRRNEW");
    hands.enter(std::vector<Entry>{{"numIntLumpInv", "500000"},
                                   {"numPeriod", "120"},
                                   {"numMaturityVal", "350000"},
                                   {"numRegMinc1", "6000"},
                                   {"numIncEsc1", "6"},
                                   {"txtRegMincDet1", "Income for the mother"}});
    hands.key(Qt::Key_C, Qt::AltModifier);
    checkReturn(hands, 350000, 500000, -6000, 6, 120);
    say("And a policy of R1 500 a month, rising by 10 %, that paid out R450 000.");
    hands.click("cmdRRROLD");
    hands.expectFront("frmRRROLD");
    hands.enter(std::vector<Entry>{
        {"numMonPrem", "1500"}, {"numPeriod", "120"}, {"numAnnEsc", "10"}, {"numMatValue", "450000"}});
    hands.key(Qt::Key_C, Qt::AltModifier);
    checkReturn(hands, 450000, 0, 1500, 10, 120);
    printAndClose(hands, "real-rate-premium");
    hands.expectFront("frmRRRNEW");
    printAndClose(hands, "real-rate-incomes");
}

} // namespace tour
