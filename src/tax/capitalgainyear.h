#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "assessment/cgt.h"

namespace tax {

/// The assets that take part in the year's totals. A file may hold more: those are shown, worked out and saved, but not
/// counted.
inline constexpr std::size_t mostAssets = 1000;

/// The assets that are counted: all of them, or the first 1000.
std::span<const assessment::CGTAssetRecord> countedAssets(const assessment::CapitalGains& gains);

/// Sums over the counted assets as they were last worked out, with the known gains: rand.
struct YearTotals {
    double localGain = 0;          ///< after share and exclusions, with the known local gains
    double foreignGain = 0;        ///< the same abroad
    double YearCapGain = 0;        ///< both
    double YearLocalProfit = 0;    ///< before share and exclusions, with the known local gains
    double YearForeignProfit = 0;  ///< the same abroad
    double KnownGainTotal = 0;     ///< of trusts and other sources, local and foreign
    double YearFullGain = 0;       ///< local gains of both spouses together, and `KnownGainTotal`
    std::size_t assetsCounted = 0; ///< an asset that is neither local nor foreign is in no sum, but among these
};
YearTotals yearTotals(const assessment::CapitalGains& gains);

/// True if there are gains of trusts or other sources, itemised or not.
bool hasKnownGains(const assessment::CapitalGains& gains);

/// True if there is a year to work out and to print beside this asset, the one shown: it has a description, or the
/// known gains come to something.
bool isPrintable(const assessment::CapitalGains& gains, const assessment::CGTAssetRecord& shown);

/// The gain of both spouses together: a split gain doubled.
double FullGain(const assessment::CGTAssetRecord& asset);

/// The six results on the screen and in the report, rand, none negative but the loss carried forward and, in one case,
/// 4250 and 4252 (see YearRule::lossRemains).
struct YearResults {
    double num4250CapGain = 0;        ///< local profit
    double num4251CapGain = 0;        ///< local loss
    double num4252ForeignCapGain = 0; ///< foreign profit
    double num4253ForeignCapGain = 0; ///< foreign loss
    double numWTCGTTotal = 0;         ///< added to income
    double numCarryOverCapGain = 0;   ///< loss carried forward, negative

    bool operator==(const YearResults&) const = default;
};

/// What became of the year's gain.
enum class YearRule {
    unknownLife,     ///< `Deceased` is neither 0 nor 1: nothing is worked out
    nothingToReport, ///< no known gains, and no asset or the last one without a description
    withinExclusion, ///< a gain or loss that the annual exclusion takes up
    loss,            ///< beyond the exclusion: carried forward
    lossRemains,     ///< the loss brought forward exceeds the gain, and what remains is carried forward
    usedUpExactly,   ///< the loss brought forward is just the gain: the results stay as shown before
    taxed            ///< part of the gain is added to income
};

/// A year's gain and how it is taxed: rand, unrounded.
struct AnnualGain {
    YearRule rule = YearRule::nothingToReport;
    double exclusion = 0;      ///< the annual one, or that of the year of death
    double YearCapGain = 0;    ///< before the exclusion
    double broughtForward = 0; ///< `CarryOverCapGainPrev`, 0 or negative
    double afterLoss = 0;      ///< gain less exclusion and loss brought forward; 0 without a gain above the exclusion
    double CarryForward = 0;   ///< 0 or negative
    YearResults results;       ///< all 0 for YearRule::unknownLife; for usedUpExactly only the loss carried forward
    bool blanksBefore = false; ///< for usedUpExactly: an asset without a description blanks what was shown before
};

/// Works the year out from the gains and their totals. Deceased: 0 living, 1 died in the year.
///
/// With assets, the last one decides whether there is anything to report: it needs a description if there are no known
/// gains. `CarryOverCapGainPrev` should not be positive; a positive one adds to the gain.
AnnualGain annualGain(const assessment::CapitalGains& gains, const YearTotals& totals, std::int16_t Deceased);

/// The results to show: those of the year, or, where its rule says so, those shown before.
YearResults CGTTotalCalc(const AnnualGain& year, const YearResults& shown);

/// A loss brought forward that is positive becomes 0. A screen does this when it closes.
void dropPositiveLoss(assessment::CapitalGains& gains);

} // namespace tax
