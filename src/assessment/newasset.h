#pragma once

#include "assessment/cgt.h"

namespace assessment {

/// What an asset is of, as stored in `CGTAsset`.
inline constexpr const char* unitTrustAsset = "UT"; ///< also stocks and shares
inline constexpr const char* residenceAsset = "PR";
inline constexpr const char* smallBusinessAsset = "SB";
inline constexpr const char* otherAsset = "OA";

/// Values of `LocForeign` and of `ExclCOPSplit`.
inline constexpr std::int16_t localAsset = 1, foreignAsset = 2;
inline constexpr std::int16_t noSplit = 1, copSplit = 2;

/// Rand that a person may deduct from gains on small businesses in a lifetime, for disposals from 1 March 2026 to
/// 28 February 2027: Income Tax Act, Eighth Schedule, paragraph 57. Also what an asset has that was saved before the
/// amount could be entered.
inline constexpr double smallBusinessDeduction = 1800000;

/// The asset that Add puts on the screen. A blank record differs: it is what an empty row of a file loads as.
inline CGTAssetRecord newAsset() {
    CGTAssetRecord asset;
    asset.CGTAsset = unitTrustAsset;
    asset.ResOccPerc = 100;
    asset.SBFiveDed = "No";
    asset.SB750PortDed = smallBusinessDeduction;
    asset.LocForeign = localAsset;
    asset.PerShare = 100;
    asset.ExclCOPSplit = noSplit;
    return asset;
}

} // namespace assessment
