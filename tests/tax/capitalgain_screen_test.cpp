#include <gtest/gtest.h>

#include <QLabel>
#include <QRadioButton>

#include "assessment/newasset.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/editgrid.h"
#include "shell/running_program.h"

namespace {

using assessment::CGTAssetRecord;
using screenkit::Answer;
using shelltest::RunningProgram;

class CapitalGainScreen : public testing::Test {
protected:
    void open() { run.menu("mnuCapGainsTAx"); }
    assessment::CapitalGains& gains() { return run.record().capitalGains; }
    void add(const char* description, double bought, double sold) {
        CGTAssetRecord asset = assessment::newAsset();
        asset.AssetDesc = description;
        asset.CGTAssetNum = static_cast<std::int16_t>(gains().assets.size() + 1);
        asset.DateAquired = 40000;
        asset.DateSale = 46100;
        asset.OrigPurPrice = bought;
        asset.SellPrice = sold;
        gains().assets.push_back(asset);
    }
    std::string enabled(const QString& names) {
        QStringList on;
        for (const QString& name : names.split(' '))
            if (run.control(name)->isEnabled()) on << name;
        return on.join(' ').toStdString();
    }
    void pick(const char* option) { run.control<QRadioButton>(option)->click(); }
    RunningProgram run;
};

TEST_F(CapitalGainScreen, EveryControlHoldsItsFieldOfTheAssetShown) {
    open();
    run.typeAll("txtDescription Erf 12 Knysna, dtAquired 01/02/1995, numOrigPurPrice 100000.5, numAcquiCost 5000, "
                "numAppVal 250000, numDeemVal 7, dtSale 15/03/2026, numSellPrice 900000, numSaleCost 45000, "
                "numPerShare 50.125");
    pick("Option4(1)");
    run.typeAll("numSize 1.25, numResOccPerc 90, numImproveMadeBefore 20000, numImproveMade 30000");
    pick("optLocForeign(1)");
    pick("optExclCOPSplit(1)");
    run.click("cmdCalculate");
    const CGTAssetRecord& asset = gains().assets.at(0);
    EXPECT_EQ(asset.AssetDesc + "|" + asset.CGTAsset, "Erf 12 Knysna|PR");
    EXPECT_EQ(
        (std::vector{asset.Size, asset.ResOccPerc, asset.DateAquired, asset.OrigPurPrice, asset.AcquiCost, asset.AppVal,
                     asset.ImproveMade, asset.ImproveMadeBefore, asset.SaleCost, asset.DateSale, asset.SellPrice,
                     asset.PerShare}),
        (std::vector<double>{1.25, 90, 34731, 100000.5, 5000, 250000, 30000, 20000, 45000, 46096, 900000, 50.125}));
    EXPECT_EQ(asset.LocForeign * 10 + asset.ExclCOPSplit, 22);
    EXPECT_EQ(run.record().changed.CGTChanged, 1);
    // 575 000 against the appraised value, all of its residence part excluded: 57 500 at half of 50.125 %.
    run.expectShown("numPerShareAns 25.062, numDeemVal 0.00, numCapGain 14 410.94, numTotCapGain 14 410.94");
    EXPECT_EQ(run.control<QLabel>("lblGainMethod")->text(), "(Using appraised value method)");
    pick("Option4(2)");
    pick("Option5(1)");
    run.type("numSB750PortDed", "1234.5");
    EXPECT_EQ(asset.SBFiveDed, "Yes");
    EXPECT_EQ(asset.SB750PortDed, 1234.5);
    run.typeAll("numAdditionalCapGain 1000, numAdditionalCapGainForeign 2000.5, sidbEdit1 -300");
    EXPECT_EQ((std::vector{gains().AdditCapGainLocal, gains().AdditCapGainForeign, gains().CarryOverCapGainPrev}),
              (std::vector<double>{1000, 2000.5, -300}));
    run.typeAll("numAppVal 500000, numOrigPurPrice 900000, numSellPrice 800000"); // between value and cost
    EXPECT_FALSE(run.control("Text5")->isVisible());
    run.click("cmdCalculate");
    EXPECT_TRUE(run.control("Text5")->isVisible());
    run.type("numCapGainUser", "4321");
    run.click("cmdCalculate");
    EXPECT_EQ(asset.CapGain, 4321);
}

TEST_F(CapitalGainScreen, OnlyWhatTheAssetAllowsCanBeEntered) {
    open();
    const QString buttons = "cmdAdd cmdDelete cmdBack cmdForward cmdCalculate cmdSummary cmdPrint cmdOK cmdItemise";
    EXPECT_EQ(enabled(buttons + " numAdditionalCapGain sidbEdit1 txtDescription numSellPrice optLocForeign"),
              "cmdAdd cmdOK cmdItemise numAdditionalCapGain sidbEdit1 txtDescription");
    run.type("numAdditionalCapGain", "1");
    EXPECT_EQ(enabled(buttons), "cmdAdd cmdCalculate cmdSummary cmdPrint cmdOK cmdItemise");
    run.type("numAdditionalCapGain", "0");
    run.click("cmdAdd");
    EXPECT_EQ(gains().assets.size(), 0U);
    run.enter("txtDescription", "S");
    EXPECT_EQ(run.front()->windowTitle(), "Capital Gains Tax Calculator For Natural Person:  Asset number 1 of 1");
    EXPECT_EQ(enabled(buttons), "cmdAdd cmdCalculate cmdSummary cmdPrint cmdOK cmdItemise");
    const QString fields = "numSize numResOccPerc numDeemVal numAppVal numImproveMade numImproveMadeBefore Option5 "
                           "numSB750PortDed";
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Option4(0)", "", "numDeemVal numAppVal"},
        {"Option4(1)", "", "numSize numResOccPerc numDeemVal numAppVal numImproveMade numImproveMadeBefore"},
        {"Option4(2)", "", "numDeemVal numAppVal numImproveMade numImproveMadeBefore Option5 numSB750PortDed"},
        {"Option4(3)", "30/09/2001", "numDeemVal numAppVal numImproveMade numImproveMadeBefore"},
        {"Option4(3)", "01/10/2001", "numDeemVal numImproveMade"},
    };
    for (const auto& [type, acquired, allowed] : cases) {
        pick(type);
        run.type("dtAquired", acquired);
        EXPECT_EQ(enabled(fields), allowed) << type << acquired;
    }
    EXPECT_EQ(gains().assets.at(0).CGTAsset, "OA");
}

