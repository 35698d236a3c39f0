#pragma once

#include "reports/resultscreen.h"
#include "tax/lumpsum.h"

namespace tax {

/// Tax on the lump sums that a client takes from retirement funds in the current tax year, from those of all years.
class frmLumpSum : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmLumpSum(screenkit::Workplace& workplace);

private:
    QLayout* buildGrid();
    double takenThisYear(int column);
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void filled() override;
    void cameToFront() override;
    void edited() override;
    void settled(screenkit::Field* field) override;

    assessment::LumpSums& m_lumpSums;
    LumpSumTax m_result;
    screenkit::OptionGroup* m_taken = nullptr; ///< the T of each column
    screenkit::NumberField* m_thisYear[3] = {};
};

} // namespace tax
