#pragma once

#include "analyses/frmNeeds.h"
#include "analyses/premium.h"
#include "analyses/retirement.h"

namespace analyses {

/// The retirement needs analysis: how long the capital at retirement provides the required income, how much more is
/// needed, the year-by-year table, its graph and its report.
class frmNARA : public NeedsScreen {
    Q_OBJECT
public:
    explicit frmNARA(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void edited() override { showTotals(); }
    void settled(screenkit::Field* field) override;
    NeedsAnalysis analyse() override { return analysed(m_needs, NARACalc); }
    void putRight() override { updateYearsToRet(m_needs); }
    void showCorrected() override;
    void carry(const NeedsAnalysis& analysis) override { carryPremium(m_work.record, analysis); }
    datastore::Printout feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) override;

private:
    screenkit::Item requirementsPage();
    screenkit::Item capitalPage();
    screenkit::Item expensesPage();

    /// One of the two ages; typing it updates the figures that depend on it.
    screenkit::Bound<double> age(double& place);
    void agesChanged();
    void showAges();
    void showTotals();

    assessment::NARetirement& m_needs;
    double m_birthUsed = base::blankDate;   ///< birth date from which the age was last calculated
    double m_ageUsed = 0;                   ///< age against which retirement was last checked
    double m_assets = 0, m_liabilities = 0; ///< totals of the two capital pages
    screenkit::NumberField *m_age = nullptr, *m_retirement = nullptr, *m_years = nullptr;
    screenkit::NumberField *m_income = nullptr, *m_cover = nullptr, *m_inflation = nullptr, *m_rate = nullptr;
    screenkit::NumberField *m_policies = nullptr, *m_totalAssets = nullptr, *m_totalLiabilities = nullptr;
};

} // namespace analyses
