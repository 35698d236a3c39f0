#include "calculators/frmLoans.h"

#include <QLabel>
#include <limits>

#include "calculators/frmLoanKinds.h"
#include "calculators/loanreport.h"
#include "calculators/loans.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

const QStringList modeCaptions{"Monthly repayment", "Principal amount", "Repayment period", "Interest rate"};
constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN(); // shows as an error

int modeIndex(const assessment::Loans& loan) {
    const auto mode = loanMode(loan.Heading);
    return mode ? static_cast<int>(*mode) : -1;
}

} // namespace

frmLoans::frmLoans(Workplace& workplace)
    : AmortisedScreen(workplace, "frmLoans", "Loan Calculations", workplace.record.changed.LoansChanged,
                      {"cmdLoanGraph", "Interest payment", "# ### ### ###.00", &reports::frmGraph::LoanAmortGraph}),
      m_loans(workplace.record.loans) {
    buildBody();
    printsWithAmortisation();
}

void frmLoans::buildBody() {
    m_modes = options("optLoanCalc", modeCaptions,
                      {[this] { return modeIndex(m_loans); },
                       [this](int mode) { m_loans.Heading = modeCaptions[mode].toStdString(); }},
                      [this](int mode) { pickMode(mode); });
    m_principal = number("numPrinAmount", m_loans.Num1, money);
    m_period = number("numPeriod", m_loans.Num2, loanMonths);
    m_rate = number("numIntRate", m_loans.Num3, loanRate);
    m_repayment = number("numMonRePay", m_loans.Num4, money);
    m_interest = result("numAns1", m_totalInterest, money);
    m_repayments = result("numAns2", m_totalRepayments, money);
    for (NumberField* line : {m_principal, m_period, m_rate, m_repayment, m_interest, m_repayments})
        showsCalculated(line);
    m_modeLabel = heading("Label12(1)");
    m_rateError = over(m_rate, "Text1", "   Error");
    body(column({
        m_modeLabel,
        row({group("fraLoanCalcMode", "Calculate Mode", m_modes), group("fraLoan", "Loan",
                                                                        form({{"Princ&ipal amount", m_principal},
                                                                              {"P&eriod", m_period, "months."},
                                                                              {"Interest &rate", m_rate, "% a year"},
                                                                              {"Monthly repaymen&t", m_repayment},
                                                                              {"Total Interest", m_interest},
                                                                              {"Total Repayments", m_repayments}}))}),
        spring(),
        amortisedButtons(button("cmdFinCharge", "&Fin. charges", [this] { toggleCharges(); })),
    }));
}

QWidget* frmLoans::firstField() { return modeIndex(m_loans) == 1 ? m_period : m_principal; }

void frmLoans::filled() {
    showMode();
    // Opening a screen must not change the record, but the search for the period lowers the repayment by a cent.
    assessment::Loans copy = m_loans;
    solve(copy);
}

void frmLoans::pickMode(int) {
    showMode();
    auto* first = dynamic_cast<Field*>(firstField());
    if (!m_modes->pickedByArrow()) first->takeFocus(); // with the arrow keys the user moves on to the next mode
}

void frmLoans::showMode() {
    const int mode = modeIndex(m_loans);
    m_modeLabel->setText(QString::fromStdString(m_loans.Heading));
    for (NumberField* field : solvedFields())
        field->setResult(false);
    if (mode >= 0) solvedFields()[static_cast<std::size_t>(mode)]->setResult(true);
}

std::array<NumberField*, 4> frmLoans::solvedFields() const { return {m_repayment, m_principal, m_period, m_rate}; }

assessment::Loans frmLoans::shown() const {
    return {m_loans.Heading, m_principal->value(), m_period->value(), m_rate->value(), m_repayment->value()};
}

void frmLoans::calculate() {
    const assessment::Loans before = m_loans;
    solve(m_loans);
    if (m_loans != before) m_work.record.changed.LoansChanged = 1; // the saved client does not have this result yet
}

void frmLoans::solve(assessment::Loans& loan) {
    const LoanAnswer answer = LoanCalc(loan);
    m_principal->present(loan.Num1);
    m_period->present(loan.Num2);
    m_rate->present(loan.Num3);
    m_repayment->present(loan.Num4);
    m_isSolved = answer != LoanAnswer::notFinite;
    if (!m_isSolved) solvedFields()[static_cast<std::size_t>(modeIndex(loan))]->present(noAnswer);
    m_rateError->setVisible(answer == LoanAnswer::rateTooHigh);
    showCharges(loan);
    calculated();
}

bool frmLoans::charged() const { return m_work.record.FinChargeState == "DOWN"; }

void frmLoans::showCharges(const assessment::Loans& loan) {
    m_interest->present(m_isSolved ? totalInterest(loan) : noAnswer);
    m_repayments->present(m_isSolved ? totalRepayments(loan) : noAnswer);
    setRowVisible(m_interest, charged());
    setRowVisible(m_repayments, charged());
}

void frmLoans::toggleCharges() {
    m_work.record.FinChargeState = charged() ? "UP" : "DOWN";
    showCharges(shown());
}

void frmLoans::sayAnswers() {
    const int mode = modeIndex(m_loans);
    if (mode >= 0) announce({solvedFields()[static_cast<std::size_t>(mode)]});
}

std::optional<datastore::Printout> frmLoans::feed() {
    const assessment::Loans loan = shown();
    if (!repaid(loan).hasMonths()) return {};
    const LoanReportOptions wanted{charged(), chosenTable()};
    feedLoanReport(m_work.paths.PrintDbPath, m_work.record.client.Name, loan, wanted);
    return loanReport(loan, wanted);
}

} // namespace calculators
