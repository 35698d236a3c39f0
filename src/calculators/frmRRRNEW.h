#pragma once

#include <array>

#include "calculators/frmRealRate.h"

namespace calculators {

/// Real rate of return of a lump sum, four monthly payments and four monthly incomes.
class frmRRRNEW : public RealRateScreen<assessment::RRRNew> {
    Q_OBJECT
public:
    explicit frmRRRNEW(screenkit::Workplace& workplace);

private:
    /// The fields of a payment or an income.
    struct Line {
        double& amount;
        double& escalation;
        std::string& remark;
    };
    /// Four of them. Their fields are named numRegMpay1, numPayEsc1, txtRegMpayDet1 and so on, after the stems.
    QWidget* lines(const QString& title, const QString& head, const QString& stem, const QString& escalationStem,
                   const std::array<Line, 4>& of);
    QLayout* investment();
    QLayout* results();
};

} // namespace calculators
