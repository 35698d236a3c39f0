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
    const auto pays = [&](double rate) { return depositAt(rate, inputs, known).FXMonAftTax; };
    const auto beats = [&](double rate) { return pays(rate) > known.MonAfterAnn; };
    // Rounding may make the deposit pay a hair less at a higher rate, so the last steps are taken one by one.
    const double close = known.MonAfterAnn - roundingOf(inputs, known);
    const auto isClose = [&](std::int64_t steps) { return pays(rateAfter(steps)) > close; };
    const auto firstClose = finance::firstStep(mostSteps, isClose);
    if (!firstClose) return {};
    BreakEven found{rateAfter(*firstClose), rateAfter(*firstClose - 1), {}};
    std::int64_t steps = *firstClose;
    for (; !beats(found.rate) && steps < *firstClose + mostSingleSteps; ++steps) {
        found.rateBelow = found.rate;
        found.rate += rateStep;
    }
    if (!beats(found.rate)) { // cents beside an income of thousands of millions
        const auto beatsAfter = [&](std::int64_t more) { return beats(rateAfter(steps + more)); };
        const auto more = finance::firstStep(mostSteps, beatsAfter);
        if (!more) return {};
        found.rate = rateAfter(steps + *more);
        found.rateBelow = rateAfter(steps + *more - 1);
    }
    found.deposit = depositAt(found.rate, inputs, known);
    return found;
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
    result.breakEven = findBreakEven(inputs, result);
    return result;
}

} // namespace calculators
