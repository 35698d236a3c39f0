#pragma once

namespace tax {

/// Figures of the capital gains tax of natural persons, fixed by the Eighth Schedule to the Income Tax Act for one tax
/// year. Rand, unless a line says otherwise; in brackets the paragraph. The deduction for small businesses is
/// assessment::smallBusinessDeduction, because an old client loads with it.
struct CapitalGainRules {
    const char* ends;
    double residenceExclusion; ///< of the gain on a primary residence [45]
    /// What a sole owner in community of property is granted instead of half of `residenceExclusion`. The two differ on
    /// purpose: the practices' figures rest on it.
    double splitResidenceExclusion;
    double residenceHectares; ///< the land to which the exclusion applies [46]
    double gainShare;         ///< part of the net proceeds that is gain if the base cost is 20 % of them [26(1)(b)]
    double annualExclusion;   ///< of the year's gains or losses [5]
    double exclusionAtDeath;  ///< the same for the year in which the person died [5]
    double inclusionRate;     ///< part of the year's gain that is added to income [10]
};

/// 1 March 2026 to 28 February 2027.
inline constexpr CapitalGainRules capitalGains2027{
    "February 2027", 3000000, 1000000, 2, 0.8, 50000, 440000, 0.4,
};

/// The day before the tax began, 30 September 2001, as a day number. An asset bought on this very day counts as bought
/// after the valuation.
inline constexpr double valuationDay = 37164;
/// 30 September 1981: if improvements were made before the valuation, years before this day do not count [30].
inline constexpr double twentyYearsBeforeValuation = 29859;

} // namespace tax