TEST_F(CapitalGainScreen, DatesSharesAndLossesAreChecked) {
    add("Shares", 100, 200);
    run.menu("mnuQuickTax");
    open();
    run.expectRefused("dtSale", "28/02/2026",
                      "The date entered is out of range! \nPlease enter a date that is after the \nDate acquired "
                      "(06/07/2009) and after 01/03/2026",
                      "Date out of range");
    run.type("dtSale", "01/03/2026");
    run.expectRefused("dtAquired", "02/03/2026",
                      "The date entered is out of range please enter a date before 01/03/2026", "Incorrect Date");
    run.type("dtAquired", "01/03/2026");
    run.expectRefused("dtAquired", "nonsense",
                      "The date entered is not valid please enter a date using the dd/mm/yyyy format.", "Invalid Date");
    EXPECT_EQ(gains().assets[0].DateAquired, 46082) << "a refused date never reaches the record";
    run.desk.expect(Answer::ok);
    auto* other = run.screen("frmKwikTax")->parentWidget();
    QTest::mouseClick(other, Qt::LeftButton, {}, {40, 4}); // the other window's title
    RunningProgram::settle();
    EXPECT_EQ(run.front()->objectName(), "frmKwikTax");
    EXPECT_EQ(gains().assets[0].DateAquired, base::NoDate);
    open();
    run.expectShown("dtAquired ");
    run.expectRefused("numPerShare", "100.5", "Only a maximum of 100% can be entered!", "Marlowbeck");
    run.type("numPerShare", "100");
    run.expectRefused("sidbEdit1", "5", "Only negative numbers can be entered here.", "Wrong Value");
    run.click("cmdOK");
    EXPECT_FALSE(run.isOpen("frmCGTCalcIncome")) << "told once, and never held up";
    EXPECT_EQ(gains().CarryOverCapGainPrev, 0);
}

