#include "calculators/frmBondAna.h"

#include "base/numberformat.h"
#include "calculators/bondreport.h"
#include "calculators/frmLoanKinds.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr const char* rand = "# ### ### ##0.00 ";

GridCell cellOf(const BondCost& cost, bool isFinite, std::size_t column) {
    if (column == 0) return QString::fromStdString(cost.label());
    if (!isFinite) return QString("Error");
    return std::array{cost.repayment, cost.interest, cost.paid}[column - 1];
}

} // namespace

frmBondAna::frmBondAna(Workplace& workplace)
    : ResultScreen(workplace, "frmBondAna", "Bond Analysis", workplace.record.changed.BondAnaChanged),
      m_bond(workplace.record.bond),
      m_table(table("grdPayments", "Costs of the bond by period", Grid::Picking::stretch)) {
    m_table->setVisibleLines(static_cast<int>(m_result.terms.size()));
    showsCalculated(m_table);
    body(column({form({{"&Bond amount", number("numBAmt", m_bond.BCMBP2, money)},
                       {"Interest &rate", number("numIntRate", m_bond.BCMBP4, loanRate), "% a year"}}),
                 m_table, spring(), buttonLine()}));
    prints();
}

void frmBondAna::calculate() {
    m_result = compareBondTerms(m_bond);
    const BondAnalysis& result = m_result;
    m_table->show({GridColumn::text(" Period "),
                   {"Monthly repayment", rand},
                   {"   Total Interest   ", rand},
                   {"  Total Paid    ", rand}},
                  {result.terms.size(), [result](std::size_t row, std::size_t column) {
                       return cellOf(result.terms[row], result.isFinite(), column);
                   }});
    showAnswers();
}

void frmBondAna::sayAnswers() {
    QStringList said{"Monthly repayment"};
    for (const BondCost& cost : m_result.terms)
        said << QString::fromStdString(cost.label() + " " + base::formatNumber(cost.repayment, rand));
    announce(said.join(", "));
}

std::optional<datastore::Printout> frmBondAna::feed() {
    if (!m_result.isFinite()) return {};
    return feedBondAnalysis(m_work.paths.PrintDbPath, m_work.record.client.Name, m_bond, m_result);
}

} // namespace calculators
