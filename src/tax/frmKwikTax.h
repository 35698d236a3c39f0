#pragma once

#include "datastore/printfeed.h"
#include "screenkit/screen.h"
#include "tax/kwiktax.h"

namespace tax {

/// Shows how one taxable income is taxed in either of two years, recalculated when the year changes, and prints it.
class frmKwikTax : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmKwikTax(screenkit::Workplace& workplace);

protected:
    void filled() override { calculate(); }

private:
    screenkit::NumberField* answer(int index, double& figure, const screenkit::NumberKind& kind);
    void buildBody();
    void calculate();
    void openPrint();
    datastore::Printout feed();

    assessment::KwikTax& m_client;
    QuickTax m_result;
    std::vector<screenkit::NumberField*> m_answers;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace tax
