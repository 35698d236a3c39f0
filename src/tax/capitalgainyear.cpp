#include "tax/capitalgainyear.h"

#include <algorithm>

#include "assessment/newasset.h"
#include "tax/capitalgainrules.h"

namespace tax {

namespace {

using assessment::CapitalGains;
using assessment::CGTAssetRecord;

constexpr const CapitalGainRules& rules = capitalGains2027;
constexpr std::int16_t living = 0, died = 1;

/// The four codes of the tax return; 0 - x, so that no loss is -0.
YearResults byCode(const YearTotals& totals) {
    const double local = totals.YearLocalProfit, foreign = totals.YearForeignProfit;
    YearResults results;
    (local > 0 ? results.num4250CapGain : results.num4251CapGain) = local > 0 ? local : 0 - local;
    (foreign > 0 ? results.num4252ForeignCapGain : results.num4253ForeignCapGain) = foreign > 0 ? foreign : 0 - foreign;
    return results;
}

YearRule ruleOf(const AnnualGain& year) {
    if (year.YearCapGain < -year.exclusion) return YearRule::loss;
    if (year.YearCapGain <= year.exclusion) return YearRule::withinExclusion;
    if (year.afterLoss == 0) return YearRule::usedUpExactly;
    return year.afterLoss < 0 ? YearRule::lossRemains : YearRule::taxed;
}

double carried(const AnnualGain& year) {
    switch (year.rule) {
    case YearRule::loss: return year.YearCapGain + year.exclusion + year.broughtForward;
    case YearRule::lossRemains: return year.afterLoss;
    case YearRule::taxed:
    case YearRule::usedUpExactly: return 0;
    default: return year.broughtForward;
    }
}

/// The results but for the loss carried forward.
YearResults resultsOf(const AnnualGain& year, const YearTotals& totals, std::int16_t Deceased) {
    YearResults results;
    switch (year.rule) {
    case YearRule::withinExclusion:
    case YearRule::loss: return byCode(totals);
    case YearRule::taxed:
        results = byCode(totals);
        results.numWTCGTTotal = year.afterLoss * rules.inclusionRate;
        return results;
    case YearRule::lossRemains:
        // Known gains alone of a living taxpayer are declared, whatever their sign; all else is 0. That is meant.
        if (totals.assetsCounted == 0 && Deceased == living) {
            results.num4250CapGain = totals.YearLocalProfit;
            results.num4252ForeignCapGain = totals.YearForeignProfit;
        }
        return results;
    default: return results;
    }
}

} // namespace

std::span<const CGTAssetRecord> countedAssets(const CapitalGains& gains) {
    return std::span(gains.assets).first(std::min(gains.assets.size(), mostAssets));
}

double FullGain(const CGTAssetRecord& asset) {
    return asset.ExclCOPSplit == assessment::copSplit ? 2 * asset.CapGain : asset.CapGain;
}

YearTotals yearTotals(const CapitalGains& gains) {
    YearTotals totals;
    for (const CGTAssetRecord& asset : countedAssets(gains)) {
        ++totals.assetsCounted;
        if (asset.LocForeign == assessment::localAsset) {
            totals.localGain += asset.CapGain;
            totals.YearLocalProfit += asset.ProfitDisp;
            totals.YearFullGain += FullGain(asset);
        } else if (asset.LocForeign == assessment::foreignAsset) {
            totals.foreignGain += asset.CapGain;
            totals.YearForeignProfit += asset.ProfitDisp;
        }
    }
    totals.KnownGainTotal = gains.AdditCapGainLocal + gains.AdditCapGainForeign;
    totals.YearFullGain += totals.KnownGainTotal;
    totals.localGain += gains.AdditCapGainLocal;
    totals.YearLocalProfit += gains.AdditCapGainLocal;
    totals.foreignGain += gains.AdditCapGainForeign;
    totals.YearForeignProfit += gains.AdditCapGainForeign;
    totals.YearCapGain = totals.localGain + totals.foreignGain;
    return totals;
}

bool hasKnownGains(const CapitalGains& gains) {
    return gains.ItemiseAdditCapGain == 1 || gains.AdditCapGainLocal != 0 || gains.AdditCapGainForeign != 0;
}

bool isPrintable(const CapitalGains& gains, const CGTAssetRecord& shown) {
    return !shown.AssetDesc.empty() || gains.AdditCapGainLocal != 0 || gains.AdditCapGainForeign != 0;
}

AnnualGain annualGain(const CapitalGains& gains, const YearTotals& totals, std::int16_t Deceased) {
    AnnualGain year;
    year.YearCapGain = totals.YearCapGain;
    year.broughtForward = gains.CarryOverCapGainPrev + 0.0; // never -0
    if (Deceased != living && Deceased != died) {
        year.rule = YearRule::unknownLife;
        return year;
    }
    year.exclusion = Deceased == died ? rules.exclusionAtDeath : rules.annualExclusion;
    const auto assets = countedAssets(gains);
    const auto isBlank = [](const CGTAssetRecord& asset) { return asset.AssetDesc.empty(); };
    if (hasKnownGains(gains) || (!assets.empty() && !isBlank(assets.back()))) {
        if (year.YearCapGain > year.exclusion) year.afterLoss = year.YearCapGain - year.exclusion + year.broughtForward;
        year.rule = ruleOf(year);
    }
    year.blanksBefore = !hasKnownGains(gains) && std::any_of(assets.begin(), assets.end(), isBlank);
    year.CarryForward = carried(year);
    year.results = resultsOf(year, totals, Deceased);
    year.results.numCarryOverCapGain = year.CarryForward;
    return year;
}

YearResults CGTTotalCalc(const AnnualGain& year, const YearResults& shown) {
    if (year.rule == YearRule::unknownLife) return shown;
    if (year.rule != YearRule::usedUpExactly || year.blanksBefore) return year.results;
    YearResults kept = shown;
    kept.numCarryOverCapGain = year.CarryForward;
    return kept;
}

void dropPositiveLoss(CapitalGains& gains) {
    if (gains.CarryOverCapGainPrev > 0) gains.CarryOverCapGainPrev = 0;
}

} // namespace tax
