#pragma once

#include <cmath>
#include <optional>

#include "assessment/cgt.h"

namespace tax {

/// How the gain of an asset was found.
enum class GainMethod {
    noDisposal = 0,      ///< not sold, no rule fits, or a residence that is excluded whole
    valuation = 1,       ///< against the appraised value on 1 October 2001
    timeApportioned = 2, ///< against a base cost apportioned over the years before and after the valuation
    twentyPercent = 3,   ///< neither cost nor value is known: 20 % of the proceeds are the base cost
    afterValuation = 4,  ///< bought since: against the cost
    lossLimitation = 5   ///< probably neither gain nor loss; `CapGainUser` stands
};

/// Which exclusion was applied to the gain; the residence's depends on its land and its use.
enum class GainExclusion {
    none,      ///< and no share
    shareOnly, ///< no exclusion, but this taxpayer's share
    smallBusiness,
    residence,           ///< at most two hectares
    residencePartlyUsed, ///< at most two hectares, and the owner lived there for a part only
    largeResidence,      ///< on more than two hectares
    largeResidencePartlyUsed,
    wholeResidence ///< sold for no more than the exclusion
};

/// The time-apportioned base cost: rand, day numbers, whole years.
struct TimeApportionment {
    double base = 0;        ///< cost with what belongs to it, before the valuation
    double proceeds = 0;    ///< the part of the proceeds that this cost earned
    double start = 0;       ///< the day from which years count
    double yearsBefore = 0; ///< to the valuation, rounded up
    double yearsAfter = 0;  ///< from the valuation to the sale, rounded up; negative for a sale before it
    double DeemVal = 0;     ///< value on 1 October 2001; may be negative
};

/// The gain of one asset: rand, unrounded, a loss negative.
struct AssetGain {
    GainMethod found = GainMethod::noDisposal;  ///< by dates and amounts alone
    GainMethod method = GainMethod::noDisposal; ///< as shown: differs from `found` for a residence excluded whole
    GainExclusion exclusion = GainExclusion::none;
    std::optional<TimeApportionment> apportionment; ///< for GainMethod::timeApportioned
    double PerShareAns = 0;                         ///< percent of the asset that this taxpayer is taxed on
    double DeemVal = 0;                             ///< 0 if not apportioned; an unsold asset keeps the one entered
    double ProfitDisp = 0;                          ///< before share and exclusions
    double CapGain = 0;                             ///< after them

    /// True if the user may enter a gain instead of zero (`numCapGainUser`).
    bool asksUser() const { return method == GainMethod::lossLimitation; }
    /// False if the figures are too large for a result.
    bool isFinite() const { return std::isfinite(CapGain) && std::isfinite(ProfitDisp) && std::isfinite(DeemVal); }
};

/// Finds method, gain, share and exclusions of one asset from its own figures alone; changes nothing.
///
/// Every input is allowed, also from a file: dates in any order, percentages beyond 100, an unknown type (share and
/// exclusions are left out), a split other than 1 or 2 (the share is left out). Figures near the limit of a double may
/// give a result that is not finite.
AssetGain CGTCALC(const assessment::CGTAssetRecord& asset);

// The steps, in their order.

/// Percent of the asset that this taxpayer is taxed on: half of the share if it is split.
double shareShown(const assessment::CGTAssetRecord& asset);
/// The method by dates and amounts. Days are compared with `valuationDay`; an asset without a date of purchase counts
/// as bought before it.
GainMethod gainMethod(const assessment::CGTAssetRecord& asset);
/// The base cost on 1 October 2001 by time apportionment (paragraph 30); for an asset bought before and sold. A
/// quotient whose divisor is 0 counts as 0.
TimeApportionment apportion(const assessment::CGTAssetRecord& asset);
/// The gain by that method, before share and exclusions. The apportionment is needed for its method only.
double gainBy(GainMethod method, const assessment::CGTAssetRecord& asset, const TimeApportionment& apportionment);
/// A value's part that is this taxpayer's, by `PerShare` and `ExclCOPSplit`.
double sharedOf(double value, const assessment::CGTAssetRecord& asset);
/// The exclusion that applies to a gain found by `method`, other than that of a whole residence. None, not even the
/// share, for a gain that the user entered and for an asset of unknown type.
GainExclusion exclusionOf(GainMethod method, const assessment::CGTAssetRecord& asset);
/// What remains of a gain after share and exclusion.
double afterExclusion(double gain, GainExclusion exclusion, const assessment::CGTAssetRecord& asset);
/// True for a residence sold for no more than the exclusion by someone who lived there all the time, on any land.
bool isWhollyExcluded(const assessment::CGTAssetRecord& asset);

/// Works the asset out and stores `CapGain`, `ProfitDisp` and `DeemVal` in it. If one of them is not finite, the old
/// three stay.
AssetGain workOut(assessment::CGTAssetRecord& asset);

/// The words for a method; empty for those that need none.
const char* methodLabel(GainMethod method);
/// The words beside the gain: those for its method, but none before a selling price is entered.
inline const char* gainLabel(GainMethod method, const assessment::CGTAssetRecord& asset) {
    return asset.SellPrice > 0 ? methodLabel(method) : "";
}

/// Above `numCapGainUser`, where the loss limitation applies.
inline constexpr const char* lossLimitationText =
    "Holtwick has determined, in terms of the \"Loss limitation\" clauses in the Act, that zero Capital Gain probably "
    "exists in this case but you may over-ride this calculation by manually entering a Capital Gain amount here if you "
    "wish.  Please press the F1 key for more HELP on this.";

} // namespace tax
