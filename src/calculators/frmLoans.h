#pragma once

#include "assessment/assessment.h"
#include "screenkit/screen.h"

#include <array>

namespace calculators {

/// The loan calculator: any one of repayment, principal, period and rate from the other three, the amortisation by
/// month and by year, its graph and its report.
class frmLoans : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmLoans(screenkit::Workplace& workplace);

protected:
    void filled() override;
    QWidget* firstField() override;

private:
    void buildBody();
    void buildPrintPanel();
    void pickMode(int mode);
    void showMode();
    /// The result field of each mode, by the mode's index.
    std::array<screenkit::NumberField*, 4> solvedFields() const;
    /// Solves a loan and shows it: the record's own, or a copy if the record must not change.
    void solve(assessment::Loans& loan);
    void calculate();
    /// The figures on the screen. After opening they are a copy's result, which the record need not hold.
    assessment::Loans shown() const;
    void showCharges(const assessment::Loans& loan);
    void toggleCharges();
    void monthlyTable();
    void annualTable();
    void graph();
    void print(screenkit::Destination destination);
    bool charged() const;

    assessment::Loans& m_loans;
    double m_totalInterest = 0, m_totalRepayments = 0;
    bool m_isSolved = true; ///< false where the figures give no finite answer
    int m_includeAmort = 0; ///< `IncludeAmort`
    int m_amortOption = 0;  ///< 0 annual, 1 monthly
    screenkit::OptionGroup* m_modes;
    screenkit::NumberField *m_principal, *m_period, *m_rate, *m_repayment, *m_interest, *m_repayments;
    QLabel *m_modeLabel, *m_rateError;
    QWidget *m_ok = nullptr, *m_amortChoice = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
