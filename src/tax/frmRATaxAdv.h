#pragma once

#include "reports/resultscreen.h"
#include "tax/rataxadvantage.h"

class QLabel;

namespace tax {

/// What a contribution to a retirement fund saves in income tax.
class frmRATaxAdv : public reports::ResultScreen {
    Q_OBJECT
public:
    explicit frmRATaxAdv(screenkit::Workplace& workplace);

private:
    QWidget* buildInputs();
    QWidget* buildAnswers();
    /// Works out and shows the results. The income that is taxed meanwhile stands in the client's `Salary`.
    void work();
    void calculate() override;
    std::optional<datastore::Printout> feed() override;
    void filled() override;
    void edited() override;

    /// The record's inputs, with the client's name and age where it has none yet: they enter it with the first edit.
    assessment::RATaxAdvantage m_inputs;
    RATaxResult m_result;
    int m_language = 0; ///< datastore::ReportLanguage
    std::vector<screenkit::Field*> m_inputFields;
    QLineEdit* m_percent = nullptr;
    QLabel* m_belowThreshold = nullptr;
};

} // namespace tax
