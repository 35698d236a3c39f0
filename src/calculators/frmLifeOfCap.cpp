#include "calculators/frmLifeOfCap.h"

#include <limits>

#include "calculators/lifeofcapitalreport.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"
#include "reports/report.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr const char* figures = "### ### ###.00";
constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN(); // shows as an error
const NumberKind taxRate = percent.from(0, "The minimum tax rate allowed is 0%", "Incorrect Tax Rate!")
                               .upTo(40, "The maximum tax rate allowed is 40%", "Incorrect Tax Rate!");

/// After its message the focus goes to the tax rate, on purpose: users know the screen that way.
NumberKind escalation(Field* tax) {
    return percent.where([](double rate) { return !(rate > 50); },
                         [tax] {
                             return Complaint{"The maximum Annual income escalation allowed is 50%",
                                              "Incorrect Annual Income Escalation!", tax};
                         });
}

} // namespace

frmLifeOfCap::frmLifeOfCap(Workplace& workplace)
    : Screen(workplace, "frmLifeOfCap", "Life of Capital", workplace.record.changed.LifeOfCapChanged),
      m_inputs(workplace.record.lifeOfCapital) {
    auto* capital = number("sidbEdit13", m_inputs.CAPI, money);
    auto* income = number("sidbEdit14", m_inputs.MINC, money);
    auto* rate = number("sidbEdit15", m_inputs.GRTE, percent);
    auto* tax = number("sidbEdit16", m_inputs.TXRTE, taxRate);
    auto* rise = number("sidbEdit17", m_inputs.EXCLife, escalation(tax));
    m_answer = result("sidbEdit18", m_years, whole);
    showsCalculated(m_answer);
    m_ok = okButton();
    auto* work = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        announce({m_answer});
    });
    body(column({form({{"Capital Amount &invested", capital},
                       {"Montl&y income required", income},
                       {"Investment intere&st rate", rate, "% a year"},
                       {"&Tax rate", tax, "%"},
                       {"Annual income &escalation", rise, "% a year"},
                       {"Will provide required income for more than ", m_answer, "years"}}),
                 spring(),
                 row({work, button("cmdAmortLifeCap", "A&mortisation", [this] { table(); }),
                      button("cmdAmortGraph", "&Graph", [this] { graph(); }),
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
    m_life = finance::LCCalculate(m_inputs, finance::moreThanInLifeOfCapital);
    m_years = m_life.shown;
    m_answer->present(m_life.isFinite ? m_years : noAnswer);
    setRowLabel(m_answer, QString::fromStdString(m_life.caption));
    calculated();
}

void frmLifeOfCap::table() {
    calculate();
    const auto& [capital, earnings, need, lookedAt] = m_life.years;
    std::vector<std::vector<double>> rows;
    for (std::size_t year = 1; year <= static_cast<std::size_t>(m_life.rows()); ++year)
        rows.push_back({static_cast<double>(year), capital[year], earnings[year], need[year]});
    showGrid("Life of Capital",
             {{" Year ", "##"},
              {"       Capital       ", figures},
              {"      Interest       ", figures},
              {"     Required        ", figures}},
             std::move(rows), m_ok);
}

void frmLifeOfCap::graph() {
    calculate();
    if (m_life.years.lookedAt == 0) return m_ok->setFocus(Qt::OtherFocusReason);
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->EMVAmortGraph(m_life.years.capital, m_life.years.earnings, m_life.years.need, m_life.rows());
}

void frmLifeOfCap::print(Destination destination) {
    if (!m_life.isFinite) return focusLater(m_ok);
    const auto printout =
        feedLifeOfCapital(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_life, m_includeAmort == 1);
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace calculators
