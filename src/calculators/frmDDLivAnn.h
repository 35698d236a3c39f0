#pragma once

#include "calculators/drawdown.h"
#include "reports/resultscreen.h"

namespace calculators {

/// Draw-down annuity: an amount pays a monthly income in two phases of years, each with its own escalation and growth.
///
/// The phases are entered in fields or on the lines of a table; both show the same figures. They stay with the client
/// until another one is opened, but are not saved.
class frmDDLivAnn : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmDDLivAnn(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void edited() override;

private:
    struct Entry {
        screenkit::Bound<double> place;
        screenkit::NumberKind kind;
    };
    QWidget* annuity();
    QWidget* firstPhase();
    QWidget* secondPhase();
    QWidget* phase(int index, const Entry& from, const Entry& firstIncome, assessment::DrawDownPhase& rest);
    QWidget* details();
    QWidget* answers();
    void buildCosts();
    /// Adds the range of the first monthly income, for the field of `place`: the amount or the income.
    screenkit::NumberKind withinRange(const screenkit::NumberKind& kind, const double& place);
    screenkit::Complaint rangeComplaint(FirstIncome found) const;
    std::vector<screenkit::EditColumn> columns();
    void showRows();
    void takeRows();
    void calculate() override;
    void sayAnswers() override;
    void showYears();
    void draw();
    std::optional<datastore::Printout> feed() override;

    assessment::DrawDown& m_annuity;
    assessment::DrawDownPhases& m_phases;
    assessment::DrawDownCosts& m_costs; ///< in force
    assessment::DrawDownCosts m_entered;
    double m_NomRate = 0; ///< `NomRate`: some growth rates have none and keep that of the run before
    DrawDownResult m_result;
    const double* m_rangeEdited = nullptr; ///< of amount and first income, the one that the user edited last
    bool m_secondFromEdited = false;
    int m_includeAmort = 0;
    std::vector<screenkit::Field*> m_phaseFields;
    screenkit::EditGrid* m_grid = nullptr;
    QLineEdit *m_name = nullptr, *m_sentence = nullptr;
    std::function<void()> m_openCosts;
};

} // namespace calculators
