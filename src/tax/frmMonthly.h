#pragma once

#include <optional>

#include "screenkit/screen.h"
#include "tax/monthlytax.h"

namespace tax {

/// The employees' tax of one employee for one month, with UIF, skills levy and medical credits. Its figures live while
/// it is open; the settings alone are stored.
class frmMonthly : public screenkit::Screen {
    Q_OBJECT
public:
    /// Throws store::Error if the settings can't be read: no month can be worked out then.
    explicit frmMonthly(screenkit::Workplace& workplace);

private:
    screenkit::NumberField* randWithoutCents(const QString& name, double& place);
    screenkit::NumberField* answer(const QString& name, double& figure);
    screenkit::NumberField* keptAnswer(screenkit::NumberField* field);
    QWidget* buildInputs();
    QWidget* buildAnswers();
    void buildBody();
    void buildSettings();
    void buildPrintPanel();
    /// False, after a box, if the dates allow none.
    bool calculate();
    bool complainOfDates();
    void work();
    void settingsConfirmed();
    void openPrint();
    void print(screenkit::Destination destination);

    PAYESetup m_setup;
    PAYESetup m_entered; ///< as the settings panel shows them; in force once confirmed
    MonthlyInputs m_month;
    std::optional<MonthlyInputs> m_calculated; ///< what the figures shown are of; nothing if the settings have changed
    MonthlyTax m_result;
    /// The rate of the calculation before: its test of the fund deduction looks at that one, 0 before the first.
    double m_previousInclusionRate = 0;
    std::string m_employee;

    std::vector<screenkit::NumberField*> m_answers;
    screenkit::DateField *m_start = nullptr, *m_end = nullptr;
    std::function<void()> m_openSettings;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace tax
