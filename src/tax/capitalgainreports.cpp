#include "tax/capitalgainreports.h"

#include <array>
#include <cmath>
#include <string>

#include "assessment/newasset.h"
#include "base/day.h"
#include "base/numberformat.h"
#include "base/text.h"
#include "tax/capitalgain.h"
#include "tax/capitalgainlist.h"
#include "tax/capitalgainrules.h"

namespace tax {

namespace {

using assessment::CapitalGains;
using assessment::CGTAssetRecord;
using assessment::CGTTrustRow;
using datastore::Row;

constexpr std::int16_t communityOfProperty = 4; // value of `CMaritalStat`

/// A figure within a text, with all its places.
std::string inWords(double figure) { return base::formatNumber(figure, "0.##########"); }

/// An amount of the itemised gains: cents only where there are any, nothing for 0.
std::string itemAmount(double rand) {
    return base::formatNumber(rand, rand == std::nearbyint(rand) ? "### ### ### ###" : "### ### ### ##0.00");
}

bool isOf(const CGTAssetRecord& asset, const char* type) { return base::sameWord(asset.CGTAsset, type); }

std::string typeInWords(const CGTAssetRecord& asset) {
    constexpr std::array words{std::pair(assessment::unitTrustAsset, "Unit trusts, stocks & shares"),
                               std::pair(assessment::residenceAsset, "Primary residence"),
                               std::pair(assessment::smallBusinessAsset, "Small business"),
                               std::pair(assessment::otherAsset, "Other asset etc.")};
    for (const auto& [type, name] : words)
        if (isOf(asset, type)) return name;
    return {};
}

std::string dateInWords(double day) {
    const std::string date = day == base::NoDate ? std::string() : base::formatDate(day);
    return date.empty() ? "__/__/____" : date;
}

std::string placeInWords(const CGTAssetRecord& asset) {
    if (asset.LocForeign == assessment::localAsset) return "Local";
    return asset.LocForeign == assessment::foreignAsset ? "Foreign" : "";
}

std::string methodInWords(GainMethod method, const CGTAssetRecord& asset) {
    switch (method) {
    case GainMethod::noDisposal: return "(Asset held in stock - not yet disposed of)";
    case GainMethod::valuation:
    case GainMethod::timeApportioned:
    case GainMethod::twentyPercent: return methodLabel(method);
    case GainMethod::afterValuation: return {};
    case GainMethod::lossLimitation: break;
    }
    return std::string("Marlowbeck has determined that, in terms of the Loss limitation clauses in the Act, zero "
                       "Capital Gain probably exists.") +
           (asset.CapGain == 0 ? "" : "  Your manually entered Capital Gain amount has been used.");
}

Row assetRow(const CGTAssetRecord& asset, std::size_t number, bool isInCommunity) {
    const bool isResidence = isOf(asset, assessment::residenceAsset);
    const GainMethod method = CGTCALC(asset).method;
    return {
        {"CGTAssetNum", static_cast<double>(number)},
        {"CGTAsset", typeInWords(asset)},
        {"SBFiveDed", isOf(asset, assessment::smallBusinessAsset)
                          ? "Qualifies for S.B. R " + inWords(asset.SB750PortDed) + " deduction : " + asset.SBFiveDed
                          : std::string()},
        {"Size", isResidence ? "Size : " + inWords(asset.Size) + " hectares" : std::string()},
        {"ResOccPerc", isResidence ? "Residency period " + inWords(asset.ResOccPerc) + " %" : std::string()},
        {"AssetDesc", asset.AssetDesc},
        {"DateAquired", dateInWords(asset.DateAquired)},
        {"DateSale", dateInWords(asset.DateSale)},
        {"OrigPurPrice", asset.OrigPurPrice},
        {"AcquiCost", asset.AcquiCost},
        {"AppVal", asset.AppVal},
        {"DeemVal", asset.DeemVal},
        {"ImproveMade", asset.ImproveMade},
        {"ImproveMadeBefore", asset.ImproveMadeBefore},
        {"SaleCost", asset.SaleCost},
        {"SellPrice", asset.SellPrice},
        {"LocForeign", placeInWords(asset)},
        {"CGTCOPMarSplit", isInCommunity ? "Yes" : "No"},
        {"DBProfitType", methodInWords(method, asset)},
        {"DBDays", method == GainMethod::timeApportioned ? " " : ""},
        {"PerShare", asset.PerShare},
        {"PerShareAns", shareShown(asset)},
        {"CapGain", asset.CapGain},
        {"ExclCOPSplit", asset.ExclCOPSplit == assessment::copSplit ? "Yes" : "No"},
        {"NotCounted", number > mostAssets ? "Not counted in the totals of the year, which take 1000 assets." : ""}};
}

/// The summary of the year; on all rows but the first its figures are 0 and its texts empty.
Row summary(const YearResults& results, const YearTotals& totals, bool isFirst) {
    const auto figure = [isFirst](double rand) { return isFirst ? rand : 0; };
    const auto words = [isFirst](const char* text) { return isFirst ? text : ""; };
    return {{"CapGain4250", figure(results.num4250CapGain)},
            {"CapGain4251", figure(results.num4251CapGain)},
            {"ForeignCapGain4252", figure(results.num4252ForeignCapGain)},
            {"ForeignCapGain4253", figure(results.num4253ForeignCapGain)},
            {"WTCGTTotal", figure(results.numWTCGTTotal)},
            {"CarryOverCapGain", figure(results.numCarryOverCapGain)},
            {"summary", words("Summary")},
            {"TPCapGain4250", words("Local                     Profit")},
            {"TLCapGain4251", words("                             Loss")},
            {"TPForeignCapGain4252", words("Foreign                  Profit")},
            {"TLForeignCapGain4253", words("                             Loss")},
            {"TWTCGTTotal", words("Capital Gain Added to Income")},
            {"TCarryOverCapGain", words("Capital Loss Carried Forward")},
            {"T4250", words("4250")},
            {"T4251", words("4251")},
            {"T4252", words("4252")},
            {"T4253", words("4253")},
            {"TaxYear", words(capitalGains2027.ends)},
            {"KnownGains", figure(totals.KnownGainTotal)},
            {"TotalGains", figure(totals.YearCapGain)}};
}

void feedAssets(datastore::PrintFeed& feed, const assessment::Assessment& record, const YearResults& results) {
    const YearTotals totals = yearTotals(record.capitalGains);
    feed.clear("CGTDetails");
    for (std::size_t number = 1; const CGTAssetRecord& asset : record.capitalGains.assets) {
        Row row = assetRow(asset, number, record.details.CMaritalStat == communityOfProperty);
        for (datastore::Field& field : summary(results, totals, number == 1))
            row.push_back(std::move(field));
        feed.add("CGTDetails", row);
        ++number;
    }
}

Row itemRow(const CGTTrustRow& row, int number) {
    return {{"CGTNum", number},
            {"Source", row.source},
            {"COP Split", isYes(row.copSplit) ? "Yes" : "No"},
            {"Base Cost", itemAmount(row.baseCost)},
            {"Proceeds", itemAmount(row.Proceeds)},
            {"Amount", itemAmount(row.Amount)},
            {"ExclCOPSplit", isYes(row.ExclCOPSplit) ? "Yes" : "No"}};
}

void feedItems(datastore::PrintFeed& feed, const std::vector<CGTTrustRow>& items) {
    feed.add("CGTTrustOtherItemise", {{"NewGrid", "Itemised gains and losses, rand"},
                                      {"CGTNum", 1},
                                      {"Source", "Trust or Other Source"},
                                      {"COP Split", "Foreign ?"},
                                      {"Base Cost", "Base Cost"},
                                      {"Proceeds", "Proceeds"},
                                      {"Amount", "Gain/Loss"},
                                      {"ExclCOPSplit", "COP Split?"}});
    double total = 0;
    for (int number = 2; const CGTTrustRow& item : items) {
        Row row = itemRow(item, number++);
        total += item.Amount;
        if (&item == &items.back()) {
            row.emplace_back("TotalText", "Total before any split");
            row.emplace_back("Total", itemAmount(total));
        }
        feed.add("CGTTrustOtherItemise", row);
    }
}

void feedKnownGains(datastore::PrintFeed& feed, const assessment::Assessment& record, int CurrentAsset) {
    const CapitalGains& gains = record.capitalGains;
    std::string payer = record.client.Name;
    double known = gains.AdditCapGainLocal + gains.AdditCapGainForeign;
    const auto shown = static_cast<std::size_t>(CurrentAsset);
    if (shown > 0 && shown <= gains.assets.size() && gains.assets[shown - 1].ExclCOPSplit == assessment::copSplit) {
        const double alreadySplit = gains.ExclCOPAdditCapGainLocal + gains.ExclCOPAdditCapGainForeign;
        payer += "     Total has been calculated C.O.P. Split & exclusions.";
        known = (known - alreadySplit) / 2 + alreadySplit;
    }
    feed.replace("CGTTrustOtherDetails", {{"TaxPayerName", payer}, {"AdditCapGain", known}});
    feed.clear("CGTTrustOtherItemise");
    if (gains.ItemiseAdditCapGain == 1) feedItems(feed, gains.trustOther);
}

} // namespace

std::vector<datastore::Printout> feedCapitalGains(const std::filesystem::path& printDbPath,
                                                  const assessment::Assessment& record,
                                                  const CapitalGainReportOptions& options) {
    std::vector<datastore::Printout> printouts;
    const bool hasAssets = !record.capitalGains.assets.empty();
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    if (hasAssets) {
        feedAssets(feed, record, options.results);
        printouts.push_back({"\\CGTPrnt.rpt", "Capital Gains Tax - To export printout click on the suitcase button or "
                                              "goto Marlowbeck Help"});
    }
    if (options.knownGains && (hasAssets || hasKnownGains(record.capitalGains))) {
        feedKnownGains(feed, record, options.CurrentAsset);
        printouts.push_back({"\\cgtoinc.rpt", "Capital Gains from Trusts and Other Sources - To export printout click "
                                              "on the suitcase button or goto Marlowbeck Help"});
    }
    if (!printouts.empty()) feed.commit();
    return printouts;
}

} // namespace tax
