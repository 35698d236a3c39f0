#pragma once

#include "finance/lifeofcapital.h"
#include "screenkit/screen.h"

namespace calculators {

/// Life of capital: how many years a capital pays a rising income, with a table of the years, a graph and a report.
class frmLifeOfCap : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmLifeOfCap(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }

private:
    void buildPrintPanel();
    void calculate();
    void table();
    void graph();
    void print(screenkit::Destination destination);

    assessment::LifeOfCapital& m_inputs;
    finance::CapitalLife m_life;
    double m_years = 0; ///< shown as the answer
    int m_includeAmort = 0;
    screenkit::NumberField* m_answer = nullptr;
    QWidget* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
