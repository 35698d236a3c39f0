#pragma once

#include "calculators/investcomparison.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Investment comparison: a life annuity beside a fixed deposit after tax, and the deposit rate that beats the annuity.
class frmInvestComp : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmInvestComp(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    QWidget* client();
    QWidget* annuity();
    QWidget* deposit();
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void sayAnswers() override;

    assessment::InvestComparison& m_inputs;
    double& m_age; ///< quick tax has the same age
    InvestmentComparison m_result;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_breakEven = nullptr;
};

} // namespace calculators
