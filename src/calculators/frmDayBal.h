#pragma once

#include "calculators/dailybalance.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Daily balance: simple interest on an amount between two dates.
class frmDayBal : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmDayBal(screenkit::Workplace& workplace);

private:
    void calculate() override;
    std::optional<datastore::Printout> feed() override;

    assessment::DailyBalance& m_inputs;
    DailyBalanceResult m_result;
};

} // namespace calculators
