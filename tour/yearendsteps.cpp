#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The end of a client's tax year: what leaves the retirement funds, and what the estate would cost.
namespace tour {

void taxLumpSums(Hands& hands) {
    say("Tax on lump sums: a withdrawal in 2019, a severance package, and now R900 000 at retirement.");
    hands.menu({"mnuCalc", "mnuTaxLumpSum"});
    hands.expectFront("frmLumpSum");
    hands.enter(std::vector<Entry>{
        {"numRRExGrtCTY02042021", "150000"}, {"numRetrenchmentLumps2024", "320000"}, {"numRetDeath2027", "900000"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numAnsLS2", 0); // no table is chosen yet
    hands.click("opt1stLumpTaken(2)");
    hands.click("cmdCalculate");
    hands.expectFigure("numAnsLS2", 143550 + (1370000 - 1155000) * 0.36); // the R470 000 before are exempt
    picture(&hands.window(), "lump-sums");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "lump-sums-report");
    say(QString("  R%1 tax").arg(hands.shown("numAnsLS2")));
    hands.click("cmdOK");
}

void estimateEstate(Hands& hands) {
    say("Estate Duty Estimator: a house, policies and a share in a business.");
    hands.menu({"mnuCalc", "mnuEstateDutyEstimator"});
    hands.expectFront("frmEstateDutyEst");
    hands.enter(std::vector<Entry>{{"numPropEstate", "3200000"},
                                   {"numPolInvEstate", "2600000"},
                                   {"numOtherEstate", "850000"},
                                   {"numLessAccEstate", "400000"},
                                   {"numPropExecutor", "3900000"},
                                   {"numPolInvExecutor", "1100000"},
                                   {"numOtherExecutor", "850000"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numEstateDuty", (6250000 - 3500000) * 0.2);
    hands.expectFigure("numExecutorsFees", 5850000 * 0.035);
    picture(&hands.window(), "estate-duty");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "estate-duty-report");
    hands.click("cmdOK");
}

} // namespace tour
