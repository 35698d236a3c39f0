#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/day.h"

namespace assessment {

/// One asset disposed of in the tax year.
struct CGTAssetRecord {
    std::int16_t CGTAssetNum = 1;
    std::string CGTAsset; ///< "UT", "PR", "SB" or "OA"
    std::string AssetDesc;
    double Size = 0;       ///< hectares
    double ResOccPerc = 0; ///< percent
    double DateAquired = base::NoDate, OrigPurPrice = 0, AcquiCost = 0;
    std::int16_t ItemiseAcqCost = 0;
    double AppVal = 0, DeemVal = 0, ImproveMade = 0;
    std::int16_t ItemiseImproveMade = 0;
    double SaleCost = 0;
    std::int16_t ItemiseSaleCost = 0;
    double DateSale = base::NoDate, SellPrice = 0, CapGain = 0;
    std::string SBFiveDed; ///< "Yes" or "No"
    double SB750PortDed = 0;
    std::int16_t LocForeign = 0; ///< 1 local, 2 foreign
    double ImproveMadeBefore = 0;
    std::int16_t ItemiseImproveMadeBefore = 0;
    double CapGainUser = 0, PerShare = 0;
    std::int16_t ExclCOPSplit = 0; ///< 1 no split, 2 split
    double ProfitDisp = 0;

    bool operator==(const CGTAssetRecord&) const = default;
};

/// One gain or loss from a trust or another source.
struct CGTTrustRow {
    std::string source;   ///< `Trust or Other Source`
    std::string copSplit; ///< `COP Split`: the Foreign Y/N of the screen's second column
    double Amount = 0;    ///< gain or loss, rand
    double baseCost = 0;  ///< `Base Cost`
    double Proceeds = 0;
    std::string ExclCOPSplit; ///< the split of the screen's last column

    bool operator==(const CGTTrustRow&) const = default;
};

struct CapitalGains {
    std::vector<CGTAssetRecord> assets; ///< `CGTMaxNum` of them
    std::int16_t ItemiseAdditCapGain = 0;
    double AdditCapGainLocal = 0, AdditCapGainForeign = 0;
    double ExclCOPAdditCapGainLocal = 0, ExclCOPAdditCapGainForeign = 0;
    double CarryOverCapGainPrev = 0;
    std::vector<CGTTrustRow> trustOther;

    bool operator==(const CapitalGains&) const = default;
};

} // namespace assessment
