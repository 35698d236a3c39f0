#include "tax/capitalgain.h"

#include <gtest/gtest.h>

#include "tax/capitalgainlist.h"

// The figures were worked out by another program, written before this one, or by hand where a comment shows how.
namespace {

using namespace tax;
using assessment::CapitalGains;
using assessment::CGTAssetRecord;
using base::NoDate;

constexpr double sold = 46112; // 31 March 2026
constexpr double million = 1000000;

TEST(CapitalGain, FindsTheMethodByDatesAndAmounts) {
    const struct {
        const char* type;
        double bought, price, cost, appraised, improvedBefore, improved, saleCost, proceeds, sale;
        int method;
        double gain, DeemVal;
    } cases[] = {
        {"OA", 37163, 0, 0, 500000, 0, 50000, 10000, 900000, sold, 1, 340000, 0},
        {"UT", 37163, 0, 0, 500000, 0, 50000, 10000, 900000, sold, 1, 390000, 0}, // not improved
        {"OA", NoDate, 0, 0, 500000, 0, 0, 0, 900000, sold, 1, 400000, 0},        // no date counts as before
        {"OA", 37164, 100000, 5000, 500000, 70000, 50000, 10000, 900000, sold, 4, 735000, 0}, // 30 September 2001
        {"UT", 37164, 0, 5000, 0, 0, 50000, 10000, 900000, sold, 4, 885000, 0},
        {"UT", 30000, 1000000, 0, 500000, 0, 390000, 10000, 900000, sold, 1, 390000, 0}, // improvements leave the value
        {"UT", 30000, 1000000, 0, 500000, 0, 389999, 10000, 900000, sold, 5, 12345, 0},  // above value, below price
        {"OA", 30000, 900000, 0, 500000, 0, 0, 0, 900000, sold, 1, 400000, 0},           // not below the price
        {"OA", 30000, -5, 0, -1, 0, 0, 0, 900000, sold, 0, 0, 0},
        {"OA", 30000, 0, 10000, 0, 20000, 30000, 40000, 1000000, sold, 3, 720000, 0}, // no price
        {"OA", NoDate, 100000, 0, 0, 0, 0, 0, 1000000, sold, 3, 800000, 0},           // no date
        {"OA", 30000, 0, 0, 500000, 0, 0, 0, 900000, NoDate, 0, 0, 7},                // an unsold one keeps its value
        // 250 000 cost; 950 000 * 250 / 350 = 678 571.43 proceeds; 10 years before and 25 after
        {"OA", 33512, 200000, 10000, 0, 40000, 100000, 50000, 1000000, sold, 2, 477551.020408, 372448.979592},
        {"UT", 33512, 200000, 10000, 0, 40000, 100000, 50000, 1000000, sold, 2, 428571.428571, 421428.571429},
        {"UT", 33512, 200000, 0, 0, 0, 100000, 0, 1000000, sold, 2, 471428.571429, 428571.428571},
        {"OA", 29858, 200000, 0, 0, 1, 0, 0, 1000000, sold, 2, 444443.888889, 555556.111111},  // 20 years before
        {"OA", 29858, 200000, 0, 0, 0, 0, 0, 1000000, sold, 2, 434782.608696, 565217.391304},  // 21
        {"OA", 33511, 200000, 0, 0, 0, 0, 0, 1000000, 45930, 2, 548571.428571, 451428.571429}, // 11 and 24
        {"OA", 33512, 200000, 0, 0, 0, 0, 5000000, 1000000, sold, 2, -3000000, 0},   // the value is -1 000 000
        {"OA", 37163, 200000, 0, 0, 0, 0, 0, 1000000, 36798, 2, 800000, 200000},     // 1 year and -1
        {"OA", 33512, 200000, -200000, 0, 0, 0, 50000, 1000000, sold, 2, 950000, 0}, // no cost at all
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        CGTAssetRecord asset = assessment::newAsset();
        asset.CGTAsset = c.type, asset.DateAquired = c.bought, asset.DateSale = c.sale, asset.SellPrice = c.proceeds;
        asset.OrigPurPrice = c.price, asset.AcquiCost = c.cost, asset.AppVal = c.appraised, asset.DeemVal = 7;
        asset.ImproveMadeBefore = c.improvedBefore, asset.ImproveMade = c.improved, asset.SaleCost = c.saleCost;
        asset.CapGainUser = 12345, asset.PerShare = c.method == 5 ? 50 : 100; // a typed gain takes no notice of it
        EXPECT_EQ(static_cast<int>(workOut(asset).method), c.method);
        EXPECT_NEAR(asset.ProfitDisp, c.gain, 1e-6);
        EXPECT_EQ(asset.CapGain, asset.ProfitDisp);
        EXPECT_NEAR(asset.DeemVal, c.DeemVal, 1e-6);
    }
}

/// A disposal with that gain, in millions, bought after the valuation or, if its cost is unknown, by the 20 % rule.
CGTAssetRecord disposal(const char* type, double gain, bool isKnownCost = true) {
    CGTAssetRecord asset = assessment::newAsset();
    asset.CGTAsset = type, asset.AssetDesc = "Disposal", asset.DateSale = sold;
    asset.DateAquired = isKnownCost ? 40000 : NoDate;
    asset.SellPrice = isKnownCost ? 90 * million : gain * million / 0.8;
    asset.OrigPurPrice = isKnownCost ? 90 * million - gain * million : 0;
    return asset;
}

TEST(CapitalGain, TakesTheShareAndTheExclusions) {
    const struct {
        const char* type;
        double gain, hectares, lived, share;
        std::int16_t split;
        const char* deducts;
        double after;
        bool isKnownCost = true;
    } cases[] = {
        {"UT", 1, 0, 100, 50, 2, "", 0.25},     {"OA", -1, 0, 100, 100, 2, "", -0.5},
        {"OA", 1, 0, 100, 150, 1, "", 1},       {"OA", 1, 0, 100, 40, 1, "", 0.4},
        {"", 1, 0, 100, 50, 2, "", 1},          {"UT", 1, 0, 100, 50, 0, "", 1},
        {"SB", 2, 0, 100, 50, 1, "Yes", 0},     {"SB", 5, 0, 100, 100, 2, "Yes", 0.7}, // 1.8 off, never halved
        {"SB", 2, 0, 100, 100, 2, "No", 1},     {"SB", 2, 0, 100, 100, 2, "", 2},
        {"SB", -2, 0, 100, 100, 2, "Yes", -1},  {"PR", 3.6, 2, 100, 100, 1, "", 0.6},
        {"PR", 1.5, 0, 100, 100, 2, "", 0},     {"PR", 5, 2, 100, 100, 2, "", 1.5}, // 1 off, not 1.5
        {"PR", 5, 0, 100, 50, 2, "", 0.5},      {"PR", 5, 0, 100, 50, 1, "", 1},
        {"PR", 5, 0, 100, 50, 0, "", 5},        {"PR", 1, 0, 100, 50, 2, "", 0},
        {"PR", -4, 0, 100, 50, 2, "", -1},      {"PR", 4, 0, 50, 100, 2, "", 1, false},
        {"PR", 3.75, 0, 80, 100, 2, "", 0.375}, {"PR", 5, 0, 80, 100, 1, "", 2}, // 4 - 3 lived in, and the other 1
        {"PR", -5, 0, 80, 100, 1, "", -2},      {"PR", -3.75, 4, 80, 50, 1, "", -1.125},
        {"PR", 5, 0, 80, 50, 0, "", 2},         {"PR", 5, 4, 80, 100, 0, "", 5},
        {"PR", 7, 4, 50, 50, 2, "", 1},         {"PR", 5, 4, 80, 100, 1, "", 2}, // 2 - 3 on two hectares, 2 beyond, 1
        {"PR", -5, 4, 80, 100, 2, "", -1},      {"PR", 3.75, 4, 80, 50, 1, "", 1.125},
        {"PR", 5, 2.5, 100, 100, 1, "", 2},     {"PR", 5, 4, 100, 100, 2, "", 1.25},
        {"PR", 10, 4, 100, 40, 2, "", 1.4},     {"PR", -10, 4, 50, 100, 1, "", -7},
        {"PR", 4, 4, 50, 100, 1, "", 2, false}, {"PR", -4, 4, 50, 100, 1, "", -4, false},
        {"PR", -12, 4, 100, 100, 1, "", -9},    {"PR", -10, 4, 100, 100, 1, "", -5},   // 5 - 3 on two hectares: no loss
        {"PR", -10, 4, 100, 100, 0, "", -10},   {"PR", -60, 4, 100, 50, 2, "", -13.5}, // 7.5 - 1.5, the unsplit share
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        CGTAssetRecord asset = disposal(c.type, c.gain, c.isKnownCost);
        asset.Size = c.hectares, asset.ResOccPerc = c.lived, asset.PerShare = c.share, asset.SBFiveDed = c.deducts;
        asset.ExclCOPSplit = c.split;
        const AssetGain gain = CGTCALC(asset);
        EXPECT_NEAR(gain.CapGain, c.after * million, 1e-6);
        EXPECT_NEAR(gain.ProfitDisp, c.gain * million, 1e-6);
    }
}

TEST(CapitalGain, AResidenceSoldForTheExclusionHasNoGainWhateverItsLand) {
    CGTAssetRecord house = disposal("PR", -1);
    for (const auto& [price, lived, method] :
         {std::tuple(3 * million, 100., 0), {3 * million + 1, 100., 4}, {3 * million, 99.9, 4}}) {
        house.SellPrice = price, house.ResOccPerc = lived, house.OrigPurPrice = 0, house.Size = 30;
        const AssetGain gain = workOut(house);
        EXPECT_EQ(static_cast<int>(gain.method), method);
        EXPECT_EQ(gain.CapGain == 0, gain.exclusion == GainExclusion::wholeResidence);
        EXPECT_EQ(gain.ProfitDisp, price); // still declared
    }
    const double before = house.CapGain;
    house.OrigPurPrice = -1e308, house.SellPrice = 1e308; // a gain that no file can hold
    workOut(house);
    EXPECT_EQ(house.CapGain, before);
}

/// One local asset and one foreign, as worked out before.
CapitalGains year(double local, double localProfit, double foreign, double broughtForward) {
    CapitalGains gains;
    gains.assets = {disposal("OA", 0), disposal("OA", 0)};
    gains.assets[0].CapGain = local, gains.assets[0].ProfitDisp = localProfit;
    gains.assets[1].CapGain = gains.assets[1].ProfitDisp = foreign, gains.assets[1].LocForeign = 2;
    gains.CarryOverCapGainPrev = broughtForward;
    return gains;
}

void expectResults(const CapitalGains& gains, std::int16_t Deceased, const YearResults& e) {
    const YearResults shownBefore{1, 2, 3, 4, 5, 6};
    const YearResults f = CGTTotalCalc(annualGain(gains, yearTotals(gains), Deceased), shownBefore);
    EXPECT_EQ(f, e) << testing::PrintToString(std::vector{f.num4250CapGain, f.num4251CapGain, f.numCarryOverCapGain});
    EXPECT_FALSE(std::signbit(f.num4251CapGain) || std::signbit(f.num4253ForeignCapGain)); // no "-0"
}

TEST(CapitalGainYear, AddsThePartAboveTheExclusionToIncome) {
    const struct {
        double local, localProfit, foreign, broughtForward;
        std::int16_t Deceased;
        YearResults results;
    } cases[] = {
        {49999.5, 0.5, 0.5, -7, 0, {0.5, 0, 0.5, 0, 0, -7}},
        {-50000, -60000, 0, 0, 0, {0, 60000, 0, 0, 0, 0}},
        {40000, 1600000, 10001, 0, 0, {1600000, 0, 10001, 0, 0.4, 0}},
        {-70000, -70000, -1, -30, 0, {0, 70000, 0, 1, 0, -20031}},
        {100000, 100000, 0, -60000, 0, {0, 0, 0, 0, 0, -10000}},
        {90000, 90000, 0, -40000, 0, {1, 2, 3, 4, 5, 0}}, // just used up: all but the loss stay
        {440000, 440000, 0, 0, 1, {440000, 0, 0, 0, 0, 0}},
        {-440001, -440001, 0, 0, 1, {0, 440001, 0, 0, 0, -1}},
        {440010, 440010, 0, 0, 1, {440010, 0, 0, 0, 4, 0}},
        {90000, 90000, 0, 0, 2, {1, 2, 3, 4, 5, 6}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        expectResults(year(c.local, c.localProfit, c.foreign, c.broughtForward), c.Deceased, c.results);
    }
}

TEST(CapitalGainYear, TheLastAssetDecidesUnlessThereAreKnownGains) {
    CapitalGains gains = year(90000, 90000, 0, -40000);
    gains.assets[0].AssetDesc.clear();
    expectResults(gains, 0, {}); // the first asset blanks what then stays
    gains.assets[1].AssetDesc.clear();
    expectResults(gains, 0, {0, 0, 0, 0, 0, -40000});
    gains.AdditCapGainForeign = 10;
    expectResults(gains, 0, {90000, 0, 10, 0, 4, 0});
    gains.ItemiseAdditCapGain = 1, gains.AdditCapGainForeign = 0;
    expectResults(gains, 0, {1, 2, 3, 4, 5, 0});
    gains = CapitalGains();
    gains.CarryOverCapGainPrev = -900000;
    expectResults(gains, 0, {0, 0, 0, 0, 0, -900000});
    gains.AdditCapGainLocal = 550000, gains.AdditCapGainForeign = -10000; // declared alone, but not at death
    expectResults(gains, 0, {550000, 0, -10000, 0, 0, -410000});
    expectResults(gains, 1, {0, 0, 0, 0, 0, -800000});
    dropPositiveLoss(gains);
    EXPECT_EQ(gains.CarryOverCapGainPrev, -900000);
    gains.CarryOverCapGainPrev = 1;
    dropPositiveLoss(gains);
    EXPECT_EQ(gains.CarryOverCapGainPrev, 0);
}

TEST(CapitalGainYear, CountsTheFirstThousandAssetsByPlace) {
    CapitalGains gains;
    gains.assets.assign(1001, year(10, 20, 0, 0).assets[0]);
    gains.assets[0].LocForeign = 2, gains.assets[1].LocForeign = 0, gains.assets[2].ExclCOPSplit = 2;
    gains.AdditCapGainLocal = 5, gains.AdditCapGainForeign = 7;
    const YearTotals totals = yearTotals(gains);
    EXPECT_EQ(totals.YearCapGain, 9980 + 5 + 10 + 7);
    EXPECT_EQ(totals.YearLocalProfit, 998 * 20 + 5);
    EXPECT_EQ(totals.YearForeignProfit, 27);
    EXPECT_EQ(totals.YearFullGain, 9980 + 10 + 12);
    AssetList list(gains);
    EXPECT_EQ(list.notCounted(), 1);
    EXPECT_EQ(list.add(), AssetList::Added::full);
    list.back();
    EXPECT_EQ(list.CurrentAsset(), 1001);
}

TEST(CapitalGainList, GrowsAndShrinksAroundTheAssetShown) {
    CapitalGains gains;
    AssetList list(gains);
    list.remove();
    list.forward();
    EXPECT_FALSE(list.dropEmptyLast());
    EXPECT_EQ(list.add(), AssetList::Added::noDescription);
    EXPECT_EQ(list.CurrentAsset(), 0);
    list.describe("Flat");
    list.shown() = disposal("OA", 2);
    EXPECT_EQ(list.add(), AssetList::Added::yes);
    EXPECT_EQ(gains.assets[0].CapGain, 2 * million); // worked out when left
    EXPECT_EQ(list.add(), AssetList::Added::noDescription);
    list.describe("Shop");
    list.describe(""); // stays an asset, though nothing is in it any more
    EXPECT_EQ(list.shown().CGTAssetNum, 2);
    EXPECT_TRUE(list.dropEmptyLast());
    EXPECT_FALSE(list.dropEmptyLast());
    EXPECT_EQ(list.CurrentAsset(), 1);
    list.remove();
    EXPECT_EQ(list.shown(), assessment::newAsset());
    EXPECT_TRUE(gains.assets.empty());
    EXPECT_EQ(list.notCounted(), 0);
}

TEST(CapitalGainList, ADeletionClearsTheDeductionOfTheAssetsInFront) {
    CapitalGains gains;
    CGTAssetRecord shop = disposal("SB", 5);
    shop.SBFiveDed = "Yes";
    gains.assets.assign(4, shop);
    AssetList list(gains);
    list.back();
    list.back();
    gains.assets[3].SellPrice += million;
    list.remove();
    EXPECT_EQ(list.shown().CGTAssetNum, 3);
    EXPECT_EQ(list.shown().CapGain, 4.2 * million);
    EXPECT_EQ(gains.assets[1].CapGain, 0); // not visited since
    EXPECT_EQ(gains.assets[1].SBFiveDed + std::to_string(gains.assets[1].SB750PortDed), "0.000000");
    list.remove(); // the last one: the new last is shown
    EXPECT_EQ(list.CurrentAsset(), 2);
    list.shown().SellPrice += million;
    list.forward();
    EXPECT_EQ(list.CurrentAsset(), 1);
    EXPECT_EQ(list.ADDITCGTCALC().YearCapGain, 11 * million);
}

TEST(CapitalGainList, ItemisedGainsAreSummedByPlaceAndSplit) {
    CapitalGains gains;
    takeItemisedGains(gains, {{"A", "No", 100, 9, 9, "No"},
                              {"B", "", 10, 0, 0, "Yes"},
                              {"C", "Yes", 40, 0, 0, ""},
                              {"D", "1", 7, 0, 0, "1"}});
    EXPECT_EQ(gains.AdditCapGainLocal, 105);
    EXPECT_EQ(gains.AdditCapGainForeign, 43.5);
    EXPECT_EQ(gains.ExclCOPAdditCapGainLocal, 5);
    EXPECT_EQ(gains.ExclCOPAdditCapGainForeign, 3.5);
    EXPECT_EQ(gains.ItemiseAdditCapGain, 1);
    takeItemisedGains(gains, {{"A", "No", 100, 0, 0, "Yes"}, {"B", "No", -100, 0, 0, ""}});
    EXPECT_EQ(gains.AdditCapGainLocal, -50);
    EXPECT_EQ(gains.ItemiseAdditCapGain, 0); // unhalved they are nothing
    for (const auto& [stored, means] : {std::pair("Y", true), {" yes", true}, {"1", true}, {"nO", false}, {"", false}})
        EXPECT_EQ(isYes(stored), means) << stored;
}

} // namespace
