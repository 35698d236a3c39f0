#pragma once

#include <array>

/// The income tax of natural persons. Figures are rand a year and rates percent, unless a line says otherwise.
namespace tax {

/// One bracket of an income tax scale: incomes above `over`, up to and including `upTo`.
struct Bracket {
    double over;
    double upTo;
    double taxOnOver; ///< tax on an income of exactly `over`
    double rate;      ///< on the part of the income above `over`
};

/// The top of each scale's last bracket. An income above it is still taxed by that bracket.
inline constexpr double topOfScale = 9999999999;

/// The figures of one tax year, fixed by that year's Rates and Monetary Amounts and Amendment of Revenue Laws Act.
struct TaxYear {
    const char* ends; ///< as the screens and reports name it
    std::array<Bracket, 7> scale;
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
inline constexpr TaxRules investmentComparisonRules{february2027, february2026, february2027};

/// How a scale taxes one income: the bracket that applies, the tax and its two parts.
struct ScaleTax {
    double lowerLimit = 0;
    double upperLimit = 0;
    double rate = 0; ///< percent
    double taxOnLowerLimit = 0;
    double portion = 0; ///< tax on the part of the income above the lower limit
    double tax = 0;     ///< sum of both parts, never rounded
};

/// Taxes an income. An income exactly on a limit is taxed in the bracket below it, one above the last limit in the last
/// bracket, a negative one in the first, with a negative tax.
ScaleTax taxOn(const TaxYear& year, double income);

/// Primary rebate plus the one for the age (years, may be a fraction): 64.99 is still below 65.
double totalRebates(const TaxRules& rules, double age);

} // namespace tax
