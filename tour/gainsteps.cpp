#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The year's disposals of a client.
namespace tour {

void taxTheYearsGains(Hands& hands) {
    say("Capital gains: unit trusts sold at a gain, and a house let out for part of the time.");
    hands.menu({"mnuCalc", "mnuCapGainsTAx"});
    hands.expectFront("frmCGTCalcIncome");
    hands.enter(std::vector<Entry>{{"txtDescription", "Balanced unit trust"},
                                   {"dtAquired", "15/06/2012"},
                                   {"numOrigPurPrice", "250000"},
                                   {"dtSale", "20/08/2026"},
                                   {"numSellPrice", "610000"},
                                   {"numSaleCost", "5000"}});
    hands.click("cmdCalculate");
    const double units = 610000.0 - 5000 - 250000;
    hands.expectFigure("numCapGain", units);
    hands.click("cmdAdd");
    hands.type("txtDescription", "House in George");
    hands.click("Option4(1)");
    hands.enter(std::vector<Entry>{{"numSize", "0.1"},
                                   {"numResOccPerc", "75"},
                                   {"dtAquired", "01/03/2010"},
                                   {"numOrigPurPrice", "1500000"},
                                   {"numImproveMade", "200000"},
                                   {"dtSale", "30/09/2026"},
                                   {"numSellPrice", "4100000"},
                                   {"numSaleCost", "180000"}});
    hands.click("cmdCalculate");
    const double house = (4100000.0 - 200000 - 180000 - 1500000) * 0.25; // the residence's part is excluded
    hands.expectFigure("numCapGain", house);
    hands.expectFigure("numTotCapGain", units + house);
    picture(&hands.window(), "capital-gains");
    hands.type("sidbEdit1", "-20000");
    hands.click("cmdSummary");
    hands.expectFigure("numWTCGTTotal", (units + house - 50000 - 20000) * 0.4);
    picture(&hands.window(), "capital-gains-summary");
    hands.click("cmdOkSummary");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "capital-gains-report");
    hands.click("cmdOK");
}

} // namespace tour
