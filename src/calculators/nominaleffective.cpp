#include "calculators/nominaleffective.h"

#include <array>
#include <cmath>

#include "base/rounding.h"

namespace calculators {

namespace {

constexpr double monthsAYear = 12;

struct Frequency {
    double periodsAYear;
    const char* text;
    double monthsOfAPeriod; ///< the period must be a multiple of these; 0 if any will do
};

// In the order of Compounding.
constexpr std::array<Frequency, 5> frequencies{{
    {12, "monthly.", 0},
    {365, "daily.", 0},
    {24, "bi-monthly.", 0},
    {4, "3-monthly.", 3},
    {2, "Semi-Annually.", 6},
}};

const Frequency& frequencyOf(Compounding compounding) { return frequencies[static_cast<std::size_t>(compounding)]; }

} // namespace

Compounding compoundingOf(double periodsAYear) {
    for (std::size_t i = 0; i < frequencies.size(); ++i)
        if (frequencies[i].periodsAYear == periodsAYear) return static_cast<Compounding>(i);
    return Compounding::monthly;
}

double periodsAYear(Compounding compounding) { return frequencyOf(compounding).periodsAYear; }

std::string compoundingText(Compounding compounding) { return frequencyOf(compounding).text; }

bool NominalEffectiveResult::isFinite() const {
    return std::isfinite(EffRate) && std::isfinite(ActualInt) && std::isfinite(SimpleRate) && std::isfinite(IntEarned);
}

void snapPeriod(assessment::NominalEffective& inputs) {
    const double months = frequencyOf(compoundingOf(inputs.IntComp)).monthsOfAPeriod;
    const bool isWhole = months == 0 || std::fmod(base::roundHalfEven(inputs.PeriodNomEff), months) == 0;
    if (!isWhole) inputs.PeriodNomEff = monthsAYear;
}

NominalEffectiveResult NomEffCalc(assessment::NominalEffective& inputs) {
    NominalEffectiveResult result;
    result.isComplete = inputs.amount != 0 && inputs.PeriodNomEff != 0 && inputs.NomRate != 0;
    if (inputs.PeriodNomEff == 0) inputs.PeriodNomEff = monthsAYear;
    if (!result.isComplete) return result;
    snapPeriod(inputs);
    const double times = periodsAYear(compoundingOf(inputs.IntComp));
    const double growth = 1 + inputs.NomRate / times / 100;
    result.EffRate = 100 * std::pow(growth, times) - 100;
    result.ActualInt = inputs.amount * std::pow(growth, (inputs.PeriodNomEff / monthsAYear) * times) - inputs.amount;
    result.SimpleRate = (result.ActualInt / inputs.PeriodNomEff * monthsAYear) / inputs.amount * 100;
    result.IntEarned = inputs.amount * result.SimpleRate / 100 * inputs.PeriodNomEff / monthsAYear;
    return result;
}

} // namespace calculators
