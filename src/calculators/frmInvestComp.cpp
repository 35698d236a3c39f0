#include "calculators/frmInvestComp.h"

#include "assessment/tables.h"
#include "calculators/comparisonscale.h"
#include "calculators/investcomparisonreport.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

// An age may be a fraction, which is compared with 65 and 75 unrounded.
const NumberKind ageKind{"##0.####", false, 8};

} // namespace

frmInvestComp::frmInvestComp(Workplace& workplace)
    : ResultScreen(workplace, "frmInvestComp", "Investment Comparison", workplace.record.changed.InvestCompChanged),
      m_inputs(workplace.record.comparison), m_age(workplace.record.tax.Age) {
    auto* who = client();
    auto* sides = row({Item(annuity(), 1), Item(deposit(), 1)});
    m_breakEven = answerLine("txtAns", 60);
    m_breakEven->setAccessibleName("Rate that beats the annuity");
    showsCalculated(m_breakEven);
    body(column({who, sides, group("fraAnswers", "Result", m_breakEven), spring(), buttonLine()}));
    prints();
}

QWidget* frmInvestComp::client() {
    m_name = shown("txtName", 30);
    return group("fraClient", "Client",
                 form({{"Name", m_name},
                       {QString(comparisonAgeAt).replace("Age", "A&ge"), number("numAge", m_age, ageKind)},
                       {"Ta&xable income", number("numCTaxInc", m_inputs.CTaxInc, money), "a year"},
                       {"Tax-fr&ee income", number("numCTaxFreeI", m_inputs.CTaxFreeI, money), "a year"}}));
}

QWidget* frmInvestComp::annuity() {
    const int size = assessment::sizeOf(assessment::dataTable(), &m_work.record, m_inputs.AnnDet);
    auto* amount = number("numAnnAmount", m_inputs.AnnAmount, money);
    notCalculatedFrom(amount);
    return group("fraAnnuity", "Life annuity",
                 form({{"Amount of the annuit&y", amount},
                       {"&Details of the annuity", text("txtAnnDet", m_inputs.AnnDet, size, 24)},
                       {"Tax-f&ree part", number("numMonTFAnn", m_inputs.MonTFAnn, money), "a month"},
                       {"&Taxable part", number("numMonTAnn", m_inputs.MonTAnn, money), "a month"},
                       {"Annuity before tax", answer("numTotMon", m_result.TotMon), "a month"},
                       {"Less tax on the annuity", answer("numLessMonAnn", m_result.LessMonAnn), "a month"},
                       {"Annuity after tax", answer("numMonAfterAnn", m_result.MonAfterAnn), "a month"}}));
}

QWidget* frmInvestComp::deposit() {
    const int size = assessment::sizeOf(assessment::dataTable(), &m_work.record, m_inputs.FXDet);
    FixedDeposit& result = m_result.deposit;
    return group("fraDeposit", "Fixed deposit",
                 form({{"A&mount of the deposit", number("numFDAmount", m_inputs.FDAmount, money)},
                       {"Detai&ls of the deposit", text("txtFXDet", m_inputs.FXDet, size, 24)},
                       {"&Interest rate", number("numFXInt", m_inputs.FXInt, percent), "% a year"},
                       {"Interest before tax", answer("numFXMonInc", result.FXMonInc), "a month"},
                       {"Less tax on the interest", answer("numFXLessTax", result.FXLessTax), "a month"},
                       {"Interest after tax", answer("numFXMonAftTax", result.FXMonAftTax), "a month"}}));
}

void frmInvestComp::filled() {
    m_name->setText(QString::fromStdString(m_work.record.client.Name));
    calculate();
}

void frmInvestComp::calculate() {
    m_result = compareInvestments(m_inputs, m_age);
    m_breakEven->setText(m_result.breakEven ? QString::fromStdString(m_result.breakEven->sentence()) : QString());
    showAnswers(m_result.isFinite());
}

void frmInvestComp::sayAnswers() {
    m_breakEven->text().isEmpty() ? ResultScreen::sayAnswers() : announce(m_breakEven->text());
}

std::optional<datastore::Printout> frmInvestComp::feed() {
    if (!m_result.isFinite()) return {};
    return feedInvestmentComparison(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_age, m_result);
}

} // namespace calculators
