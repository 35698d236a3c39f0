#include "shell/screens.h"

#include <algorithm>
#include <iterator>

#include "analyses/frmNARA.h"
#include "calculators/frmLoans.h"
#include "client/frmPersDet.h"
#include "client/frmPolInvest.h"
#include "datastore/frmBrowse.h"
#include "datastore/frmSaveFileAs.h"
#include "reports/frmGraph.h"
#include "reports/frmHeadFoot.h"
#include "shell/frmBrowser.h"
#include "tax/frmKwikTax.h"
#include "tax/frmMonthly.h"

namespace shell {

namespace {

template <class S>
screenkit::Screen* build(screenkit::Workplace& workplace) {
    return new S(workplace);
}

constexpr ScreenEntry entries[] = {
    {"frmBrowse", build<datastore::frmBrowse>},   {"frmSaveFileAs", build<datastore::frmSaveFileAs>},
    {"frmPersDet", build<client::frmPersDet>},    {"frmPolInvest", build<client::frmPolInvest>},
    {"frmNARA", build<analyses::frmNARA>},        {"frmLoans", build<calculators::frmLoans>},
    {"frmHeadFoot", build<reports::frmHeadFoot>}, {"frmGraph", build<reports::frmGraph>},
    {"frmBrowser", build<shell::frmBrowser>},     {"frmKwikTax", build<tax::frmKwikTax>},
    {"frmMonthly", build<tax::frmMonthly>},
};

constexpr const char* closedWithTheClient[] = {
    "frmBrowse",     "frmDayBal",        "frmDebtCon",    "frmGraph",         "frmHeadFoot", "frmInflation",
    "frmKwikQuotes", "frmLoans",         "frmNADeath",    "frmNAEd",          "frmNARA",     "frmNomEffec",
    "frmPremium",    "frmKwikTax",       "frmInvestComp", "frmDDLivAnn",      "frmOffShore", "frmRRROLD",
    "frmRRRNEW",     "frmBondAna",       "frmBondBuster", "frmNADisability",  "frmPersDet",  "frmIncomeShares",
    "frmPolInvest",  "frmEstateDutyEst", "frmRATaxAdv",   "frmCGTCalcIncome", "frmLumpSum",
};

} // namespace

const ScreenEntry* screenEntry(const QString& name) {
    const auto found = std::find_if(std::begin(entries), std::end(entries),
                                    [&](const ScreenEntry& entry) { return name == entry.name; });
    return found == std::end(entries) ? nullptr : found;
}

std::span<const char* const> clientScreens() { return closedWithTheClient; }

} // namespace shell
