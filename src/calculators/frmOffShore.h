#pragma once

#include "calculators/offshore.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Offshore investments: what an amount becomes abroad and at home, after tax and the change of the currency.
class frmOffShore : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmOffShore(screenkit::Workplace& workplace);

private:
    void calculate() override;
    std::optional<datastore::Printout> feed() override;

    assessment::OffShore& m_inputs;
    OffShoreResult m_result;
};

} // namespace calculators
