#include "shell/screens.h"

#include <algorithm>
#include <iterator>

#include "analyses/frmNADeath.h"
#include "analyses/frmNADisability.h"
#include "analyses/frmNAEd.h"
#include "analyses/frmNARA.h"
#include "calculators/frmBondAna.h"
#include "calculators/frmBondBuster.h"
#include "calculators/frmDDLivAnn.h"
#include "calculators/frmDayBal.h"
#include "calculators/frmDebtCon.h"
#include "calculators/frmIncomeShares.h"
#include "calculators/frmInflation.h"
#include "calculators/frmInvestComp.h"
#include "calculators/frmLifeOfCap.h"
#include "calculators/frmLoans.h"
#include "calculators/frmNomEffec.h"
#include "calculators/frmOffShore.h"
#include "calculators/frmPremium.h"
#include "calculators/frmRRRNEW.h"
#include "calculators/frmRRROLD.h"
#include "client/frmPersDet.h"
#include "client/frmPolInvest.h"
#include "clientfile/frmClientFile.h"
#include "datastore/frmBrowse.h"
#include "datastore/frmCOPYToA.h"
#include "datastore/frmDelete.h"
#include "datastore/frmMasterDBLocator.h"
#include "datastore/frmREADFromA.h"
#include "datastore/frmSaveFileAs.h"
#include "diary/frmActPending.h"
#include "diary/frmCalendar.h"
#include "diary/frmDiary.h"
#include "diary/frmFindBirthdays.h"
#include "diary/frmFindSARS.h"
#include "quotes/frmKwikQuotes.h"
#include "reports/frmBlankAnaQuestion.h"
#include "reports/frmGraph.h"
#include "reports/frmHeadFoot.h"
#include "shell/frmBrowser.h"
#include "tax/frmCGTCalcIncome.h"
#include "tax/frmCarAll.h"
#include "tax/frmEstateDutyEst.h"
#include "tax/frmKwikTax.h"
#include "tax/frmLumpSum.h"
#include "tax/frmMonthly.h"
#include "tax/frmRATaxAdv.h"

