#include <gtest/gtest.h>

#include "reports/previewwindow.h"
#include "reports/report.h"
#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

class InvestCompScreen : public testing::Test {
protected:
    InvestCompScreen() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.menu("mnuInvestComp");
    }
    RunningProgram run;
};

TEST_F(InvestCompScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    EXPECT_EQ(run.record().changed.InvestCompChanged, 0);
    EXPECT_EQ(run.shown("txtName"), "Ms T. Ṱhoho-Nḓou");
    run.type("numAge", "66.5");
    EXPECT_EQ(run.record().changed.InvestCompChanged, 1) << "the age is quick tax's, and an edit here";
    EXPECT_EQ(run.record().changed.KwikTaxChanged, 0);
    run.typeAll("numCTaxInc 240000.25, numCTaxFreeI 12000.5, numAnnAmount 900000.75, numMonTFAnn 3000.5, "
                "numMonTAnn 5000.25, numFDAmount 1000000.5, numFXInt 8.125");
    run.type("txtAnnDet", "Guaranteed for ten years");
    run.type("txtFXDet", "12 months, Nḓou Bank");
    const assessment::InvestComparison typed{12000.5, 240000.25, 900000.75, "Guaranteed for ten years", 3000.5,
                                             5000.25, 1000000.5, 8.125,     "12 months, Nḓou Bank"};
    EXPECT_EQ(run.record().comparison, typed);
    EXPECT_EQ(run.record().tax.Age, 66.5);
    EXPECT_EQ(run.shown("txtAns"), "") << "until it is asked for";
    EXPECT_TRUE(run.control("txtAns")->font().italic()) << "out of date";
    run.click("cmdCalculate");
    EXPECT_FALSE(run.control("txtAns")->font().italic());
    run.expectShown("numTotMon 8 000.75, numLessMonAnn 1 266.07, numMonAfterAnn 6 734.68, numFXMonInc 6 770.84, "
                    "numFXLessTax 1 238.93, numFXMonAftTax 5 531.91");
    const QString sentence = "Only a fixed deposit rate of 10.1 %p.a. would beat the annuity!";
    EXPECT_EQ(run.shown("txtAns"), sentence);
    EXPECT_TRUE(run.desk.boxes.empty()) << "a line, never a box";
    run.click("cmdPrint");
    run.record().tax.Age = 50; // quick tax changes the age while the panel is open
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT Name, Age, CTaxFreeI, CTaxInc, AnnAmount, AnnDet, MonTFAnn, MonTAnn, TotMon, "
                          "printf('%.4f|%.4f', LessMonAnn, MonAfterAnn), FDAmount, FXInt, FXDet, "
                          "printf('%.4f|%.4f|%.4f|%.3f', FXMonInc, FXLessTax, FXMonAftTax, RATE), AgeAt, "
                          "TaxTablesUsed FROM InvComp"),
              "Ms T. Ṱhoho-Nḓou|50|12000.5|240000.25|900000.75|Guaranteed for ten years|3000.5|5000.25|8000.75|"
              "1266.0667|6734.6833|1000000.5|8.125|12 months, Nḓou Bank|6770.8367|1470.7634|5300.0733|"
              "10.525|Age at 28 February 2027|Tax tables for the tax year ending February 2027");
    const QString page = reporttest::textOfPdf(run.program.reports().pdf("InvComp.rpt")).simplified();
    EXPECT_TRUE(page.contains("Only a fixed deposit rate of 10.5 %p.a. would beat")) << page.toStdString();
}

TEST_F(InvestCompScreen, FiguresBeyondAllReportsAreNotPrinted) {
    run.record().comparison.MonTAnn = 1e308;
    run.front()->refill();
    run.expectShown("numMonAfterAnn    Error, numFXMonInc    Error");
    run.click("cmdPrint");
    EXPECT_TRUE(run.program.reports().previews().empty());
    EXPECT_EQ(RunningProgram::focused(), "cmdOK");
}

} // namespace
