#pragma once

#include "calculators/investcomparison.h"
#include "screenkit/screen.h"

namespace calculators {

/// Investment comparison: a life annuity beside a fixed deposit after tax, and the deposit rate that beats the annuity.
class frmInvestComp : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmInvestComp(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    screenkit::NumberField* answer(const QString& name, double& figure);
    QWidget* client();
    QWidget* annuity();
    QWidget* deposit();
    void calculate();
    void print(screenkit::Destination destination);

    assessment::InvestComparison& m_inputs;
    double& m_age; ///< quick tax has the same age
    InvestmentComparison m_result;
    std::vector<screenkit::NumberField*> m_answers;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_breakEven = nullptr;
    QWidget* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
