#include "calculators/frmOffShore.h"

#include <limits>

#include "calculators/offshorereport.h"
#include "datastore/paths.h"
#include "reports/report.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN(); // shows as an error
const NumberKind years = whole.from(0, "The minimum period allowed is 0 years", "Incorrect Period!");
const NumberKind taxRate =
    whole.between(0, 100, "The range of the Tax Rate is between 0% and 100%", "Incorrect Tax Rate!");
// The record holds whole rand.
const NumberKind amount{wholeRand.mask, true, wholeRand.characters};
const NumberKind value{money.mask, false, 22};

} // namespace

frmOffShore::frmOffShore(Workplace& workplace)
    : Screen(workplace, "frmOffShore", "Offshore Investments", workplace.record.changed.OffShoreChanged),
      m_inputs(workplace.record.offShore) {
    auto* invested = number("numInvAmount", m_inputs.InvAmount, amount);
    auto* period = number("numOSPeriod", m_inputs.OSPeriod, years);
    auto* currency = number("numLCurrChange", m_inputs.LCurrChange, whole);
    auto* abroad = number("numOFInvRate", m_inputs.OFInvRate, percent);
    auto* abroadTax = number("numOFTaxRate", m_inputs.OFTaxRate, taxRate);
    auto* local = number("numLInvRate", m_inputs.LInvRate, percent);
    auto* localTax = number("numLTaxRate", m_inputs.LTaxRate, taxRate);
    m_ok = okButton();
    auto* work = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        announce(m_answers);
    });
    body(column({form({{"Investment a&mount", invested},
                       {"P&eriod", period, "years"},
                       {"Local currency &gains", currency, "% a year"}}),
                 row({group("fraOffShore", "Offshore",
                            form({{"Offshore investment &rate", abroad, "% a year"},
                                  {"&Tax on offshore growth", abroadTax, "%"},
                                  {"Offshore maturity value", answer("numOFMatVal", m_result.OSMatVal)},
                                  {"Offshore real value", answer("numOFRealMatVal", m_result.OSRealMatVal)}})),
                      group("fraLocal", "Local",
                            form({{"&Local investment rate", local, "% a year"},
                                  {"Ta&x on local growth", localTax, "%"},
                                  {"Local maturity value", answer("numLMatVal", m_result.LMatVal)},
                                  {"Local real value", answer("numLRealMatVal", m_result.LRealMatVal)}}))}),
                 spring(),
                 row({work,
                      button("cmdPrint", "&Print",
                             [this] {
                                 calculate();
                                 m_printPanel->open();
                             }),
                      spring(), m_ok})}));
    defaultButton(work);
    m_printPanel = printPanel({}, [this](Destination to) { print(to); });
}

NumberField* frmOffShore::answer(const QString& name, double& figure) {
    m_answers.push_back(result(name, figure, value));
    showsCalculated(m_answers.back());
    return m_answers.back();
}

void frmOffShore::calculate() {
    m_result = compareOffShore(m_inputs);
    for (NumberField* field : m_answers)
        m_result.fits() ? field->fill() : field->present(noAnswer);
    calculated();
}

void frmOffShore::print(Destination destination) {
    if (!m_result.fits()) return focusLater(m_ok);
    const auto printout = feedOffShore(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace calculators
