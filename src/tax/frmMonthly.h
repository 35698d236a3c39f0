#pragma once

#include <optional>

#include "screenkit/screen.h"
#include "tax/taxreports.h"

namespace tax {

/// The employees' tax of one employee for one month, with UIF, skills levy and medical credits. Its figures are kept
/// only while it is open; only the settings are stored.
class frmMonthly : public screenkit::Screen {
    Q_OBJECT
public:
    /// Throws store::Error if the settings can't be read, since no month can be calculated without them.
    explicit frmMonthly(screenkit::Workplace& workplace);

    /// The month as Print would print it now. Nothing while nothing is entered, or if the dates are not valid.
    std::optional<MonthShown> shown() const;

private:
    screenkit::NumberField* randWithoutCents(const QString& name, double& place);
    screenkit::NumberField* answer(const QString& name, double& figure);
    screenkit::NumberField* keptAnswer(screenkit::NumberField* field);
    QWidget* buildInputs();
    QWidget* buildAnswers();
    void buildBody();
    void buildSettings();
    void buildPrintPanel();
    /// False, after telling the user, if the dates are not valid.
    bool calculate();
    bool complainOfDates();
    void work();
    void settingsConfirmed();
    void openPrint();
    void print(screenkit::Destination destination);

    PAYESetup m_setup;
    PAYESetup m_entered; ///< as shown on the settings panel; in force once confirmed
    MonthlyInputs m_month;
    std::optional<MonthlyInputs> m_calculated; ///< inputs of the figures shown; nothing after a change of the settings
    MonthlyTax m_result;
    /// The rate of the previous calculation, 0 before the first: the test of the fund deduction uses that one.
    double m_previousInclusionRate = 0;
    std::string m_employee;

    std::vector<screenkit::NumberField*> m_answers;
    screenkit::DateField *m_start = nullptr, *m_end = nullptr;
    std::function<void()> m_openSettings;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace tax
