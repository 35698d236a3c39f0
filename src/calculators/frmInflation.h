#pragma once

#include "calculators/inflation.h"
#include "datastore/printfeed.h"
#include "screenkit/screen.h"

namespace calculators {

/// Inflation: the future value of a present cost, and the buying power that an amount keeps.
class frmInflation : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmInflation(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }

private:
    void calculate();
    void announceAnswer();
    void openPrint();

    assessment::Inflation& m_inputs;
    InflationResult m_result;
    datastore::Printout m_printout; ///< set when the print panel is opened
    screenkit::NumberField *m_future = nullptr, *m_power = nullptr;
    QLabel* m_tooLarge = nullptr;
    QWidget* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
