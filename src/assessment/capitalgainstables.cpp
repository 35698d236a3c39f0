#include "assessment/newasset.h"
#include "assessment/tables.h"

namespace assessment {

const FieldTable<CGTAssetRecord>& cgtDetailsTable() {
    static const FieldTable<CGTAssetRecord> table(
        "CGTDetails",
        {
            {"DCLNO", zero(Double), Rule::key},
            {"CGTMaxNum", Integer, Rule::rowCount},
            {"CGTAssetNum", Integer, in<&CGTAssetRecord::CGTAssetNum>, Rule::rowNumber},
            {"CGTAsset", Text(4), in<&CGTAssetRecord::CGTAsset>},
            {"AssetDesc", Text(60), in<&CGTAssetRecord::AssetDesc>},
            {"Size", Double, in<&CGTAssetRecord::Size>},
            {"ResOccPerc", Double, in<&CGTAssetRecord::ResOccPerc>},
            {"DateAquired", blankAs(base::NoDate, Double), in<&CGTAssetRecord::DateAquired>, Rule::assetDate},
            {"OrigPurPrice", Double, in<&CGTAssetRecord::OrigPurPrice>},
            {"AcquiCost", Double, in<&CGTAssetRecord::AcquiCost>},
            {"ItemiseAcqCost", Integer, in<&CGTAssetRecord::ItemiseAcqCost>},
            {"AppVal", Double, in<&CGTAssetRecord::AppVal>},
            {"DeemVal", Double, in<&CGTAssetRecord::DeemVal>},
            {"ImproveMade", Double, in<&CGTAssetRecord::ImproveMade>},
            {"ItemiseImproveMade", Integer, in<&CGTAssetRecord::ItemiseImproveMade>},
            {"SaleCost", Double, in<&CGTAssetRecord::SaleCost>},
            {"ItemiseSaleCost", Integer, in<&CGTAssetRecord::ItemiseSaleCost>},
            {"DateSale", blankAs(base::NoDate, Double), in<&CGTAssetRecord::DateSale>, Rule::assetDate},
            {"SellPrice", Double, in<&CGTAssetRecord::SellPrice>},
            {"CapGain", Double, in<&CGTAssetRecord::CapGain>},
            {"SBFiveDed", Text(10), in<&CGTAssetRecord::SBFiveDed>},
            // 0 in the next one and in ExclCOPSplit would change the gain of a client saved before these fields
            // existed.
            {"SB750PortDed", blankAs(smallBusinessDeduction, Double), in<&CGTAssetRecord::SB750PortDed>},
            {"LocForeign", Integer, in<&CGTAssetRecord::LocForeign>},
            {"ImproveMadeBefore", Double, in<&CGTAssetRecord::ImproveMadeBefore>},
            {"ItemiseImproveMadeBefore", Integer, in<&CGTAssetRecord::ItemiseImproveMadeBefore>},
            {"CapGainUser", Double, in<&CGTAssetRecord::CapGainUser>},
            {"PerShare", Double, in<&CGTAssetRecord::PerShare>},
            {"ExclCOPSplit", blankAs(noSplit, Integer), in<&CGTAssetRecord::ExclCOPSplit>},
            {"ProfitDisp", Double, in<&CGTAssetRecord::ProfitDisp>},
        },
        {{"DCLNOIndex", "DCLNO"}});
    return table;
}

const FieldTable<CapitalGains>& cgtDetailsOtherTable() {
    static const FieldTable<CapitalGains> table(
        "CGTDetailsOther",
        {
            {"DCLNO", zero(Double), Rule::key},
            {"ItemiseAdditCapGain", Integer, in<&CapitalGains::ItemiseAdditCapGain>},
            {"AdditCapGainLocal", Double, in<&CapitalGains::AdditCapGainLocal>},
            {"AdditCapGainForeign", Double, in<&CapitalGains::AdditCapGainForeign>},
            {"ExclCOPAdditCapGainLocal", Double, in<&CapitalGains::ExclCOPAdditCapGainLocal>},
            {"ExclCOPAdditCapGainForeign", Double, in<&CapitalGains::ExclCOPAdditCapGainForeign>},
            {"CarryOverCapGainPrev", Double, in<&CapitalGains::CarryOverCapGainPrev>},
        },
        {{"DCLNOIndex", "DCLNO"}});
    return table;
}

const FieldTable<CGTTrustRow>& cgtTrustOtherTable() {
    static const FieldTable<CGTTrustRow> table("CGTTrustOther",
                                               {
                                                   {"DCLNO", zero(Double), Rule::key},
                                                   {"MaxNum", zero(Double), Rule::rowCount},
                                                   {"Trust or Other Source", Text(60), in<&CGTTrustRow::source>},
                                                   {"COP Split", Text(3), in<&CGTTrustRow::copSplit>},
                                                   {"Amount", Double, in<&CGTTrustRow::Amount>},
                                                   {"Base Cost", Double, in<&CGTTrustRow::baseCost>},
                                                   {"Proceeds", Double, in<&CGTTrustRow::Proceeds>},
                                                   {"ExclCOPSplit", Text(3), in<&CGTTrustRow::ExclCOPSplit>},
                                               });
    return table;
}

} // namespace assessment
