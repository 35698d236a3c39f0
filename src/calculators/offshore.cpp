#include "calculators/offshore.h"

#include <cmath>

namespace calculators {

namespace {

double invested(const assessment::OffShore& inputs, double rate, double taxRate) {
    double value = inputs.InvAmount;
    for (int year = 0; year < inputs.OSPeriod; ++year)
        value += (value * rate / 100) * (100 - taxRate) / 100;
    return value;
}

} // namespace

bool OffShoreResult::fits() const {
    constexpr double tooLarge = 1e15;
    const auto fits = [](double value) { return std::fabs(value) < tooLarge; };
    return fits(OSMatVal) && fits(LMatVal) && fits(OSRealMatVal);
}

OffShoreResult compareOffShore(const assessment::OffShore& inputs) {
    OffShoreResult result;
    result.OSMatVal = invested(inputs, inputs.OFInvRate, inputs.OFTaxRate);
    result.LMatVal = invested(inputs, inputs.LInvRate, inputs.LTaxRate);
    result.OSRealMatVal = result.OSMatVal;
    for (int year = 0; year < inputs.OSPeriod; ++year)
        result.OSRealMatVal -= result.OSRealMatVal * inputs.LCurrChange / 100;
    result.LRealMatVal = result.LMatVal;
    return result;
}

} // namespace calculators
