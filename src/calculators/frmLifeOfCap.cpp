#include "calculators/frmLifeOfCap.h"

#include "calculators/lifeofcapitalreport.h"
#include "datastore/paths.h"
#include "reports/report.h"

namespace calculators {

using namespace screenkit;

frmLifeOfCap::frmLifeOfCap(Workplace& workplace)
    : CapitalLifeScreen(workplace, "frmLifeOfCap", "Life of Capital", workplace.record.changed.LifeOfCapChanged,
                        finance::moreThanInLifeOfCapital) {
    auto* fields = form(lifeRows());
    showsCalculated(m_lasts);
    m_ok = okButton();
    auto* work = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        announce({m_lasts});
    });
    auto* years = lifeYearsButton([this] {
        calculate();
        showLifeYears(m_ok);
    });
    auto* drawing = lifeGraphButton([this] {
        calculate();
        drawLife(m_ok);
    });
    body(column({fields, spring(),
                 row({work, years, drawing,
                      button("cmdPrint", "&Print",
                             [this] {
                                 calculate();
                                 m_printPanel->open();
                             }),
                      spring(), m_ok})}));
    defaultButton(work);
    auto* amortised = check("Check1", "Include Amor&tisation", m_includeAmort);
    untrackedField(amortised);
    m_printPanel = printPanel({amortised}, [this](Destination to) { print(to); });
}

void frmLifeOfCap::calculate() {
    calculateLife();
    calculated();
}

void frmLifeOfCap::print(Destination destination) {
    if (!m_life.isFinite) return focusLater(m_ok);
    const auto printout =
        feedLifeOfCapital(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_life, m_includeAmort == 1);
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace calculators
