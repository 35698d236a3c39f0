#pragma once

#include "calculators/inflation.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Inflation: the future value of a present cost, and the buying power that an amount keeps.
class frmInflation : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmInflation(screenkit::Workplace& workplace);

private:
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void sayAnswers() override;

    assessment::Inflation& m_inputs;
    InflationResult m_result;
    screenkit::NumberField* m_future = nullptr;
    QLabel* m_tooLarge = nullptr;
};

} // namespace calculators
