#pragma once

#include <array>

#include "calculators/frmAmortised.h"

namespace calculators {

/// The loan calculator: any one of repayment, principal, period and rate from the other three, the amortisation by
/// month and by year, its graph and its report.
class frmLoans : public AmortisedScreen {
    Q_OBJECT
public:
    explicit frmLoans(screenkit::Workplace& workplace);

protected:
    void filled() override;
    QWidget* firstField() override;

private:
    void buildBody();
    void pickMode(int mode);
    void showMode();
    /// The result field of each mode, by the mode's index.
    std::array<screenkit::NumberField*, 4> solvedFields() const;
    /// Solves a loan and shows it: the record's own, or a copy if the record must not change.
    void solve(assessment::Loans& loan);
    void calculate() override;
    /// What is on the screen is printed as it is. Solving again could change it: a loan that never clears loses another
    /// cent of its repayment.
    void bringUpToDate() override {}
    void sayAnswers() override;
    RepaidLoan repaidLoan() const override { return repaid(shown()); }
    screenkit::NumberField* firstEntry() const override { return m_principal; }
    std::optional<datastore::Printout> feed() override;
    /// The figures on the screen. After opening they are a copy's result, which the record need not hold.
    assessment::Loans shown() const;
    void showCharges(const assessment::Loans& loan);
    void toggleCharges();
    bool charged() const;

    assessment::Loans& m_loans;
    double m_totalInterest = 0, m_totalRepayments = 0;
    bool m_isSolved = true; ///< false where the figures give no finite answer
    screenkit::OptionGroup* m_modes;
    screenkit::NumberField *m_principal, *m_period, *m_rate, *m_repayment, *m_interest, *m_repayments;
    QLabel *m_modeLabel, *m_rateError;
};

} // namespace calculators
