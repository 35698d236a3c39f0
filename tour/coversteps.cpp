#include <cmath>

#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/needs.h"
#include "tour/steps.h"

/// The needs of the same client on death and on disability, from the policies recorded before.
namespace tour {

namespace {

constexpr int yearsWanted = 20;

/// Opens an analysis, enters what both ask for, and more.
void open(Hands& hands, const QString& item, const QString& screen, const std::vector<Entry>& more) {
    hands.menu({"mnuCalc", item});
    hands.expectFront(screen);
    hands.enter(std::vector<Entry>{{"numIncome", "38000"},
                                   {"numCoverPeriod", "20"},
                                   {"numInflaGuard", "5.5"},
                                   {"numInvestRate", "9"},
                                   {"numASS(1)", "420000"}});
    hands.enter(more);
}

void conclude(Hands& hands, const QString& name, double assets, double liabilities) {
    hands.click("cmdCalculate");
    hands.turnTo("numIncome");
    picture(&hands.window(), name + "-capital");
    hands.turnTo("txtAns1");
    hands.expectFigure("numTotAss", assets);
    hands.expectFigure("numTotLib", liabilities);
    hands.expectFigure("numNetCap", std::abs(assets - liabilities));
    picture(&hands.window(), name + "-net-worth");
    say("  " + sentences(hands).lasts + "\n  " + sentences(hands).needed);
    checkCover(hands, yearsWanted);
}

} // namespace

void needsOnDeath(Hands& hands) {
    say("Needs Analysis for Death: what the family would have and what it would need, from today.");
    open(hands, "mnuNADeath", "frmNADeath",
         {{"numMonIncAval", "21000"},
          {"numLIB(1)", "45000"},
          {"numLIB(2)", "18000"},
          {"numLIB(3)", "160000"},
          {"dtDTHNextReview", "15/06/2027"},
          {"txtNote", "Renée keeps her post; the children finish school."}});
    itemise(hands, "cmdItemise(2)", {{"Flat 4B, Kerk Street", "1850000", "1"}, {"Plot at Tzaneen", "1200000", "1"}});
    itemise(hands, "cmdItemise(6)", {{"Bond on the flat", "640000", "1"}});
    itemise(hands, "cmdItemise(10)", {{"Naledi's studies", "120000", "3"}}, "death-expenses");
    const double policies = 1200000 + 150000 + 185000; // what is ceded goes to the bank
    hands.expectFigure("numASS(3)", policies);
    conclude(hands, "death", 3050000 + 420000 + policies, 640000 + 45000 + 18000 + 160000 + 120000);
    hands.expectFigure("numMonIncAvail", 21000);
    showYears(
        hands, "cmdESTGraph", 1, [](int) { return 0; }, "death");
    exportSet(hands, "death");
}

void needsOnDisability(Hands& hands) {
    say("Needs Analysis for Disability: the same for the client's own income.");
    open(hands, "mnuNADisability", "frmNADisability",
         {{"numLIB(3)", "85000"},
          {"numLIB(4)", "150000"},
          {"dtDISANextReview", "15/06/2027"},
          {"txtNote", "The income protection ends at 65."}});
    itemise(hands, "cmdItemise(4)", {{"Second car", "60000", "1"}, {"Motor cycle", "40000", "1"}});
    const double policies = 750000 + 185000 - 25000;
    hands.expectFigure("numASS(3)", policies);
    conclude(hands, "disability", 420000 + 100000 + policies, 85000 + 150000);
    hands.expectFigure("numMonIncAvail", 28000);
    showYears(
        hands, "cmdESTGraph", 1, [](int) { return 0; }, "disability");
    exportSet(hands, "disability");
    hands.window().showNormal();
}

void showNeeds(Hands& hands, const QString& look) {
    for (const auto& [item, name] : {std::pair{"mnuNADeath", "death-"}, {"mnuNADisability", "disability-"}}) {
        hands.menu({"mnuCalc", item});
        picture(&hands.window(), name + look);
        hands.turnTo("txtAns1");
        picture(&hands.window(), name + ("net-worth-" + look));
    }
    for (const auto& [item, name] : {std::pair{"mnuNAEd", "education-"},
                                     {"mnuInflation", "inflation-"},
                                     {"mnuLifeOfCap", "life-of-capital-"},
                                     {"mnuInvestComp", "investment-comparison-"},
                                     {"mnuOffShore", "offshore-"},
                                     {"mnuIncShares", "income-from-shares-"},
                                     {"mnuLivAnn", "draw-down-"},
                                     {"mnuRealRate", "real-rate-"},
                                     {"mnuKwikQuotes", "quote-"},
                                     {"mnuTaxLumpSum", "lump-sums-"},
                                     {"mnuCapGainsTAx", "capital-gains-"},
                                     {"mnuEstateDutyEstimator", "estate-duty-"},
                                     {"mnuRATaxAdv", "retirement-funding-"},
                                     {"mnuTravClaim", "travel-"}}) {
        hands.menu({"mnuCalc", item});
        picture(&hands.window(), name + look);
    }
    hands.menu({"mnuCalc", "mnuNAEd"});
    hands.click("cmdPremium");
    picture(&hands.window(), "premium-" + look);
}

} // namespace tour
