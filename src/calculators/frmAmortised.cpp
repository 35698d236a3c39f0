#include "calculators/frmAmortised.h"

namespace calculators {

using namespace screenkit;

AmortisedScreen::AmortisedScreen(Workplace& workplace, const QString& name, const QString& caption,
                                 std::int16_t& changed, const Names& names)
    : ResultScreen(workplace, name, caption, changed), m_names(names) {}

QLayout* AmortisedScreen::amortisedButtons(QPushButton* own) {
    std::vector<QPushButton*> line;
    if (own != nullptr) line.push_back(own);
    line.push_back(resultButton("cmdMonAmort", "Mo&nthly Amort.", [this] { showTable(true); }));
    line.push_back(resultButton("cmdAnnAmort", "&Annual Amort.", [this] { showTable(false); }));
    line.push_back(resultButton(m_names.graphButton, "Annual &Graph", [this] { showGraph(); }));
    return buttonLine(line);
}

void AmortisedScreen::printsWithAmortisation() {
    auto* kinds = options("Option1", {"Annual", "Monthly "}, m_amortOption);
    m_amortChoice = group("fraIncAmort", "Amortisation", kinds);
    auto* include = check("Check1", "Include Amorti&zation", m_includeAmort, [this, kinds](bool on) {
        if (on && m_amortChoice->isHidden()) m_amortOption = 0;
        kinds->fill();
        m_amortChoice->setVisible(on);
    });
    prints({include, m_amortChoice}, {kinds, include});
    m_amortChoice->hide();
}

void AmortisedScreen::showTable(bool monthly) {
    const RepaidLoan loan = repaidLoan();
    if (monthly ? !loan.hasMonths() : !loan.hasYears()) return firstEntry()->takeFocus();
    const char* mask = m_names.mask;
    const std::vector<GridColumn> months{
        {" Month   ", "##"}, {"Capital payment ", mask}, {"Interest payment", mask}, {"    Balance    ", mask}};
    const std::vector<GridColumn> years{
        {" Year ", "##"}, {"Capital payments", mask}, {m_names.yearlyInterest, mask}, {"    Balance      ", mask}};
    showGrid(monthly ? "Monthly Amortisation" : "Annual Amortisation", monthly ? months : years,
             tableRows(chosenRows(loan, {true, monthly})), m_ok);
}

void AmortisedScreen::showGraph() {
    const RepaidLoan loan = repaidLoan();
    if (!loan.hasYears()) return m_ok->setFocus(Qt::OtherFocusReason);
    const Amortisation table = annualAmortisation(loan);
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        (window->*m_names.draw)(table.MonthBalance, table.YearCapital, table.YearInterest, table.AmortShape,
                                table.AmortYears, table.years());
}

} // namespace calculators
