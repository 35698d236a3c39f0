#pragma once

#include "calculators/bondbuster.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Bond buster: what an extra voluntary payment each month saves on a home loan.
class frmBondBuster : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmBondBuster(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    /// The second column. An extra payment that is too high leaves it as it was.
    struct Afterwards {
        double principal = 0, rate = 0;
        BondBuster result;
    };

    QWidget* agreed();
    QWidget* afterwards();
    screenkit::NumberField* after(const QString& name, double& place, const screenkit::NumberKind& kind);
    void show(const BondBuster& result);
    void calculate() override;
    void sayAnswers() override;
    std::optional<datastore::Printout> feed() override;

    assessment::Bond& m_bond;
    BondBuster m_result;
    Afterwards m_after;
    screenkit::NumberField *m_extra = nullptr, *m_newTerm = nullptr, *m_newRepayment = nullptr, *m_saving = nullptr;
    std::set<QWidget*> m_afterFields;
    QLabel* m_why = nullptr; ///< why there are no new figures
};

} // namespace calculators
