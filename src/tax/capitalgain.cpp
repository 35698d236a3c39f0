#include "tax/capitalgain.h"

#include <cmath>

#include "assessment/newasset.h"
#include "base/day.h"
#include "base/text.h"
#include "tax/capitalgainrules.h"

namespace tax {

namespace {

using assessment::CGTAssetRecord;

constexpr const CapitalGainRules& rules = capitalGains2027;
constexpr double daysAYear = 365.25;
constexpr double wholeAsset = 100; // percent

bool isOf(const CGTAssetRecord& asset, const char* type) { return base::sameWord(asset.CGTAsset, type); }
bool isUnitTrust(const CGTAssetRecord& asset) { return isOf(asset, assessment::unitTrustAsset); }

/// Improvements that count as cost: nobody improves unit trusts and shares.
double improvements(const CGTAssetRecord& asset) { return isUnitTrust(asset) ? 0 : asset.ImproveMade; }

bool isLossLimited(const CGTAssetRecord& asset) {
    // Improvements are deducted here for unit trusts too. That is meant.
    const double netProceeds = asset.SellPrice - asset.ImproveMade - asset.SaleCost;
    return netProceeds > asset.AppVal && netProceeds < asset.OrigPurPrice;
}

double quotient(double dividend, double divisor) { return divisor == 0 ? 0 : dividend / divisor; }

bool isSplit(const CGTAssetRecord& asset) { return asset.ExclCOPSplit == assessment::copSplit; }
bool isUnsplit(const CGTAssetRecord& asset) { return asset.ExclCOPSplit == assessment::noSplit; }
/// The share as a factor, also for a share of 100 % or more.
double share(const CGTAssetRecord& asset) { return asset.PerShare / 100; }
/// The part of this taxpayer alone, of whom a spouse may take half.
double ownPart(const CGTAssetRecord& asset) { return isSplit(asset) ? share(asset) / 2 : share(asset); }

/// Excluding something never makes a gain a loss. What is not a number stays so, for the caller to see.
double notBelowZero(double rand) { return rand < 0 ? 0 : rand; }
double floored(double before, double after) { return before > 0 ? notBelowZero(after) : after; }

double afterSmallBusiness(double gain, const CGTAssetRecord& asset) {
    if (gain <= 0) return sharedOf(gain, asset);
    // The deduction is personal: a split or a partner never halves it.
    if (base::sameWord(asset.SBFiveDed, "Yes")) return notBelowZero(sharedOf(gain, asset) - asset.SB750PortDed);
    if (base::sameWord(asset.SBFiveDed, "No")) return notBelowZero(sharedOf(gain, asset));
    return gain; // not answered: Delete leaves it empty
}

double afterResidence(double gain, const CGTAssetRecord& asset) {
    if (gain <= 0) return sharedOf(gain, asset);
    if (!isSplit(asset) && !isUnsplit(asset)) return gain;
    const double part = ownPart(asset);
    if (asset.PerShare < wholeAsset) return notBelowZero(part * gain - part * rules.residenceExclusion);
    return notBelowZero(isSplit(asset) ? gain / 2 - rules.splitResidenceExclusion : gain - rules.residenceExclusion);
}

/// The gain in two parts: of the time in which the owner lived there, and of the rest.
struct ByUse {
    double residence, other;
};
ByUse byUse(double gain, const CGTAssetRecord& asset) {
    const double residence = asset.ResOccPerc / 100 * gain;
    return {residence, gain - residence};
}

double afterResidencePartlyUsed(double gain, const CGTAssetRecord& asset) {
    const auto [residence, other] = byUse(gain, asset);
    double left = other;
    if (residence > rules.residenceExclusion)
        left = residence - rules.residenceExclusion + other;
    else if (residence < -rules.residenceExclusion)
        left = residence + rules.residenceExclusion + other;
    return floored(left, sharedOf(left, asset));
}

/// The gain on the land to which the exclusion applies.
double onTwoHectares(double gain, const CGTAssetRecord& asset) { return rules.residenceHectares * (gain / asset.Size); }

double afterLargeResidencePartlyUsed(double gain, const CGTAssetRecord& asset) {
    if (!isSplit(asset) && !isUnsplit(asset)) return gain;
    const auto [residence, other] = byUse(gain, asset);
    const double further = residence - onTwoHectares(residence, asset);
    double left = other + further;
    // The limit is tested on the whole residence, so that the first two hectares may turn negative here. That is meant.
    if (residence > rules.residenceExclusion)
        left = (residence - further - rules.residenceExclusion) + further + other;
    else if (residence < -rules.residenceExclusion)
        left = (residence - further + rules.residenceExclusion) + further + other;
    return floored(gain, ownPart(asset) * left);
}

double afterLargeResidence(double gain, const CGTAssetRecord& asset) {
    if (!isSplit(asset) && !isUnsplit(asset)) return gain;
    const double first = onTwoHectares(gain, asset);
    const double further = gain - first;
    const double part = ownPart(asset);
    double left = part * first;
    if (gain > 0) {
        left = notBelowZero(part * first - part * rules.residenceExclusion);
    } else if (asset.ResOccPerc >= wholeAsset) {
        // A loss meets the exclusion of the share before any split, and the limit of the whole. That is meant.
        left = part * first + share(asset) * rules.residenceExclusion;
        if (left > -rules.residenceExclusion) left = 0;
    }
    return part * further + left;
}

} // namespace

double shareShown(const CGTAssetRecord& asset) { return isSplit(asset) ? asset.PerShare * 0.5 : asset.PerShare; }

GainMethod gainMethod(const CGTAssetRecord& asset) {
    if (asset.DateSale == base::NoDate) return GainMethod::noDisposal;
    if (asset.DateAquired >= valuationDay) return GainMethod::afterValuation;
    if (asset.AppVal > 0) return isLossLimited(asset) ? GainMethod::lossLimitation : GainMethod::valuation;
    if (asset.OrigPurPrice == 0 || asset.DateAquired == base::NoDate) return GainMethod::twentyPercent;
    return asset.OrigPurPrice > 0 ? GainMethod::timeApportioned : GainMethod::noDisposal;
}

TimeApportionment apportion(const CGTAssetRecord& asset) {
    TimeApportionment result;
    result.base = asset.OrigPurPrice + asset.AcquiCost;
    if (!isUnitTrust(asset)) result.base += asset.ImproveMadeBefore;
    result.proceeds = asset.SellPrice;
    const double improved = improvements(asset);
    if (improved + asset.SaleCost > 0)
        result.proceeds = quotient((asset.SellPrice - asset.SaleCost) * result.base, improved + result.base);
    const bool countsTwentyYears = asset.DateAquired <= twentyYearsBeforeValuation && asset.ImproveMadeBefore > 0;
    result.start = countsTwentyYears ? twentyYearsBeforeValuation : asset.DateAquired;
    result.yearsBefore = std::ceil((valuationDay - result.start) / daysAYear);
    result.yearsAfter = std::ceil((asset.DateSale - valuationDay) / daysAYear);
    result.DeemVal = result.base + quotient((result.proceeds - result.base) * result.yearsBefore,
                                            result.yearsBefore + result.yearsAfter);
    return result;
}

double gainBy(GainMethod method, const CGTAssetRecord& asset, const TimeApportionment& apportionment) {
    switch (method) {
    case GainMethod::noDisposal: return 0;
    case GainMethod::valuation: return asset.SellPrice - improvements(asset) - asset.SaleCost - asset.AppVal;
    case GainMethod::timeApportioned:
        // Improvements are deducted for unit trusts too, and the value may be negative here. Both are meant.
        return asset.SellPrice - apportionment.DeemVal - asset.ImproveMade - asset.SaleCost;
    case GainMethod::twentyPercent:
        return (asset.SellPrice - asset.AcquiCost - asset.ImproveMade - asset.ImproveMadeBefore - asset.SaleCost) *
               rules.gainShare;
    case GainMethod::afterValuation:
        return asset.SellPrice - asset.AcquiCost - improvements(asset) - asset.SaleCost - asset.OrigPurPrice;
    case GainMethod::lossLimitation: return asset.CapGainUser;
    }
    return 0;
}

double sharedOf(double value, const CGTAssetRecord& asset) {
    const bool isPart = asset.PerShare < wholeAsset;
    if (isSplit(asset)) return isPart ? share(asset) / 2 * value : value / 2;
    return isUnsplit(asset) && isPart ? share(asset) * value : value;
}

GainExclusion exclusionOf(GainMethod method, const CGTAssetRecord& asset) {
    if (method == GainMethod::lossLimitation) return GainExclusion::none; // what the user entered is final
    if (isOf(asset, assessment::smallBusinessAsset)) return GainExclusion::smallBusiness;
    if (isUnitTrust(asset) || isOf(asset, assessment::otherAsset)) return GainExclusion::shareOnly;
    if (!isOf(asset, assessment::residenceAsset)) return GainExclusion::none;
    const bool isKnownCost = method == GainMethod::valuation || method == GainMethod::timeApportioned ||
                             method == GainMethod::afterValuation;
    const bool isPartlyUsed = asset.ResOccPerc < wholeAsset && isKnownCost;
    if (asset.Size <= rules.residenceHectares)
        return isPartlyUsed ? GainExclusion::residencePartlyUsed : GainExclusion::residence;
    return isPartlyUsed ? GainExclusion::largeResidencePartlyUsed : GainExclusion::largeResidence;
}

double afterExclusion(double gain, GainExclusion exclusion, const CGTAssetRecord& asset) {
    switch (exclusion) {
    case GainExclusion::none: return gain;
    case GainExclusion::shareOnly: return sharedOf(gain, asset);
    case GainExclusion::smallBusiness: return afterSmallBusiness(gain, asset);
    case GainExclusion::residence: return afterResidence(gain, asset);
    case GainExclusion::residencePartlyUsed: return afterResidencePartlyUsed(gain, asset);
    case GainExclusion::largeResidence: return afterLargeResidence(gain, asset);
    case GainExclusion::largeResidencePartlyUsed: return afterLargeResidencePartlyUsed(gain, asset);
    case GainExclusion::wholeResidence: return 0;
    }
    return gain;
}

bool isWhollyExcluded(const CGTAssetRecord& asset) {
    return isOf(asset, assessment::residenceAsset) && asset.SellPrice <= rules.residenceExclusion &&
           asset.ResOccPerc == wholeAsset;
}

AssetGain CGTCALC(const CGTAssetRecord& asset) {
    AssetGain result;
    result.PerShareAns = shareShown(asset);
    result.DeemVal = asset.DeemVal;
    if (asset.DateSale == base::NoDate) return result;
    result.found = result.method = gainMethod(asset);
    result.DeemVal = 0;
    if (result.found == GainMethod::timeApportioned) {
        result.apportionment = apportion(asset);
        result.DeemVal = notBelowZero(result.apportionment->DeemVal);
    }
    result.ProfitDisp = gainBy(result.found, asset, result.apportionment.value_or(TimeApportionment{})) + 0.0;
    if (isWhollyExcluded(asset)) {
        result.method = GainMethod::noDisposal; // the words for it say that nothing is to be declared
        result.exclusion = GainExclusion::wholeResidence;
        return result;
    }
    result.exclusion = exclusionOf(result.found, asset);
    result.CapGain = afterExclusion(result.ProfitDisp, result.exclusion, asset) + 0.0; // + 0.0: never -0
    return result;
}

AssetGain workOut(CGTAssetRecord& asset) {
    AssetGain result = CGTCALC(asset);
    if (!result.isFinite()) return result;
    asset.CapGain = result.CapGain;
    asset.ProfitDisp = result.ProfitDisp;
    asset.DeemVal = result.DeemVal;
    return result;
}

const char* methodLabel(GainMethod method) {
    switch (method) {
    case GainMethod::valuation: return "(Using appraised value method)";
    case GainMethod::timeApportioned: return "(Using time apportioned method)";
    case GainMethod::twentyPercent: return "(Using 80% rule method)";
    case GainMethod::noDisposal:
    case GainMethod::afterValuation:
    case GainMethod::lossLimitation: break;
    }
    return "";
}

} // namespace tax
