#pragma once

#include "calculators/bondanalysis.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Bond analysis: what one bond costs over six terms.
class frmBondAna : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmBondAna(screenkit::Workplace& workplace);

private:
    void calculate() override;
    void sayAnswers() override;
    std::optional<datastore::Printout> feed() override;

    assessment::Bond& m_bond;
    BondAnalysis m_result;
    screenkit::Grid* m_table;
};

} // namespace calculators
