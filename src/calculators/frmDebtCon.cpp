#include "calculators/frmDebtCon.h"

#include "calculators/debtreport.h"
#include "calculators/frmLoanKinds.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

frmDebtCon::frmDebtCon(Workplace& workplace)
    // Debts have no flag of their own: an edit is a change of the client at once.
    : AmortisedScreen(workplace, "frmDebtCon", "Debt Consolidation", workplace.record.ClientChanged,
                      {"cmdDCGraph", "Interest payments", "### ### ###.00", &reports::frmGraph::DCAmortGraph}),
      m_debts(workplace.record.debts) {
    auto* loans = existingLoans();
    auto* one = consolidatedLoan();
    m_savingField = answer("numAns3", m_saving);
    auto* answers =
        group("fraAnswers", "Result",
              form({{"Monthly repayments before consolidation", answer("numAns1", m_result.BeforeTotal)},
                    {"Monthly repayments after consolidation", answer("numAns2", m_result.consolidated.repayment)},
                    {"Monthly saving after consolidation", m_savingField}}));
    body(column({row({Item(loans, 1), column({one, answers, spring()})}), spring(), amortisedButtons()}));
    printsWithAmortisation();
}

QWidget* frmDebtCon::existingLoans() {
    assessment::DebtConsolidation& of = m_debts;
    const std::array<std::pair<double*, double*>, 5> loans{{{&of.Loan1Amt, &of.Loan1Int},
                                                            {&of.Loan2Amt, &of.Loan2Int},
                                                            {&of.Loan3Amt, &of.Loan3Int},
                                                            {&of.Loan4Amt, &of.Loan4Int},
                                                            {&of.Loan5Amt, &of.Loan5Int}}};
    std::vector<MatrixRow> lines;
    for (std::size_t i = 0; i < loans.size(); ++i) {
        const QString loan = QString("numLoan%1").arg(i + 1);
        auto* amount = number(loan + "Amt", *loans[i].first, money);
        if (i == 0) m_first = amount;
        lines.push_back({QString("Loan &%1").arg(i + 1), {amount, number(loan + "Int", *loans[i].second, percent)}});
    }
    return group("fraExisting", "Existing loans",
                 column({matrix({"Amount", "Interest rate, % a year"}, lines), spring()}));
}

QWidget* frmDebtCon::consolidatedLoan() {
    m_total = result("numLoanAmtTot", {[this] { return totalDebt(m_debts); }, [](double) {}}, money);
    return group("fraConsolidated", "Consolidated loan",
                 form({{"Consolidated loan", m_total},
                       {"Interest &rate", number("numLoanIntTot", m_debts.ConInt, percent), "% a year"},
                       {"P&eriod", number("numPeriod", m_debts.ConPeriod, loanMonths), "months"}}));
}

void frmDebtCon::calculate() {
    m_result = DCCalc(m_debts);
    m_saving = m_result.saving();
    showAnswers(m_result.isFinite());
    setRowVisible(m_savingField, m_saving > 0);
}

void frmDebtCon::sayAnswers() {
    ResultScreen::sayAnswers();
    m_ok->setFocus(Qt::OtherFocusReason); // the figures stand; what is left is to close
}

std::optional<datastore::Printout> frmDebtCon::feed() {
    if (!m_result.isFinite()) return {};
    return feedDebts(m_work.paths.PrintDbPath, m_work.record.client.Name, m_debts, m_result, chosenTable());
}

} // namespace calculators