namespace shell {

namespace {

template <class S>
screenkit::Screen* build(screenkit::Workplace& workplace) {
    return new S(workplace);
}

constexpr ScreenEntry entries[] = {
    {"frmBrowse", build<datastore::frmBrowse>, "Finding a client again"},
    {"frmDelete", build<datastore::frmDelete>, "Deleting a client"},
    {"frmCOPYToA", build<datastore::frmCOPYToA>, "Taking clients to another computer"},
    {"frmREADFromA", build<datastore::frmREADFromA>, "Taking clients to another computer"},
    {"frmMasterDBLocator", build<datastore::frmMasterDBLocator>, "Where your data lies, and backups"},
    {"frmSaveFileAs", build<datastore::frmSaveFileAs>, "Saving"},
    {"frmPersDet", build<client::frmPersDet>, "Recording a client"},
    {"frmPolInvest", build<client::frmPolInvest>, "Policies and investments"},
    {"frmNADeath", build<analyses::frmNADeath>, "The death and disability needs analyses"},
    {"frmNADisability", build<analyses::frmNADisability>, "The death and disability needs analyses"},
    {"frmNARA", build<analyses::frmNARA>, "The retirement needs analysis"},
    {"frmNAEd", build<analyses::frmNAEd>, "The education needs analysis"},
    {"frmInflation", build<calculators::frmInflation>, "Inflation"},
    {"frmLifeOfCap", build<calculators::frmLifeOfCap>, "Life of capital"},
    {"frmInvestComp", build<calculators::frmInvestComp>, "Investment comparison"},
    {"frmLoans", build<calculators::frmLoans>, "The loan calculator"},
    {"frmBondBuster", build<calculators::frmBondBuster>, "Bond buster"},
    {"frmBondAna", build<calculators::frmBondAna>, "Bond analysis"},
    {"frmDebtCon", build<calculators::frmDebtCon>, "Debt consolidation"},
    {"frmPremium", build<calculators::frmPremium>, "The premium for a capital"},
    {"frmDayBal", build<calculators::frmDayBal>, "Daily balance"},
    {"frmNomEffec", build<calculators::frmNomEffec>, "Nominal and effective interest"},
    {"frmRRRNEW", build<calculators::frmRRRNEW>, "Real rate of return"},
    {"frmRRROLD", build<calculators::frmRRROLD>, "Real rate of return"},
    {"frmOffShore", build<calculators::frmOffShore>, "Offshore investments"},
    {"frmIncomeShares", build<calculators::frmIncomeShares>, "Income from shares"},
    {"frmDDLivAnn", build<calculators::frmDDLivAnn>, "Draw-down annuity"},
    {"frmKwikQuotes", build<quotes::frmKwikQuotes>, "Kwik-Quotes"},
    {"frmClientFile", build<clientfile::frmClientFile>, "The client file as one document"},
    {"frmHeadFoot", build<reports::frmHeadFoot>, "Your header and footer lines"},
    {"frmGraph", build<reports::frmGraph>, "Graphs"},
    {"frmBrowser", build<shell::frmBrowser>, "Working by keyboard"},
    {"frmKwikTax", build<tax::frmKwikTax>, "Quick tax"},
    {"frmMonthly", build<tax::frmMonthly>, "Monthly tax"},
    {"frmCGTCalcIncome", build<tax::frmCGTCalcIncome>, "Capital gains tax"},
    {"frmLumpSum", build<tax::frmLumpSum>, "Tax on lump sums"},
    {"frmEstateDutyEst", build<tax::frmEstateDutyEst>, "Estate duty"},
    {"frmRATaxAdv", build<tax::frmRATaxAdv>, "The advantage of retirement funding"},
    {"frmCarAll", build<tax::frmCarAll>, "Travel claims"},
    {"frmCalendar", build<diary::frmCalendar>, "The diary"},
    {"frmDiary", build<diary::frmDiary>, "The diary"},
    {"frmCRM", build<diary::frmCRM>, "The diary"},
    {"frmActPending", build<diary::frmActPending>, "The diary"},
    {"frmBlankAnaQuestion", build<reports::frmBlankAnaQuestion>, "Blank questionnaires"},
    {"frmFindSARS", build<diary::frmFindSARS>, "Review dates and birthdays"},
    {"frmFindBirthdays", build<diary::frmFindBirthdays>, "Review dates and birthdays"},
};

constexpr const char* closedWithTheClient[] = {
    "frmBrowse",     "frmDayBal",        "frmDebtCon",    "frmGraph",         "frmHeadFoot", "frmInflation",
    "frmKwikQuotes", "frmLoans",         "frmNADeath",    "frmNAEd",          "frmNARA",     "frmNomEffec",
    "frmPremium",    "frmKwikTax",       "frmInvestComp", "frmDDLivAnn",      "frmOffShore", "frmRRROLD",
    "frmRRRNEW",     "frmBondAna",       "frmBondBuster", "frmNADisability",  "frmPersDet",  "frmIncomeShares",
    "frmPolInvest",  "frmEstateDutyEst", "frmRATaxAdv",   "frmCGTCalcIncome", "frmLumpSum",  "frmClientFile",
};

constexpr const char* closedWithTheFile[] = {
    "frmBrowse", "frmDelete", "frmCOPYToA", "frmFindSARS", "frmFindBirthdays", "frmHeadFoot",
};

} // namespace

const ScreenEntry* screenEntry(const QString& name) {
    const auto found = std::find_if(std::begin(entries), std::end(entries),
                                    [&](const ScreenEntry& entry) { return name == entry.name; });
    return found == std::end(entries) ? nullptr : found;
}

std::span<const ScreenEntry> screenEntries() { return entries; }

std::span<const char* const> clientScreens() { return closedWithTheClient; }
std::span<const char* const> screensOfTheFile() { return closedWithTheFile; }

} // namespace shell
