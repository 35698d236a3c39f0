#pragma once

#include "finance/capitalpremium.h"
#include "screenkit/screen.h"

namespace calculators {

/// The monthly unit-trust premium that provides the capital of a needs analysis, which carries it in and prints the
/// answer. Growth and escalation are kept for each analysis; nothing here is saved with the client.
class frmPremium : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmPremium(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }
    QWidget* firstField() override { return m_growth; } ///< what comes before it is carried in
    void edited() override { shown().isSolved = 0; }

private:
    assessment::CapitalPremium& shown() { return m_work.record.premiums.shown(); }
    /// A figure of the premium shown: another analysis may carry its own in while the screen is open.
    template <class Figure>
    screenkit::Bound<double> figure(Figure assessment::CapitalPremium::*member);
    void calculate();
    /// The words of the analysis that asks.
    void showWords();

    screenkit::NumberField *m_period = nullptr, *m_growth = nullptr, *m_escalation = nullptr, *m_answer = nullptr;
    QLineEdit* m_said = nullptr;
};

} // namespace calculators
