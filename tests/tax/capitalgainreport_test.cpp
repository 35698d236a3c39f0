#include "reports/layout_support.h"
#include "reports/report_support.h"
#include "tax/capitalgainlist.h"
#include "tax/capitalgainreports.h"

using namespace reporttest;
using assessment::Assessment;
using assessment::CGTAssetRecord;

namespace {

class CapitalGainReport : public ReportTest {
protected:
    /// What is printed, each report under the name of its definition.
    QString printed(const Assessment& record, bool knownGains, int CurrentAsset = 1) {
        QString all;
        const tax::YearResults results{1.25, 2.5, 3.75, 4.5, 5.25, -6.5};
        for (const auto& printout : tax::feedCapitalGains(print, record, {results, CurrentAsset, knownGains})) {
            const auto report = engine.prepare(QString::fromStdString(printout.definition));
            expectSound(report->layout);
            all += QString::fromStdString(printout.definition) + textOfPdf(reports::toPdf(*report)).simplified();
        }
        return all;
    }
    std::string rows(const std::string& sql) const { return storetest::rowsOf(print, sql); }
};

/// A split small business with an odd figure in every field, and further assets with each of the other words.
Assessment disposals() {
    CGTAssetRecord shop = assessment::newAsset();
    shop.CGTAsset = "SB", shop.AssetDesc = "\"O'Brien & <Seun>\", Ṱhohoyanḓou, with vans";
    shop.DateAquired = 33512, shop.DateSale = 46112, shop.OrigPurPrice = 200000.25, shop.SellPrice = 900000.5;
    shop.AcquiCost = 1.5, shop.ImproveMadeBefore = 2.5, shop.ImproveMade = 3.5, shop.SaleCost = 4.5;
    shop.PerShare = 62.625, shop.ExclCOPSplit = 2, shop.SBFiveDed = "Yes", shop.SB750PortDed = 10.5;
    CGTAssetRecord house = shop, flat = shop, fund = shop, farm = shop;
    house.CGTAsset = "PR", house.Size = 2.25, house.LocForeign = 2;
    flat.CGTAsset = "OA", flat.DateAquired = base::NoDate, flat.LocForeign = 0, flat.ExclCOPSplit = 1;
    fund.CGTAsset = "UT", fund.OrigPurPrice = 1e6, fund.AppVal = 500000.75;
    farm.CGTAsset = "?", farm.DateSale = base::NoDate;
    CGTAssetRecord typed = fund;
    typed.CapGainUser = 77.5;
    Assessment record;
    record.client.Name = "Prof. Dr. M.-L. Ṱhoho-Nḓou van der Westhuizen-Êksteen";
    record.details.CMaritalStat = 4;
    record.capitalGains.assets = {shop, house, flat, fund, typed, farm};
    for (CGTAssetRecord& asset : record.capitalGains.assets)
        tax::workOut(asset);
    record.capitalGains.AdditCapGainForeign = 8.5;
    return record;
}

TEST_F(CapitalGainReport, EachAssetHasItsRowAndTheFirstTheSummary) {
    const QString text = printed(disposals(), false);
    EXPECT_EQ(
        rows("SELECT * FROM CGTDetails LIMIT 1"),
        "1|Small business|Qualifies for S.B. R 10.5 deduction : Yes|||\"O'Brien & <Seun>\", Ṱhohoyanḓou, with vans|"
        "01/10/1991|31/03/2026|200000.25|1.5|0|399997.39305151033|3.5|2.5|4.5|900000.5|Local|Yes|"
        "(Using time apportioned method)| |62.625|31.3125|156550.46786324581|Yes|1.25|2.5|3.75|4.5|5.25|-6.5|"
        "Summary|Local                     Profit|                             Loss|"
        "Foreign                  Profit|                             Loss|Capital Gain Added to Income|"
        "Capital Loss Carried Forward|4250|4251|4252|4253|February 2027|8.5|156636.46786324581|");
    EXPECT_EQ(rows("SELECT sum(TotalGains), max(summary || T4250) FROM CGTDetails WHERE CGTAssetNum > 1"), "0|");
    EXPECT_EQ(rows("SELECT group_concat(DBProfitType LIKE '%exists.') FROM CGTDetails"), "0,0,0,1,0,0");
    expectWords(
        text,
        {"tax year to February 2027 Summary", "4250 Local Profit 1.25 4251 Loss 2.50 4252 Foreign Profit",
         "sources 8.50", "Carried Forward −6.50 Capital Gain Added to Income 5.25", "on 31.3125 %",
         "1 \"O'Brien & <Seun>\", Ṱhohoyanḓou, with vans Rand", "Residency period 100 %",
         "Primary residence Foreign Size : 2.25 hectares", "stocks & shares Local", "Date of sale __/__",
         "Other asset etc. Date acquired __/__/____", "property No Share", "(Using 80% rule method)",
         "(Asset held in stock - not yet disposed of) 3 ",
         "in the Act, zero Capital Gain probably exists. Your manually entered Capital Gain amount has been used."});
    EXPECT_FALSE(text.contains("cgtoinc"));
    Assessment many;
    many.capitalGains.assets.resize(1001);
    EXPECT_EQ(tax::feedCapitalGains(print, many, {{}, 1, true}).size(), 2U);
    EXPECT_EQ(rows("SELECT CGTAssetNum FROM CGTDetails WHERE NotCounted <> ''"), "1001");
}

TEST_F(CapitalGainReport, KnownGainsFollowTheAssetsOrStandAlone) {
    Assessment record = disposals();
    tax::takeItemisedGains(record.capitalGains, {{"Family trust", "No", 1234567.5, 0, 20, "Yes"},
                                                 {"Shares & <b>", "Yes", -1000, 3000, 2000, "No"}});
    expectWords(printed(record, true), {"CGTPrnt", "cgtoinc", "Known capital gain or loss R 616 783.75",
                                        "Total before any split 1 233 567.50"});
    EXPECT_EQ(rows("SELECT * FROM CGTTrustOtherDetails"),
              record.client.Name + "     Total has been calculated C.O.P. Split & exclusions.|616783.75");
    EXPECT_EQ(rows("SELECT CGTNum, Source, [COP Split], [Base Cost], Proceeds, Amount, ExclCOPSplit FROM "
                   "CGTTrustOtherItemise"),
              "1|Trust or Other Source|Foreign ?|Base Cost|Proceeds|Gain/Loss|COP Split?\n"
              "2|Family trust|No||20|1 234 567.50|Yes\n3|Shares & <b>|Yes|3 000|2 000|-1 000|No");
    record.capitalGains.assets.clear();
    expectWords(printed(record, true, 0), {"cgtoinc", "616 283.75"}, {"CGTPrnt", "C.O.P."});
    EXPECT_EQ(printed(record, false, 0) + printed(Assessment(), true, 0), "");
}

} // namespace
