#pragma once

#include "calculators/frmRealRate.h"

namespace calculators {

/// Real rate of return of one lump sum and one monthly premium.
class frmRRROLD : public RealRateScreen<assessment::RRROld> {
    Q_OBJECT
public:
    explicit frmRRROLD(screenkit::Workplace& workplace);
};

} // namespace calculators
