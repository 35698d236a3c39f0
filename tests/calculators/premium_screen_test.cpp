#include "analyses/nara_screen.h"

namespace {

using naratest::RunningProgram;
using screenkit::Answer;

const char* const block =
    "SELECT PremHeading, PremGRText, PremGR, PremPEscText, PremPEsc, ALTEMVText, ALTEMV, "
    "PremPeriodText, PremPeriod, PremAnsText, PremAns, PremColonText, PremPAText, PremYears FROM ";
const char* const blank = "||0||0||0||0||0|||";

class Premium : public naratest::NARA {
protected:
    /// Prints the analysis in front with its premium, and reads the block back.
    std::string printed(const std::string& table, bool included = true) {
        run.click("cmdPrint");
        if (run.control<QAbstractButton>("Check2")->isChecked() != included) run.click("Check2");
        run.click("cmdVR");
        return run.inPrint(block + table);
    }
    void openEducation() {
        run.menu("mnuNAEd");
        run.typeAll("numFundsPres 10000, numInflaRate 10, numYears 2, numPerRequired 3, numInvestRate 8");
    }
    assessment::CapitalPremiums& premiums() { return run.record().premiums; }
};

TEST_F(Premium, OfTheRetirementIsCarriedInAndComesBackIntoItsReport) {
    openFilled();
    EXPECT_EQ(printed("NARA"), blank) << "not solved yet";
    run.click("cmdPremium");
    ASSERT_EQ(run.front()->objectName(), "frmPremium");
    run.expectShown("numPremEmv 2 910 000.00, numPremPeriod 20, numPremGR 0.000, numPremPEsc 0.000, numPremAns 0.00");
    EXPECT_EQ(run.shown("txtAns"), "Please enter a growth rate and an investment period.");
    EXPECT_EQ(run.captionOf("numPremPEsc")->text().remove('&'), "Investment escalation");
    EXPECT_EQ(run.captionOf("numPremAns")->text(), "Approximate monthly investment");
    const auto flags = run.record().changed;
    run.type("numPremGR", "9.125");
    run.type("numPremPEsc", "5.5");
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().changed, flags) << "working values";
    EXPECT_EQ(run.shown("txtAns"), "");
    EXPECT_EQ(run.shown("numPremAns"), "2 472.00");
    run.click("cmdOK");
    EXPECT_EQ(printed("NARA"), "Premium Calculation (Using Unit Trust)|Growth rate|9.125|Investment escalation|5.5|"
                               "Maturity value required|2910000|Investment period |20|Approximate monthly investment|"
                               "2472|:|% p.a.|year/s");
    run.type("numMonIncPD", "10500"); // another capital
    EXPECT_EQ(printed("NARA"), blank);
    run.click("cmdPremium");
    EXPECT_EQ(run.shown("numPremGR"), "9.125");
    EXPECT_EQ(premiums().retirement.isSolved, 1) << "worked out at once";
    run.asked("mnuNewFile", Answer::no);
    EXPECT_FALSE(run.isOpen("frmPremium"));
    EXPECT_EQ(premiums(), assessment::CapitalPremiums());
}

TEST_F(Premium, OfTheEducationHasItsOwnRatesAndWords) {
    premiums().retirement.PremGrowth = 11;
    openEducation();
    run.click("cmdPremium");
    run.expectShown("numPremEmv 34 300.00, numPremPeriod 2, numPremGR 0.000");
    EXPECT_EQ(run.captionOf("numPremAns")->text(), "Approximate monthly premium");
    EXPECT_EQ(run.captionOf("numPremPeriod")->text().remove('&'), "Investment period");
    run.typeAll("numPremGR 9.5, numPremPEsc 6");
    EXPECT_EQ(premiums().retirement.PremGrowth, 11);
    run.click("cmdCalculate");
    run.click("cmdOK");
    EXPECT_EQ(printed("NAED"), "Premium Calculation (Using Unit Trust)|Growth rate|9.5|Premium escalation|6|Maturity "
                               "value required|34300|Investment period|2|Approximate monthly premium|1266|:|% p.a.|"
                               "year/s");
    EXPECT_EQ(printed("NAED", false), blank);
}

TEST_F(Premium, TakesOtherFiguresAndTellsWhatItCanNotDo) {
    run.record().funds = {}; // New blanks the rates: the screen reads them again
    openEducation();
    run.click("cmdPremium");
    EXPECT_EQ(run.record().funds.UTCOM, 3);
    run.typeAll("numPremGR 9.5, numPremEmv 50000.5, numPremPeriod 3");
    EXPECT_EQ(premiums().education.PremTarget, 50000.5);
    EXPECT_EQ(premiums().education.PremTerm, 3);
    EXPECT_TRUE(run.control("numPremAns")->font().italic()) << "out of date";
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("txtAns"), "This value is not the capital of the analysis: its report leaves the premium out.");
    for (const auto& [typed, told] :
         {std::pair{"51", "The Maximum Period is 50 years"}, {"-1", "The Minimum Period is 0 years"}}) {
        run.desk.expect(Answer::ok);
        run.type("numPremPeriod", typed);
        EXPECT_EQ(run.desk.last().text, told);
        EXPECT_EQ(run.desk.last().title, "Incorrect Period!");
        EXPECT_EQ(RunningProgram::focused(), "numPremPeriod");
    }
    run.type("numPremPeriod", "2");
    run.click("cmdOK");
    EXPECT_EQ(printed("NAED"), blank);

    open(); // a capital with a surplus, needed in 66 years
    run.typeAll("numCurrentAge 33, numAgeOfRetirement 99, numMonIncPD 0, numCoverReq 1, numASS(0) 500000");
    run.click("cmdPremium");
    run.expectShown("numPremPeriod 50");
    EXPECT_EQ(run.captionOf("numPremPeriod")->text().remove('&'), "Investment period (reduced to 50 years)");
    EXPECT_EQ(run.shown("txtAns"), "No premium is needed.");
}

} // namespace
