#include "clientfile/parts_support.h"

namespace {

using namespace parttest;
using assessment::Assessment;

class CalculatorParts : public PartsTest {
protected:
    Assessment full = fullClient(run.record());
};

TEST_F(CalculatorParts, PrintWhatTheirScreensPrintWithEachChoice) {
    struct Printed {
        const char* part;
        Choices choices;
        const char *screen, *presses;
    };
    const Choice table = Choice::amortisation, monthly = Choice::monthly;
    const Printed all[] = {
        {"inflation", {}, "frmInflation", "cmdPrint cmdVR"},
        {"loans", {}, "frmLoans", "cmdPrint cmdVR"},
        {"loans", {monthly, Choice::charges}, "frmLoans", "cmdFinCharge cmdPrint cmdVR"},
        {"loans", {table}, "frmLoans", "cmdPrint Check1 cmdVR"},
        {"loans", {table, monthly}, "frmLoans", "cmdPrint Check1 Option1(1) cmdVR"},
        {"bondBuster", {}, "frmBondBuster", "cmdPrint cmdVR"},
        {"bondAnalysis", {}, "frmBondAna", "cmdPrint cmdVR"},
        {"lifeOfCapital", {}, "frmLifeOfCap", "cmdPrint cmdVR"},
        {"lifeOfCapital", {table}, "frmLifeOfCap", "cmdPrint Check1 cmdVR"},
        {"incomeShares", {}, "frmIncomeShares", "cmdPrint cmdVR"},
        {"incomeShares", {Choice::commissions}, "frmIncomeShares", "cmdPrint chkIncComms cmdVR"},
        {"dailyBalance", {}, "frmDayBal", "cmdPrint cmdVR"},
        {"nominalEffective", {}, "frmNomEffec", "cmdPrint cmdVR"},
        {"debtConsolidation", {}, "frmDebtCon", "cmdPrint cmdVR"},
        {"debtConsolidation", {table}, "frmDebtCon", "cmdPrint Check1 cmdVR"},
        {"debtConsolidation", {table, monthly}, "frmDebtCon", "cmdPrint Check1 Option1(1) cmdVR"},
        {"investmentComparison", {}, "frmInvestComp", "cmdPrint cmdVR"},
        {"offshoreInvestments", {}, "frmOffShore", "cmdPrint cmdVR"},
        {"drawDownAnnuity", {}, "frmDDLivAnn", "cmdPrint cmdVR"},
        {"drawDownAnnuity", {table}, "frmDDLivAnn", "cmdPrint Check1 cmdVR"},
        {"realRate", {}, "frmRRRNEW", "cmdPrint cmdVR"},
        {"realRateSingle", {}, "frmRRROLD", "cmdPrint cmdVR"},
    };
    for (const Printed& each : all)
        expectAsShown(each.part, each.choices, each.screen, each.presses, full);
}

} // namespace
