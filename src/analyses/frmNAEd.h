#pragma once

#include "analyses/education.h"
#include "screenkit/screen.h"

namespace analyses {

/// The education needs analysis: the capital that pays for an education from the day it starts, with a table of the
/// years, a graph and a report.
class frmNAEd : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmNAEd(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    QWidget* person();
    QWidget* requirements();
    void buildPrintPanel();
    void recalculate();
    void calculate();
    void amortisation();
    void graph();
    void showPremium();
    void print(screenkit::Destination destination);

    assessment::NAEducation& m_needs;
    EducationAnalysis m_analysis;
    double m_atStart = 0; ///< the cost when education starts
    int m_includeAmort = 0, m_includePremium = 0;
    QLineEdit *m_name = nullptr, *m_answer = nullptr;
    screenkit::NumberField *m_inflation = nullptr, *m_rate = nullptr, *m_cost = nullptr;
    QPushButton* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace analyses
