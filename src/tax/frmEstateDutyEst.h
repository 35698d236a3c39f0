#pragma once

#include "reports/resultscreen.h"
#include "tax/estateduty.h"

namespace tax {

/// A rough figure for the estate duty and the executor's fees of a client.
class frmEstateDutyEst : public reports::ResultScreen {
    Q_OBJECT
public:
    /// Throws store::Error if the rates can't be read, since nothing can be estimated without them.
    explicit frmEstateDutyEst(screenkit::Workplace& workplace);

private:
    screenkit::NumberField* amount(const QString& name, double& place);
    QLayout* buildEstate();
    void buildSettings();
    void calculate() override;
    std::optional<datastore::Printout> feed() override;

    assessment::EstateDuty& m_estate;
    EstateDutyRates m_rates;
    EstateDutyRates m_entered; ///< as shown on the settings panel; in force once confirmed
    EstateDutyEstimate m_result;
    std::function<void()> m_openSettings;
};

} // namespace tax
