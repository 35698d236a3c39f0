#pragma once

#include "reports/resultscreen.h"
#include "tax/travel.h"

namespace tax {

/// What an employee may claim against a travel allowance for one vehicle. Its inputs stand in the record until another
/// client comes, but are not stored.
class frmCarAll : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmCarAll(screenkit::Workplace& workplace);

private:
    screenkit::NumberField* cost(const QString& name, double& place, const screenkit::NumberKind& kind);
    screenkit::DateField* buildDate(const QString& name, double& place, bool isStart);
    QWidget* buildVehicle();
    QWidget* buildCosts();
    QWidget* buildDeemed();
    QWidget* buildActual();
    bool isByActualCosts() const { return m_car.expensesKept == 1; }
    void showMethod();
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void edited() override;
    bool mayClose() override;

    assessment::CarAll& m_car;
    TravelClaim m_result;
    double m_daysOfYear = 0; ///< 365 beside a result
    int m_language = 0;      ///< datastore::ReportLanguage
    std::vector<screenkit::NumberField*> m_costs;
    const double* m_costTyped = nullptr;      ///< the last one
    screenkit::NumberField* m_days = nullptr; ///< follows the dates at once
    screenkit::DateField *m_start = nullptr, *m_end = nullptr;
    QWidget *m_deemed = nullptr, *m_actual = nullptr;
};

} // namespace tax
