#pragma once

#include "calculators/nominaleffective.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Nominal and effective interest: the effective rate of a compounding frequency, and the interest earned.
class frmNomEffec : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmNomEffec(screenkit::Workplace& workplace);

private:
    QWidget* compounding();
    QLayout* interest();
    void filled() override;
    void calculate() override;
    /// Works on the record, which a calculation may give another period.
    void solve();
    std::optional<datastore::Printout> feed() override;

    assessment::NominalEffective& m_inputs;
    NominalEffectiveResult m_result;
    screenkit::NumberField* m_period = nullptr;
};

} // namespace calculators
