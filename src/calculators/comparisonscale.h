#pragma once

#include "finance/incomescale.h"

/// Figures of law that the investment comparison works with: rand a year.
namespace calculators {

/// The comparison's own scale. It stays as it is when the tax screens move on to another year: practices compare offers
/// with those that they have filed. Brackets of 1 March 2026 to 28 February 2027: Rates and Monetary Amounts and
/// Amendment of Revenue Laws Act of 2026.
inline constexpr finance::IncomeScale comparisonScale{{
    {0, 245100, 0, 18},
    {245100, 383100, 44118, 26},
    {383100, 530200, 79998, 31},
    {530200, 695800, 125599, 36},
    {695800, 887000, 185215, 39},
    {887000, 1878600, 259783, 41},
    {1878600, finance::topOfScale, 666339, 45},
}};

/// The primary rebate is the one of the year before, with the age rebates of the scale's year. The pairing is meant.
inline constexpr finance::Rebates comparisonRebates{17235, 9765, 13014};

inline constexpr const char* comparisonTables = "Tax tables for the tax year ending February 2027";
inline constexpr const char* comparisonAgeAt = "Age at 28 February 2027"; ///< the age that decides the rebates

/// Interest that is free of tax: section 10(1)(i) of the Income Tax Act.
struct InterestExemption {
    double below65, from65;
    constexpr double at(double age) const { return age >= 65 ? from65 : below65; }
};
inline constexpr InterestExemption interestExemption{23800, 34500};

} // namespace calculators
