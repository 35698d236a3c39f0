#pragma once

#include "calculators/debts.h"
#include "calculators/frmAmortised.h"

namespace calculators {

/// Debt consolidation: up to five loans beside one loan for their sum, over the same period.
class frmDebtCon : public AmortisedScreen {
    Q_OBJECT
public:
    explicit frmDebtCon(screenkit::Workplace& workplace);

protected:
    void edited() override { m_total->fill(); }

private:
    QWidget* existingLoans();
    QWidget* consolidatedLoan();
    void calculate() override;
    void sayAnswers() override;
    RepaidLoan repaidLoan() const override { return m_result.isFinite() ? m_result.consolidated : RepaidLoan{}; }
    screenkit::NumberField* firstEntry() const override { return m_first; }
    std::optional<datastore::Printout> feed() override;

    assessment::DebtConsolidation& m_debts;
    DebtComparison m_result;
    double m_saving = 0;
    screenkit::NumberField *m_first = nullptr, *m_total = nullptr, *m_savingField = nullptr;
};

} // namespace calculators