TEST_F(CapitalGainScreen, AssetsAreAddedLeafedAndDeleted) {
    add("One", 100000, 160000);
    add("Two", 100000, 190000);
    gains().assets[0].SBFiveDed = "Yes";
    open();
    EXPECT_EQ(gains().assets[0].CapGain, 60000) << "worked out when it is shown";
    run.type("numSellPrice", "170000");
    run.click("cmdBack"); // round to the last
    run.expectShown("txtDescription Two, numCapGain 90 000.00, numTotCapGain 160 000.00");
    EXPECT_EQ(gains().assets[0].CapGain, 70000) << "worked out when it was left";
    run.click("cmdForward");
    run.expectShown("txtDescription One");
    run.click("cmdForward");
    run.click("cmdAdd");
    EXPECT_EQ(run.front()->windowTitle(), "Capital Gains Tax Calculator For Natural Person:  Asset number 3 of 3");
    EXPECT_EQ(RunningProgram::focused(), "txtDescription");
    run.click("cmdOK");
    EXPECT_EQ(gains().assets.size(), 2U) << "an empty last asset would blank the year";
    run.record().changed.CGTChanged = 0;
    open();
    run.click("cmdForward");
    EXPECT_EQ(run.record().changed.CGTChanged, 0);
    run.click("cmdDelete");
    EXPECT_EQ(run.record().changed.CGTChanged, 1);
    ASSERT_EQ(gains().assets.size(), 1U);
    EXPECT_EQ(gains().assets[0].SBFiveDed, "");
    run.expectShown("txtDescription One");
}

TEST_F(CapitalGainScreen, ItemisedGainsAndTheYearReachSummaryAndReports) {
    open();
    run.click("cmdPrint"); // greyed: nothing to print
    EXPECT_FALSE(run.control("Frame4")->isVisible());
    run.click("cmdItemise");
    auto* grid = run.control<screenkit::EditGrid>("grdItemise");
    const auto enter = [&](const char* text) {
        for (const QChar letter : QString(text)) // the first letter opens the cell
            RunningProgram::keys(QApplication::focusWidget(), QString(letter));
        RunningProgram::key(Qt::Key_Tab);
    };
    for (const char* text : {"Coronation", "", "1000", "5000", "100000", "y"})
        enter(text);
    for (const char* text : {"Offshore trust", "Y", "", "", "60000"})
        enter(text);
    run.desk.expect(Answer::ok);
    enter("x");
    EXPECT_EQ(run.desk.last().text, "Please enter a Y or N !");
    enter("no");
    grid->deleteRow(); // the blank row that was offered next
    run.click("cmdOKItemise");
    run.expectShown("numAdditionalCapGain 50 000.00, numAdditionalCapGainForeign 60 000.00, numTotCapGain 110 000.00");
    EXPECT_EQ(gains().ItemiseAdditCapGain, 1);
    EXPECT_EQ(gains().trustOther.at(1).copSplit + gains().trustOther.at(0).ExclCOPSplit, "YesYes");
    EXPECT_TRUE(run.control<QLineEdit>("numAdditionalCapGain")->isReadOnly());
    run.type("sidbEdit1", "-10000");
    run.click("cmdSummary");
    run.expectShown("num4250CapGain 50 000.00, num4251CapGain 0.00, num4252ForeignCapGain 60 000.00, "
                    "num4253ForeignCapGain 0.00, numWTCGTTotal 20 000.00, numCarryOverCapGain 0.00");
    run.click("cmdOkSummary");
    run.click("cmdPrint");
    run.desk.expect(Answer::ok);
    run.click("cmdVR");
    EXPECT_EQ(run.desk.last().text, "No Data found to Print !");
    run.click("cmdPrint");
    run.click("Check4");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT Source, [COP Split], Amount FROM CGTTrustOtherItemise WHERE CGTNum = 3"),
              "Offshore trust|Yes|60 000");
    EXPECT_EQ(run.program.reports().previews().size(), 1U);
}

} // namespace
