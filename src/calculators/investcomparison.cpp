#include "calculators/investcomparison.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/numberformat.h"
#include "calculators/comparisonscale.h"
#include "finance/stepping.h"

namespace calculators {

namespace {

constexpr double rateStep = 0.1; // percentage points
constexpr std::int64_t mostSingleSteps = 10000;
constexpr std::int64_t mostSteps = std::int64_t{1} << 60; // long before this a step no longer changes the rate

double afterRebates(double scaleTax, double rebates) { return std::max(scaleTax - rebates, 0.0); }

FixedDeposit depositAt(double rate, const assessment::InvestComparison& inputs, const InvestmentComparison& known) {
    FixedDeposit deposit;
    deposit.FXMonInc = (inputs.FDAmount * rate / 100) / 12;
    deposit.taxableIncome = inputs.CTaxInc + deposit.FXMonInc * 12 - known.exemption + inputs.CTaxFreeI;
    deposit.scaleTax = finance::taxOn(comparisonScale, deposit.taxableIncome);
    deposit.tax = afterRebates(deposit.scaleTax.tax, known.rebates);
    deposit.FXLessTax = std::max((deposit.tax - known.taxOnIncome) / 12, 0.0);
    deposit.FXMonAftTax = deposit.FXMonInc - deposit.FXLessTax;
    return deposit;
}

/// How far rounding may put what a deposit pays beside its true value, rand a month.
double roundingOf(const assessment::InvestComparison& inputs, const InvestmentComparison& known) {
    const double largest = std::max({std::fabs(inputs.CTaxInc), std::fabs(inputs.CTaxFreeI), known.exemption,
                                     std::fabs(known.MonAfterAnn) * 24, 1.0});
    return 64 * std::numeric_limits<double>::epsilon() * largest;
}

std::optional<BreakEven> findBreakEven(const assessment::InvestComparison& inputs, const InvestmentComparison& known) {
    if (!(inputs.FDAmount > 0) || !(known.MonAfterAnn > known.deposit.FXMonAftTax)) return {};
    const auto rateAfter = [&](std::int64_t steps) { return finance::stepped(inputs.FXInt, rateStep, steps); };
    const auto pays = [&](std::int64_t steps) { return depositAt(rateAfter(steps), inputs, known).FXMonAftTax; };
    const double close = known.MonAfterAnn - roundingOf(inputs, known);
    // Rounding may make the deposit pay a hair less at a higher rate, so the last steps are taken one by one.
    const auto firstClose = finance::firstStep(mostSteps, [&](std::int64_t steps) { return pays(steps) > close; });
    if (!firstClose) return {};
    const auto beats = [&](std::int64_t steps) { return pays(steps) > known.MonAfterAnn; };
    std::int64_t steps = *firstClose;
    while (!beats(steps) && steps < *firstClose + mostSingleSteps)
        ++steps;
    if (!beats(steps)) { // a deposit of less than a cent
        const auto more = finance::firstStep(mostSteps, [&](std::int64_t further) { return beats(steps + further); });
        if (!more) return {};
        steps += *more;
    }
    return BreakEven{rateAfter(steps), rateAfter(steps - 1), depositAt(rateAfter(steps), inputs, known)};
}

} // namespace

double comparisonTax(double income, double rebates) {
    return afterRebates(finance::taxOn(comparisonScale, income).tax, rebates);
}

std::string BreakEven::sentence() const {
    return "Only a fixed deposit rate of " + base::formatNumber(rate, "#0.0") + " %p.a. would beat the annuity!";
}

bool InvestmentComparison::isFinite() const {
    return std::isfinite(MonAfterAnn) && std::isfinite(deposit.FXMonInc) && std::isfinite(deposit.FXMonAftTax);
}

InvestmentComparison compareInvestments(const assessment::InvestComparison& inputs, double age) {
    InvestmentComparison result;
    result.exemption = interestExemption.at(age);
    result.rebates = comparisonRebates.at(age);
    result.taxOnIncome = comparisonTax(inputs.CTaxInc, result.rebates);
    result.taxWithAnnuity = comparisonTax(inputs.CTaxInc + 12 * inputs.MonTAnn, result.rebates);
    result.TotMon = inputs.MonTAnn + inputs.MonTFAnn;
    result.LessMonAnn = std::max((result.taxWithAnnuity - result.taxOnIncome) / 12, 0.0);
    result.MonAfterAnn = inputs.MonTAnn + inputs.MonTFAnn - result.LessMonAnn;
    result.deposit = depositAt(inputs.FXInt, inputs, result);
    if (result.isFinite()) result.breakEven = findBreakEven(inputs, result);
    return result;
}

} // namespace calculators
