#include "calculators/frmBondBuster.h"

#include <QLabel>

#include "calculators/bondreport.h"
#include "calculators/frmLoanKinds.h"
#include "datastore/paths.h"
#include "screenkit/trouble.h"

namespace calculators {

using namespace screenkit;

namespace {

QString whyNoNewFigures(ExtraPayment extra) {
    switch (extra) {
    case ExtraPayment::tooHigh: return "No new figures: the extra payment is more than ten times the repayment.";
    case ExtraPayment::neverClears:
        return "No new figures: with this extra payment no period of 1 to 600 months repays the bond.";
    case ExtraPayment::none:
    case ExtraPayment::applied: break;
    }
    return " "; // keeps the line's height
}

} // namespace

frmBondBuster::frmBondBuster(Workplace& workplace)
    : ResultScreen(workplace, "frmBondBuster", "Bond Buster", workplace.record.changed.BondBusterChanged),
      m_bond(workplace.record.bond) {
    auto* before = agreed();
    auto* later = afterwards();
    m_why = note(" ");
    m_why->setObjectName("lblWhyNone");
    body(column({row({Item(before, 1), Item(later, 1)}), m_why, spring(), buttonLine()}));
    prints();
}

QWidget* frmBondBuster::agreed() {
    return group("fraAgreed", "As agreed",
                 form({{"Princ&ipal amount", number("numPrinAmount", m_bond.BMBP2, money)},
                       {"P&eriod", number("numPeriod", m_bond.OMBP3, loanMonths), "months"},
                       {"Interest &rate", number("numIntRate", m_bond.BMBP4, loanRate), "% a year"},
                       {"Monthly repayment", answer("numMonRePay", m_result.BondRep)},
                       {"Total interest", answer("numAns1(0)", m_result.TotInt)},
                       {"Total repayments", answer("numAns1(1)", m_result.TotPaid)}}));
}

NumberField* frmBondBuster::after(const QString& name, double& place, const NumberKind& kind) {
    NumberField* field = answer(name, place, kind);
    m_afterFields.insert(field);
    return field;
}

QWidget* frmBondBuster::afterwards() {
    BondBuster& result = m_after.result;
    m_extra = number("numXtraPay", m_bond.VOLUN, money);
    return group("fraAfter", "With the extra payment",
                 form({{"E&xtra voluntary payments", m_extra, "a month"},
                       {"Principal amount", after("numAns1(2)", m_after.principal, money)},
                       {"New period", m_newTerm = after("numAns2", result.NewTerm, whole), "months"},
                       {"Interest rate", after("numAns1(3)", m_after.rate, percent), "% a year"},
                       {"New monthly repayment", m_newRepayment = after("numAns1(4)", result.NewRep, money)},
                       {"Total interest", after("numAns1(5)", result.XTotInt, money)},
                       {"Total repayments", after("numAns1(6)", result.XTotPaid, money)},
                       {"Total saving", m_saving = after("numAns1(7)", result.Saving, money)}}));
}

void frmBondBuster::filled() { show(BBCalc(m_bond)); }

void frmBondBuster::calculate() {
    const BusyCursor busy;
    const BondBuster result = BBCalc(m_bond);
    // The saved client does not have the raised payment yet.
    if (keepExtra(m_bond, result)) m_work.record.changed.BondBusterChanged = 1;
    show(result);
}

void frmBondBuster::show(const BondBuster& result) {
    m_result = result;
    const bool leavesSecondColumn = result.extra == ExtraPayment::tooHigh;
    if (!leavesSecondColumn) m_after = {m_bond.BMBP2, static_cast<double>(m_bond.BMBP4), result};
    if (result.isFinite()) m_extra->present(result.keptExtra(m_bond.VOLUN));
    m_why->setText(whyNoNewFigures(result.extra));
    showAnswers(result.isFinite(), leavesSecondColumn ? m_afterFields : std::set<QWidget*>{});
    if (result.extra != ExtraPayment::neverClears || !result.isFinite()) return;
    for (QWidget* field : m_afterFields)
        qobject_cast<QLineEdit*>(field)->clear();
}

void frmBondBuster::sayAnswers() {
    m_result.hasNewFigures() ? announce({m_newTerm, m_newRepayment, m_saving}) : announce(m_why->text());
}

std::optional<datastore::Printout> frmBondBuster::feed() {
    if (!m_result.isFinite()) return {};
    return feedBondBuster(m_work.paths.PrintDbPath, m_work.record.client.Name, m_bond, m_result);
}

} // namespace calculators
