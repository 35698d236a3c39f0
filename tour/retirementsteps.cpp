#include <cmath>

#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/needs.h"
#include "tour/steps.h"

/// The retirement needs analysis, with the schedule of policies that it uses.
namespace tour {

namespace {

constexpr double oneRand = 1; // the tables show whole rand
constexpr double retireAt = 65, yearsToGo = 20, yearsWanted = 30, inflation = 5.5;
constexpr double providentFund = 650000, providentAge = 67; // it pays after retirement

void enterLists(Hands& hands) {
    itemise(hands, "cmdItemise(11)",
            {{"Household and travel", "38000", "6", "65", "74"},
             {"Quieter years", "26000", "6", "75", "84"},
             {"Care at home", "34000", "7", "85", "95"}},
            "itemised-income");
    itemise(hands, "cmdItemise(0)",
            {{"Rent of the shop, Krogh Street", "18000", "6", "65", "80"},
             {"Consulting", "25000", "5", "65", "69"},
             {"Renée's pension", "21000", "5", "70", "95"}});
    itemise(hands, "cmdItemise(1)", {{"Flat 4B, Kerk Street", "1850000"}, {"Plot at Tzaneen", "1200000"}},
            "properties");
    itemise(
        hands, "cmdItemise(10)",
        {{"Naledi's wedding", "250000", "66"}, {"New roof", "180000", "70"}, {"Retirement village", "600000", "78"}},
        "itemised-expenses");
}

} // namespace

void recordRetirement(Hands& hands) {
    say("Needs Analysis for Retirement: the ages first, then the capital and the income that it must provide.");
    hands.window().showMaximized();
    hands.settle();
    hands.menu({"mnuCalc", "mnuNARA"});
    hands.expectFront("frmNARA");
    check(hands.figure("numCurrentAge") == retireAt - yearsToGo, "the client is not 45 years old");
    hands.enter(std::vector<Entry>{{"numAgeOfRetirement", "65"},
                                   {"numMonIncPD", "38000"},
                                   {"numCoverReq", "30"},
                                   {"numInflationRate", "5.5"},
                                   {"numBankInvRate", "9"},
                                   {"dtNaraNextReview", "15/06/2027"},
                                   {"txtNote", "Sells the plot at Tzaneen on retirement; Renée works on to 69."},
                                   {"numASS(1)", "420000"},
                                   {"numASS(4)", "150000"},
                                   {"numLIB(2)", "450000"},
                                   {"numLIB(3)", "180000"}});
    const double policiesWorth = std::floor(enterPolicies(hands));
    enterLists(hands);
    hands.click("cmdCalculate");
    hands.expectFigure("numASS(3)", policiesWorth);
    hands.expectFigure("numNETCAP", 3050000 + 420000 + policiesWorth + 150000 - 450000 - 180000 - 1030000);
    hands.expectFigure("numIncReqFV", 38000 * std::pow(1 + inflation / 100, yearsToGo));
    hands.expectFigure("numMonIncAvail", 18000 + 25000 + 14500);
    check(hands.figure("numMonIncPD") == 38000 && hands.figure("numCoverReq") == yearsWanted, "the list is not taken");
    for (const auto& [onPage, name] :
         {Entry{"txtName", "retirement-requirements"}, Entry{"numASS(0)", "retirement-capital"},
          Entry{"numLIB(0)", "retirement-expenses"}, Entry{"txtAns1", "retirement-net-worth"}}) {
        hands.turnTo(onPage);
        picture(&hands.window(), name);
    }
    say("  " + sentences(hands).lasts + "\n  " + sentences(hands).needed);
    checkCover(hands, static_cast<int>(yearsWanted));
}

void showRetirementYears(Hands& hands) {
    say("Amortisation and Graph: the years one by one.");
    const auto paidOut = [](int row) { return retireAt + row == providentAge ? providentFund : 0; };
    showYears(hands, "cmdNARAGraph", retireAt, paidOut, "retirement");
}

void exportRetirementReports(Hands& hands) {
    say("Print, with all that goes with it: one set of PDFs for the client.");
    exportSet(hands, "retirement");
}

} // namespace tour
