#pragma once

#include "finance/frmCapitalLife.h"

namespace calculators {

/// Life of capital: how many years a capital pays a rising income, with a table of the years, a graph and a report.
class frmLifeOfCap : public finance::CapitalLifeScreen {
    Q_OBJECT
public:
    explicit frmLifeOfCap(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }

private:
    void calculate();
    void print(screenkit::Destination destination);

    int m_includeAmort = 0;
    QWidget* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace calculators
