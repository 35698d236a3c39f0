#pragma once

#include "calculators/offshore.h"
#include "screenkit/screen.h"

namespace calculators {

/// Offshore investments: what an amount becomes abroad and at home, after tax and the change of the currency.
class frmOffShore : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmOffShore(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }

private:
    screenkit::NumberField* answer(const QString& name, double& figure);
    void calculate();
    void print(screenkit::Destination destination);

    assessment::OffShore& m_inputs;
    OffShoreResult m_result;
    std::vector<screenkit::NumberField*> m_answers;
    QWidget* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
