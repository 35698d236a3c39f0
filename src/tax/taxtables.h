#pragma once

#include "finance/incomescale.h"

/// The income tax of natural persons. Figures are rand a year and rates percent, unless a line says otherwise.
namespace tax {

using finance::ScaleTax;
using finance::topOfScale;

/// The figures of one tax year, fixed by that year's Rates and Monetary Amounts and Amendment of Revenue Laws Act.
struct TaxYear {
    const char* ends; ///< as the screens and reports name it
    finance::IncomeScale scale;
    double primaryRebate;
    double rebateFrom65; ///< in addition to the primary one, at ages from 65 to 74
    double rebateFrom75; ///< in addition to the primary one, from 75 on; secondary and tertiary rebate together
};

/// 1 March 2025 to 28 February 2026: Rates and Monetary Amounts and Amendment of Revenue Laws Act of 2025.
inline constexpr TaxYear february2026{
    "February 2026",
    {{
        {0, 237100, 0, 18},
        {237100, 370500, 42678, 26},
        {370500, 512800, 77362, 31},
        {512800, 673000, 121475, 36},
        {673000, 857900, 179147, 39},
        {857900, 1817000, 251258, 41},
        {1817000, topOfScale, 644489, 45},
    }},
    17235,
    9444,
    12589,
};

/// 1 March 2026 to 28 February 2027: Rates and Monetary Amounts and Amendment of Revenue Laws Act of 2026.
inline constexpr TaxYear february2027{
    "February 2027",
    {{
        {0, 245100, 0, 18},
        {245100, 383100, 44118, 26},
        {383100, 530200, 79998, 31},
        {530200, 695800, 125599, 36},
        {695800, 887000, 185215, 39},
        {887000, 1878600, 259783, 41},
        {1878600, topOfScale, 666339, 45},
    }},
    17820,
    9765,
    13014,
};

/// Tax credits for the members of a medical scheme, rand a month for each; fixed by the same Act as the scale.
struct MedicalCredits {
    double firstTwo; ///< each of the first two
    double further;  ///< each further member
};
inline constexpr MedicalCredits medicalCredits2027{376, 254}; ///< 1 March 2026 to 28 February 2027

/// What contributions to retirement funds may be deducted from income: Income Tax Act, section 11F.
struct FundDeduction {
    double share; ///< of remuneration or taxable income, a fraction
    double cap;   ///< rand a year
};
inline constexpr FundDeduction fundDeduction2027{0.275, 350000}; ///< 1 March 2026 to 28 February 2027

/// Incomes below which no tax is due, by age: rand a year.
struct TaxThresholds {
    double under65;
    double from65;
    double from75;

    constexpr double at(double age) const { return age >= 75 ? from75 : age >= 65 ? from65 : under65; }
};
/// 1 March 2025 to 28 February 2026: the primary rebate, and the ones for the age, over 18 %.
inline constexpr TaxThresholds taxThresholds2026{95750, 148217, 165689};

/// The years whose scale and rebates one user of the tables works with.
struct TaxRules {
    const TaxYear& scale;
    const TaxYear& primaryRebate;
    const TaxYear& ageRebates;
};

// Where the rebates of one year are paired with the scale of another, this is intended: each screen keeps giving the
// figures that practices know from it. Change a pairing only if the practice's figures are to change.
inline constexpr TaxRules quickTaxFebruary2026{february2026, february2026, february2026};
inline constexpr TaxRules quickTaxFebruary2027{february2027, february2027, february2027};
inline constexpr TaxRules monthlyTaxRules{february2027, february2026, february2026};
inline constexpr TaxRules retirementFundingRules{february2027, february2027, february2027};

/// Taxes an income by the scale of a year: see finance::taxOn.
inline ScaleTax taxOn(const TaxYear& year, double income) { return finance::taxOn(year.scale, income); }

/// Primary rebate plus the one for the age (years, may be a fraction): 64.99 is still below 65.
constexpr double totalRebates(const TaxRules& rules, double age) {
    return finance::Rebates{rules.primaryRebate.primaryRebate, rules.ageRebates.rebateFrom65,
                            rules.ageRebates.rebateFrom75}
        .at(age);
}

} // namespace tax
