#include "calculators/frmOffShore.h"

#include "calculators/offshorereport.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

const NumberKind years = whole.from(0, "The minimum period allowed is 0 years", "Incorrect Period!");
const NumberKind taxRate =
    whole.between(0, 100, "The range of the Tax Rate is between 0% and 100%", "Incorrect Tax Rate!");
// The record holds whole rand.
const NumberKind amount{wholeRand.mask, true, wholeRand.characters};
const NumberKind value{money.mask, false, 22};

} // namespace

frmOffShore::frmOffShore(Workplace& workplace)
    : ResultScreen(workplace, "frmOffShore", "Offshore Investments", workplace.record.changed.OffShoreChanged),
      m_inputs(workplace.record.offShore) {
    auto* invested = number("numInvAmount", m_inputs.InvAmount, amount);
    auto* period = number("numOSPeriod", m_inputs.OSPeriod, years);
    auto* currency = number("numLCurrChange", m_inputs.LCurrChange, whole);
    auto* abroad = number("numOFInvRate", m_inputs.OFInvRate, percent);
    auto* abroadTax = number("numOFTaxRate", m_inputs.OFTaxRate, taxRate);
    auto* local = number("numLInvRate", m_inputs.LInvRate, percent);
    auto* localTax = number("numLTaxRate", m_inputs.LTaxRate, taxRate);
    body(column({form({{"Investment a&mount", invested},
                       {"P&eriod", period, "years"},
                       {"Local currency &gains", currency, "% a year"}}),
                 row({group("fraOffShore", "Offshore",
                            form({{"Offshore investment &rate", abroad, "% a year"},
                                  {"&Tax on offshore growth", abroadTax, "%"},
                                  {"Offshore maturity value", answer("numOFMatVal", m_result.OSMatVal, value)},
                                  {"Offshore real value", answer("numOFRealMatVal", m_result.OSRealMatVal, value)}})),
                      group("fraLocal", "Local",
                            form({{"&Local investment rate", local, "% a year"},
                                  {"Ta&x on local growth", localTax, "%"},
                                  {"Local maturity value", answer("numLMatVal", m_result.LMatVal, value)},
                                  {"Local real value", answer("numLRealMatVal", m_result.LRealMatVal, value)}}))}),
                 spring(), buttonLine()}));
    prints();
}

void frmOffShore::calculate() {
    m_result = compareOffShore(m_inputs);
    showAnswers(m_result.fits());
}

std::optional<datastore::Printout> frmOffShore::feed() {
    if (!m_result.fits()) return {};
    return feedOffShore(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
}

} // namespace calculators
