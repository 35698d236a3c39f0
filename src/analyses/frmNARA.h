#pragma once

#include "analyses/frmItemised.h"
#include "analyses/retirement.h"

class QTabWidget;

namespace analyses {

/// The retirement needs analysis: how long the capital at retirement provides the required income, how much more is
/// needed, the year-by-year table, its graph and its report.
class frmNARA : public ItemisedScreen {
    Q_OBJECT
public:
    explicit frmNARA(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void edited() override { showTotals(); }
    void settled(screenkit::Field* field) override;
    void itemsTaken(const ItemLine& line) override;
    void recalculate() override;

private:
    screenkit::Item requirementsPage();
    screenkit::Item capitalPage();
    screenkit::Item expensesPage();
    screenkit::Item netWorthPage();
    void buildPrintPanel();
    screenkit::NumberField* amount(const QString& name, double& place);

    /// One of the two ages; typing it updates the figures that depend on it.
    screenkit::Bound<double> age(double& place);
    void agesChanged();
    void showAges();
    bool showsResults() const;
    void showTotals();
    void showResults();
    void announceAnswer();
    void calculate();
    void amortisation();
    void graph();
    void print(screenkit::Destination destination);

    assessment::NARetirement& m_needs;
    RetirementAnalysis m_analysis;
    double m_birthUsed = base::blankDate; ///< birth date from which the age was last calculated
    double m_ageUsed = 0;                 ///< age against which retirement was last checked
    int m_includeAmort = 0, m_includePremium = 0, m_includeNotes = 0, m_includeItems = 0, m_includePolicies = 0;
    double m_assets = 0, m_liabilities = 0; ///< totals of the two capital pages
    QTabWidget* m_pages = nullptr;
    QLineEdit *m_name = nullptr, *m_idNumber = nullptr, *m_lasts = nullptr, *m_needed = nullptr;
    screenkit::DateField* m_birth = nullptr;
    screenkit::NumberField *m_age = nullptr, *m_retirement = nullptr, *m_years = nullptr;
    screenkit::NumberField *m_income = nullptr, *m_cover = nullptr, *m_inflation = nullptr, *m_rate = nullptr;
    screenkit::NumberField *m_policies = nullptr, *m_totalAssets = nullptr, *m_totalLiabilities = nullptr;
    screenkit::NumberField *m_required = nullptr, *m_available = nullptr, *m_difference = nullptr;
    screenkit::NumberField *m_capital = nullptr, *m_expenses = nullptr, *m_netWorth = nullptr;
    double m_shown[6] = {}; ///< unformatted figures of the six results on the last page
    QLabel* m_shortfall = nullptr;
    QPushButton* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace analyses
