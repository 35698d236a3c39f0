#include "finance/frmCapitalLife.h"

#include <limits>

#include "reports/frmGraph.h"

namespace finance {

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

CapitalLifeScreen::CapitalLifeScreen(Workplace& workplace, const QString& name, const QString& caption,
                                     std::int16_t& changed, const MoreThan& more)
    : Screen(workplace, name, caption, changed), m_inputs(workplace.record.lifeOfCapital), m_more(more) {}

std::vector<FormRow> CapitalLifeScreen::lifeRows() {
    auto* capital = number("sidbEdit13", m_inputs.CAPI, money);
    auto* income = number("sidbEdit14", m_inputs.MINC, money);
    auto* rate = number("sidbEdit15", m_inputs.GRTE, percent);
    auto* tax = number("sidbEdit16", m_inputs.TXRTE, taxRate);
    auto* rise = number("sidbEdit17", m_inputs.EXCLife, escalation(tax));
    m_lasts = result("sidbEdit18", m_years, whole);
    return {{"Capital Amount &invested", capital},
            {"Montl&y income required", income},
            {"Investment intere&st rate", rate, "% a year"},
            {"&Tax rate", tax, "%"},
            {"Annual income &escalation", rise, "% a year"},
            {"Will provide required income for more than ", m_lasts, "years"}};
}

QPushButton* CapitalLifeScreen::lifeYearsButton(std::function<void()> action) {
    return button("cmdAmortLifeCap", "A&mortisation", std::move(action));
}

QPushButton* CapitalLifeScreen::lifeGraphButton(std::function<void()> action) {
    return button("cmdAmortGraph", "&Graph", std::move(action));
}

void CapitalLifeScreen::calculateLife() {
    m_life = LCCalculate(m_inputs, m_more);
    m_years = m_life.shown;
    m_lasts->present(m_life.isFinite ? m_years : noAnswer);
    setRowLabel(m_lasts, QString::fromStdString(m_life.caption));
}

void CapitalLifeScreen::showLifeYears(QWidget* focusAfter) {
    const auto& [capital, earnings, need, lookedAt] = m_life.years;
    std::vector<std::vector<double>> rows;
    for (std::size_t year = 1; year <= static_cast<std::size_t>(m_life.rows()); ++year)
        rows.push_back({static_cast<double>(year), capital[year], earnings[year], need[year]});
    showGrid("Life of Capital",
             {{" Year ", "##"},
              {"       Capital       ", figures},
              {"      Interest       ", figures},
              {"     Required        ", figures}},
             std::move(rows), focusAfter);
}

void CapitalLifeScreen::drawLife(QWidget* otherwise) {
    if (m_life.years.lookedAt == 0) return otherwise->setFocus(Qt::OtherFocusReason);
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->EMVAmortGraph(m_life.years.capital, m_life.years.earnings, m_life.years.need, m_life.rows());
}

} // namespace finance
