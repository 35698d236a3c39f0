#pragma once

#include "calculators/incomefromshares.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Income from shares: how long a capital in shares pays an income, and the tax on that income.
class frmIncomeShares : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmIncomeShares(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    QLayout* buildInputs();
    void buildSettings();
    /// The growth rate's place: each change also sets the nominal rate.
    screenkit::Bound<double> growthRate();
    void takeNominalRate();
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void sayAnswers() override;
    bool hasRun() const { return m_run.months > 0 && m_run.isFinite(); }
    void showTable();
    void graph();

    assessment::IncomeShares& m_inputs;
    IncomeSharesCosts m_costs, m_entered;
    double m_nominalRate = 0;            ///< `ISNomRate`: of the last growth rate that has one
    std::optional<double> m_refusedRate; ///< a growth rate too high for the record, until the user leaves the field
    IncomeSharesRun m_run;
    int m_commissions = 0; ///< 1: print the commissions
    screenkit::Grid* m_samples = nullptr;
    QLineEdit* m_answer = nullptr;
    std::function<void()> m_openSettings;
};

} // namespace calculators
