#include "calculators/inflation.h"

namespace calculators {

InflationResult LTLINFL(const assessment::Inflation& inputs) {
    const double rate = inputs.IntRateInflation;
    InflationResult result{inputs.PresCostInflation, inputs.PresCostInflation};
    for (int year = 0; year < inputs.PeriodInflation; ++year) {
        result.futureValue += rate * result.futureValue / 100;
        result.buyingPower -= rate * result.buyingPower / (100 + rate);
    }
    return result;
}

} // namespace calculators
