#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The end of a client's tax year: what leaves the retirement funds, what the estate would cost, what a further
/// contribution would save, and the claim against a travel allowance.
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

void seeFundingAdvantage(Hands& hands) {
    say("R/F Advantage: a contribution of R90 000 from a taxable income of R620 000.");
    hands.menu({"mnuCalc", "mnuRATaxAdv"});
    hands.expectFront("frmRATaxAdv");
    check(!hands.shown("txtLastName").isEmpty(), "the client's name is not proposed");
    hands.enter(std::vector<Entry>{{"numTaxPayerAge", "45"},
                                   {"numRemuneration", "640000"},
                                   {"numTaxableInc", "620000"},
                                   {"numTaxCGT", "15000"},
                                   {"numProposedRF", "90000"}});
    hands.click("cmdRAdvCalculate");
    hands.expectFigure("numMaxBen", 640000 * 0.275);
    hands.expectFigure("numTaxSave", 90000 * 0.36); // all in one bracket
    hands.expectFigure("numPropRFPaidTaxPayer", 90000 * 0.64);
    picture(&hands.window(), "retirement-funding");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "retirement-funding-report");
    hands.click("cmdOkLC");
}

void claimTravel(Hands& hands) {
    say("Travel: 28 000 km, 11 000 of them on business, by deemed and by actual costs.");
    hands.menu({"mnuCalc", "mnuTravClaim"});
    hands.expectFront("frmCarAll");
    hands.enter(std::vector<Entry>{{"Text1", "Toyota Corolla"},
                                   {"silgEdit1", "385000"},
                                   {"silgEdit2", "72000"},
                                   {"silgEdit3", "93500"},
                                   {"silgEdit4", "65500"},
                                   {"silgEdit5", "11000"}});
    hands.click("cmdCalculate");
    hands.expectFigure("sidbEdit1(4)", 11000 * (111273.0 / 28000 + 1.914 + 0.714));
    picture(&hands.window(), "travel-deemed");
    hands.click("Option4");
    hands.enter(std::vector<Entry>{
        {"silgEdit6", "51000"}, {"silgEdit7", "14500"}, {"silgEdit8", "19800"}, {"silgEdit10", "55000"}});
    hands.click("cmdCalculate");
    hands.expectFigure("sidbEdit2(6)", 140300.0 * 11000 / 28000);
    picture(&hands.window(), "travel-actual");
    hands.click("Option3"); // the better claim
    hands.click("cmdPrint");
    hands.type("Text3", "Naledi Botha");
    hands.click("cmdVR");
    exportPdf(hands, "travel-report");
    hands.click("cmdOK");
}

} // namespace tour
