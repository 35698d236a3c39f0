#include "tax/rataxadvantage.h"

#include <algorithm>
#include <cmath>

#include "base/numberformat.h"
#include "base/rounding.h"
#include "client/years.h"
#include "tax/kwiktax.h"

namespace tax {

namespace {

/// The tax on an income after rebates.
double RANEWCALC(double income, double age, assessment::KwikTax& scale) {
    scale.Salary = income;
    return TABLEVIEW2027(scale).tax - totalRebates(retirementFundingRules, age);
}

double maximumContribution(const assessment::RATaxAdvantage& inputs) {
    double maximum = fundDeduction2027.share * std::max(inputs.RATaxableInc + inputs.TaxCGT, inputs.RARemuneration);
    if (inputs.RATaxableInc > 0) maximum = std::min(maximum, inputs.RATaxableInc);
    return std::min(maximum, fundDeduction2027.cap);
}

} // namespace

std::string RATaxResult::percentText() const {
    if (outcome == RATaxOutcome::nothingProposed) return "(0.0%)";
    return percent == 0 ? "0.0%" : "(" + base::formatNumber(percent, "#.0") + "%)";
}

assessment::RATaxAdvantage startingRATaxAdvantage(const assessment::Assessment& record, double today) {
    assessment::RATaxAdvantage inputs = record.raTaxAdvantage;
    if (inputs.RASurname.empty()) inputs.RASurname = record.client.Name;
    if (inputs.RATaxPayerAge != 0) return inputs;
    const double born = record.client.BirthDate;
    double age = record.tax.Age;
    if (age == 0 && base::isShownOnScreen(born)) age = client::ageOn(today, born);
    inputs.RATaxPayerAge = static_cast<std::int16_t>(std::clamp(std::floor(age), 0.0, client::oldestAge));
    return inputs;
}

RATaxResult calculateRATaxAdvantage(const assessment::RATaxAdvantage& inputs, assessment::KwikTax& scale) {
    RATaxResult result;
    if (inputs.RATaxableInc == 0 || inputs.ProposedRF == 0) return result;
    result.maximum = maximumContribution(inputs);
    result.deduction = std::min(inputs.ProposedRF, result.maximum);
    result.income = inputs.RATaxableInc + inputs.TaxCGT;
    result.threshold = taxThresholds2026.at(inputs.RATaxPayerAge);
    if (result.income < result.threshold) {
        result.outcome = RATaxOutcome::belowThreshold;
        return result;
    }
    result.taxBefore = RANEWCALC(result.income, inputs.RATaxPayerAge, scale);
    result.incomeAfter = result.income - result.deduction;
    if (result.incomeAfter < result.threshold) {
        result.outcome = RATaxOutcome::fallsBelow;
        return result;
    }
    result.taxAfter = RANEWCALC(result.incomeAfter, inputs.RATaxPayerAge, scale);
    result.outcome = RATaxOutcome::saving;
    result.saving = result.taxBefore - result.taxAfter;
    result.percent = base::roundHalfEven(result.saving / inputs.ProposedRF * 100 * 10) / 10;
    result.paidBySARS = base::roundHalfEven(inputs.ProposedRF * result.percent / 100);
    result.paidByTaxpayer = inputs.ProposedRF - result.paidBySARS;
    return result;
}

} // namespace tax
