#pragma once

#include "analyses/frmItemised.h"
#include "analyses/retirement.h"

class QTabWidget;

namespace analyses {

/// The retirement needs analysis: how long the capital at retirement carries the income wanted, how much more it takes,
/// the years one by one, their graph and their report.
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

    /// One of the two ages, from which others follow as it is typed.
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
    double m_birthUsed = base::blankDate; ///< birth date that the age was last worked out from
    double m_ageUsed = 0;                 ///< age that retirement was last held against
    int m_includeAmort = 0, m_includePremium = 0, m_includeNotes = 0, m_includeItems = 0, m_includePolicies = 0;
    double m_assets = 0, m_liabilities = 0; ///< what the two capital pages sum to
    QTabWidget* m_pages = nullptr;
    QLineEdit *m_name = nullptr, *m_idNumber = nullptr, *m_lasts = nullptr, *m_needed = nullptr;
    screenkit::DateField* m_birth = nullptr;
    screenkit::NumberField *m_age = nullptr, *m_retirement = nullptr, *m_years = nullptr;
    screenkit::NumberField *m_income = nullptr, *m_cover = nullptr, *m_inflation = nullptr, *m_rate = nullptr;
    screenkit::NumberField *m_policies = nullptr, *m_totalAssets = nullptr, *m_totalLiabilities = nullptr;
    screenkit::NumberField *m_required = nullptr, *m_available = nullptr, *m_difference = nullptr;
    screenkit::NumberField *m_capital = nullptr, *m_expenses = nullptr, *m_netWorth = nullptr;
    double m_shown[6] = {}; ///< behind the six results of the last page
    QLabel* m_shortfall = nullptr;
    QPushButton* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace analyses
