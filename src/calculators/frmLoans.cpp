#include "calculators/frmLoans.h"

#include <QHBoxLayout>
#include <QLabel>
#include <limits>

#include "calculators/amortisation.h"
#include "calculators/loanreport.h"
#include "calculators/loans.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"
#include "reports/report.h"

namespace calculators {

using namespace screenkit;

namespace {

const QStringList modeCaptions{"Monthly repayment", "Principal amount", "Repayment period", "Interest rate"};
const NumberKind months = whole.upTo(600, "The maximum period  allowed is 600 months", "Incorrect Period!");
const NumberKind rate =
    percent.upTo(highestEnteredRate, "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!");
constexpr double monthsOfAnAnnualTable = 13; // twelve months fill one year only: nothing to compare
constexpr const char* figures = "# ### ### ###.00";
constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN(); // shows as an error

int modeIndex(const assessment::Loans& loan) {
    const auto mode = loanMode(loan.Heading);
    return mode ? static_cast<int>(*mode) : -1;
}

bool complete(const assessment::Loans& loan) {
    return loan.Num1 != 0 && loan.Num2 != 0 && loan.Num3 != 0 && loan.Num4 != 0;
}

bool hasAnnualTable(const assessment::Loans& loan) { return complete(loan) && loan.Num2 >= monthsOfAnAnnualTable; }

} // namespace

frmLoans::frmLoans(Workplace& workplace)
    : Screen(workplace, "frmLoans", "Loan Calculations", workplace.record.changed.LoansChanged),
      m_loans(workplace.record.loans) {
    buildBody();
    buildPrintPanel();
}

void frmLoans::buildBody() {
    m_modes = options("optLoanCalc", modeCaptions,
                      {[this] { return modeIndex(m_loans); },
                       [this](int mode) { m_loans.Heading = modeCaptions[mode].toStdString(); }},
                      [this](int mode) { pickMode(mode); });
    m_principal = number("numPrinAmount", m_loans.Num1, money);
    m_period = number("numPeriod", m_loans.Num2, months);
    m_rate = number("numIntRate", m_loans.Num3, rate);
    m_repayment = number("numMonRePay", m_loans.Num4, money);
    m_interest = result("numAns1", m_totalInterest, money);
    m_repayments = result("numAns2", m_totalRepayments, money);
    for (NumberField* line : {m_principal, m_period, m_rate, m_repayment, m_interest, m_repayments})
        showsCalculated(line);
    m_modeLabel = heading("Label12(1)");
    m_rateError = over(m_rate, "Text1", "   Error");
    auto* solveIt = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        NumberField* const unknowns[] = {m_repayment, m_principal, m_period, m_rate};
        announce({unknowns[modeIndex(m_loans)]});
    });
    m_ok = okButton();
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
        row({solveIt, button("cmdFinCharge", "&Fin. charges", [this] { toggleCharges(); }),
             button("cmdMonAmort", "Mo&nthly Amort.", [this] { monthlyTable(); }),
             button("cmdAnnAmort", "&Annual Amort.", [this] { annualTable(); }),
             button("cmdLoanGraph", "Annual &Graph", [this] { graph(); }),
             button("cmdPrint", "&Print",
                    [this] {
                        calculate();
                        m_printPanel->open();
                    }),
             spring(), m_ok}),
    }));
    defaultButton(solveIt);
}

void frmLoans::buildPrintPanel() {
    auto* kinds = options("Option1", {"Annual", "Monthly "}, m_amortOption);
    m_amortChoice = group("fraIncAmort", "Amortisation", kinds);
    auto* include = check("Check1", "Include Amorti&zation", m_includeAmort, [this, kinds](bool on) {
        if (on && m_amortChoice->isHidden()) m_amortOption = 0;
        kinds->fill();
        m_amortChoice->setVisible(on);
    });
    untrackedField(kinds);
    untrackedField(include);
    m_printPanel = printPanel({include, m_amortChoice}, [this](Destination to) { print(to); });
    m_amortChoice->hide();
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

void frmLoans::monthlyTable() {
    const assessment::Loans loan = shown();
    if (!complete(loan)) return m_principal->takeFocus();
    showGrid("Monthly Amortisation",
             {{" Month   ", "##"},
              {"Capital payment ", figures},
              {"Interest payment", figures},
              {"    Balance    ", figures}},
             tableRows(monthRows(monthlyAmortisation(loan.Num1, loan.Num2, loan.Num3))), m_ok);
}

void frmLoans::annualTable() {
    const assessment::Loans loan = shown();
    if (!hasAnnualTable(loan)) return m_principal->takeFocus();
    showGrid("Annual Amortisation",
             {{" Year ", "##"},
              {"Capital payments", figures},
              {"Interest payment", figures},
              {"    Balance      ", figures}},
             tableRows(yearRows(CalcAnnAmort(loan))), m_ok);
}

void frmLoans::graph() {
    const assessment::Loans loan = shown();
    if (!hasAnnualTable(loan)) return m_ok->setFocus(Qt::OtherFocusReason);
    const Amortisation table = CalcAnnAmort(loan);
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->LoanAmortGraph(table.MonthBalance, table.YearCapital, table.YearInterest, table.AmortShape,
                               table.AmortYears, table.years());
}

void frmLoans::print(Destination destination) {
    const assessment::Loans loan = shown();
    if (!complete(loan)) return focusLater(m_ok);
    const LoanReportOptions wanted{charged(), m_includeAmort == 1, m_amortOption == 1};
    feedLoanReport(m_work.paths.PrintDbPath, m_work.record.client.Name, loan, wanted);
    const datastore::Printout report = loanReport(loan, wanted);
    m_work.reports.run(QString::fromStdString(report.definition), QString::fromStdString(report.title), destination);
}

} // namespace calculators
