#include <cmath>
#include <vector>

#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The schedule of policies and investments: eight kinds, as a client may have them.
namespace tour {

namespace {

struct Policy {
    std::vector<Entry> entries;
    std::vector<const char*> clicks{};
    std::vector<Entry> pictures{};      ///< a field of the page, and the name of the picture
    const char* atRetirement = nullptr; ///< the field that shows the worth at retirement
    double worth = 0;
};

const std::vector<Policy>& policies() {
    static const std::vector<Policy> all{
        {{{"txtPolInvType", "Whole life"},
          {"txtUnderInst", "Baobab Life"},
          {"txtPolRefNum", "WL 204 417"},
          {"txtPolOwner", "T.J. Ṱhoho-Nḓou"},
          {"dtInceptionDate", "01/09/2004"},
          {"numPremInvAmtMonthly", "850"},
          {"numPremInvAmtMonthlyAnnEsc", "5"},
          {"txtPolIncNote", "The cash value is taken at retirement, and the cover ends with it."},
          {"numDeathBen", "1200000"},
          {"txtDeathBenLifeAssured", "T.J. Ṱhoho-Nḓou"},
          {"numDeathBenCashVal", "380000"},
          {"numDeathBenCashValAge", "65"}},
         {"optDeathBen(1)", "chkDeathBenUseCashAtRet"},
         {{"txtPolInvType", "policy"}, {"numDeathBen", "policy-death"}},
         "numCashValAtRet",
         380000},
        {{{"txtPolInvType", "Term cover, bond"},
          {"txtUnderInst", "Makhado Mutual"},
          {"txtPolRefNum", "T-88120"},
          {"numPremInvAmtAnnual", "5400"},
          {"numDeathBen", "900000"},
          {"numDeathBenAmtCeded", "750000"},
          {"txtDeathBenCededTo", "First Savings Bank"},
          {"numDisabilLumpSum", "750000"},
          {"numTraumlLumpSum", "300000"},
          {"numIncProMonthly", "28000"},
          {"numIncProMonEscAt", "6"},
          {"numIncProYears", "20"}},
         {},
         {{"numDisabilLumpSum", "policy-disability"}}},
        {{{"txtPolInvType", "Retirement annuity"},
          {"txtUnderInst", "Baobab Life"},
          {"txtPolRefNum", "RA 771 030"},
          {"numPremInvAmtMonthly", "4500"},
          {"numPremInvAmtMonthlyAnnEsc", "10"},
          {"numRBEMV", "2150000"},
          {"numRBEMVAge", "60"},
          {"numRBEMVEscFor", "6"}},
         {},
         {},
         "numRBEMVAtRet",
         2150000 * std::pow(1.06, 4)},
        {{{"txtPolInvType", "Pension fund"},
          {"txtUnderInst", "Limpopo Roads & Bridges"},
          {"txtPolRefNum", "Member 4417"},
          {"numRBPenLump", "900000"},
          {"numRBPenLumpAge", "65"},
          {"numRBMonAvaible", "14500"},
          {"numRBMonAvaibleEscFor", "4"}},
         {},
         {{"numRBPenLump", "policy-retirement"}},
         "numRBPenLumpAtRet",
         900000},
        {{{"txtPolInvType", "Provident fund, earlier employer"},
          {"txtUnderInst", "Levubu Provident"},
          {"numRBProvFLump", "650000"},
          {"numRBProvFLumpAge", "67"}},
         {},
         {},
         "numRBProvFLumpAtRet",
         0}, // it pays after retirement
        {{{"txtPolInvType", "Endowment"},
          {"txtUnderInst", "Makhado Mutual"},
          {"numPremInvAmtMonthly", "1200"},
          {"numEndowEMV", "320000"},
          {"numEndowEMVAge", "60"},
          {"numEndowEMVEscFwd", "5"}},
         {"chkUseEndowEMVAtRet"},
         {},
         "numEndowEMVAtRet",
         320000 * std::pow(1.05, 4)},
        {{{"txtPolInvType", "Unit trust"},
          {"txtUnderInst", "Krogh Street Balanced Fund"},
          {"numInvBensCurVal", "185000"},
          {"numInvBensCurValLoanAgainst", "25000"}},
         {"chkInvBensTakeAtDisa"}},
        {{{"txtPolInvType", "Offshore investment"},
          {"txtUnderInst", "Êksteen Global"},
          {"numPremInvAmtSingle", "150000"},
          {"numInvBensMatValLS", "500000"},
          {"numInvBensMatValLSAtAge", "68"},
          {"numInvBensMatValLSEscAt", "8"}},
         {"chkInvBensTakeFinValAtRet"},
         {{"numInvBensMatValLS", "policy-investment"}},
         "numInvBensAtRet",
         500000 / std::pow(1.08, 3)},
    };
    return all;
}

} // namespace

double enterPolicies(Hands& hands) {
    say("The button beside Policy/Investments: the schedule.");
    hands.click("cmdItemise(4)");
    hands.expectFront("frmPolInvest");
    double worth = 0;
    for (const Policy& policy : policies()) {
        if (&policy != &policies().front()) hands.click("cmdAdd");
        hands.enter(policy.entries);
        for (const char* box : policy.clicks)
            hands.click(box);
        for (const auto& [field, name] : policy.pictures) {
            hands.turnTo(field);
            picture(&hands.window(), name);
        }
        if (policy.atRetirement != nullptr) hands.expectFigure(policy.atRetirement, policy.worth);
        worth += policy.worth;
    }
    say("  " + hands.front()->windowTitle());
    hands.click("cmdOK");
    hands.expectFront("frmNARA");
    return worth;
}

} // namespace tour
