#include "tax/frmEstateDutyEst.h"

#include "datastore/paths.h"
#include "tax/estatedutyreport.h"

namespace tax {

using namespace screenkit;

namespace {

const NumberKind notNegative = wholeRand.from(0, "Please enter an amount that is not negative.", "Incorrect Amount");
const NumberKind share = percent.between(0, 100, "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
const SettingsNames settingsNames{.panel = "fraSettings", .ok = "cmdOKCosts", .cancel = "cmdCancelCosts"};
const InfoNames infoNames{.panel = "fraEDEHelp", .ok = "cmdEDEHelp"};

const Topic information{
    "Estate Duty Estimator",
    "This calculator does not do a complete 'winding up' of an estate with distributions etc. Such programs are "
    "extremely complex, very time-consuming and require tonnes of difficult-to-obtain data to be entered.  Such "
    "programs also require that the user (executor) have a very comprehensive knowledge of how to finalise estates.  "
    "This calculator is for the financial consultant who only wants to enter half a dozen amounts to display a rough "
    "estimate of how much would be required for executor’s fees and for Estate Duty.  Would R2,000 or R2m be required? "
    " In some cases urgent financial planning may be required, or even an extra life policy written to cover these "
    "costs.  Remember that the last person to get anything out of the estate is the widow."
    "\n\n"
    "The value of any asset or benefit that is bequeathed to a spouse or to a registered charity is generally exempt "
    "from Estate duty and from Executor's fees."
    "\n\n"
    "All values you enter for Estate Duty must be 'net' amounts which means the full value of the asset less any "
    "amount owing on the asset. Values that you enter for Executor's Fees must be the full value of the asset (before "
    "any amount owing on the asset is subtracted).  Deemed assets are liable for Estate duty but not for Executor's "
    "fees.  If married in CoP then enter half the amount where applicable - for example, the CoP split does not apply "
    "to deemed assets etc."
    "\n\n"
    "The accrual amount may only apply to cases when married Antenuptial Contract and may reflect the accrual value of "
    "the spouse's contribution to the value of the estate."
    "\n\n"
    "Executors fees are normally 3.5% (before VAT) of the amount they administer Executor's fees may be negotiable."};

} // namespace

frmEstateDutyEst::frmEstateDutyEst(Workplace& workplace)
    : ResultScreen(workplace, "frmEstateDutyEst", "Estate Duty Estimator ", workplace.record.changed.EstateDutyChanged),
      m_estate(workplace.record.estateDuty), m_rates(readEstateDutyRates(workplace.paths.DefaultDbPath)) {
    const auto inform = infoPanel(infoNames);
    body(column({group("fraValues", "Net asset values", buildEstate()),
                 note("Please note that this Estate Duty Estimator       is only a guide and is designed to produce an "
                      "\"estimate\" of taxes and fees payable.  For a more accurate calculation you should not "
                      "hesitate to use a professional specialist executor.  Please click on the blue \"i for info\" "
                      "button for more information."),
                 spring(),
                 buttonLine({button("cmdSettings", "&Settings", [this] { m_openSettings(); }),
                             button("cmdInfo", "&Info", [inform] { inform(information); })})}));
    buildSettings();
    prints();
}

NumberField* frmEstateDutyEst::amount(const QString& name, double& place) {
    return number(name, withoutCents(place), notNegative);
}

QLayout* frmEstateDutyEst::buildEstate() {
    assessment::EstateDuty& in = m_estate;
    // Created column by column, so that Tab goes down one and then the other.
    NumberField* const estate[] = {
        amount("numPropEstate", in.PropEstate),           amount("numPolInvEstate", in.PolInvEstate),
        amount("numOtherEstate", in.OtherEstate),         answer("numTotalEstate", m_result.totalEstate, wholeRand),
        amount("numLessAccEstate", in.LessAccEstate),     answer("numDutEstate", m_result.dutiable, wholeRand),
        answer("numEstateDuty", m_result.duty, wholeRand)};
    NumberField* const executor[] = {amount("numPropExecutor", in.PropExecutor),
                                     amount("numPolInvExecutor", in.PolInvExecutor),
                                     amount("numOtherExecutor", in.OtherExecutor),
                                     answer("numTotalExecutor", m_result.totalExecutor, wholeRand),
                                     amount("numLessAccExecutor", in.LessAccExecutor),
                                     answer("numDutExecutor", m_result.leviable, wholeRand),
                                     answer("numExecutorsFees", m_result.fees, wholeRand)};
    constexpr const char* heads[] = {"Properties",          "Policies, investments etc     ", "Other",        "Total ",
                                     "Less accrual amount", "Dutiable/leviable amount    ",    "Tax/duty/fees"};
    std::vector<MatrixRow> rows;
    for (std::size_t i = 0; i < std::size(heads); ++i)
        rows.push_back({heads[i], {estate[i], executor[i]}});
    return matrix({"For &Estate duty", "For E&xecutor fees"}, rows);
}

void frmEstateDutyEst::buildSettings() {
    auto* rebate = number("numEstateDutyRebate", withoutCents(m_entered.EstateDutyRebate), notNegative);
    auto* rate = number("numRateofTax", m_entered.RateofTax, share);
    auto* tier = number("numSndBracket", withoutCents(m_entered.SndBracket), notNegative);
    auto* secondRate = number("numRateofTax2", m_entered.RateofTax2, share);
    auto* fees = number("numExecFeesRate", m_entered.ExecFeesRate, share);
    m_openSettings = settingsPanel<EstateDutyRates>(
        settingsNames,
        form({{"Estate duty re&bate", rebate},
              {"&Rate of tax", rate, "%"},
              {"2nd &Tier Value", tier},
              {"2nd Rate of ta&x", secondRate, "%"},
              {"&Executor's fees", fees, "%"}}),
        {rebate, rate, tier, secondRate, fees}, m_rates, m_entered,
        [this](const EstateDutyRates& entered) { writeEstateDutyRates(m_work.paths.DefaultDbPath, entered); },
        [this] {
            outdated();
            calculate();
        });
}

void frmEstateDutyEst::calculate() {
    m_result = estimateEstateDuty(m_estate, m_rates);
    showAnswers(m_result.isFinite());
}

std::optional<datastore::Printout> frmEstateDutyEst::feed() {
    if (!m_result.isFinite()) return {};
    return feedEstateDuty(m_work.paths.PrintDbPath, m_work.record.client.Name, m_estate, m_rates, m_result);
}

} // namespace tax
