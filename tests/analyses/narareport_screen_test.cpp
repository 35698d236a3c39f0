#include "analyses/nara_screen.h"

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"

namespace {

using namespace naratest;

TEST_F(NARA, EveryControlHoldsItsFieldAndEveryFieldItsPlaceInTheReport) {
    using N = assessment::NARetirement;
    const std::tuple<const char*, const char*, double N::*, double> controls[] = {
        {"numCurrentAge", "46", &N::CurrAge, 46},
        {"numAgeOfRetirement", "63", &N::AgeRetiment, 63},
        {"numMonIncPD", "10001", &N::IncomePD, 10001},
        {"numCoverReq", "21", &N::CoverYears, 21},
        {"numInflationRate", "5.125", &N::InflationRA, 5.125},
        {"numBankInvRate", "8.375", &N::BankInvestRate, 8.375},
        {"numASS(0)", "1000001", &N::ANSLAss1, 1000001},
        {"numASS(1)", "200020", &N::ANSLAss2, 200020},
        {"numASS(2)", "30300", &N::ANSLAss3, 30300},
        {"numASS(4)", "5050.5", &N::ANSLAss5, 5050.5},
        {"numLIB(0)", "61", &N::ANSLLib1, 61},
        {"numLIB(1)", "702", &N::ANSLLib2, 702},
        {"numLIB(2)", "8003", &N::ANSLLib3, 8003},
        {"numLIB(3)", "90004", &N::ANSLLib4, 90004},
        {"numLIB(4)", "100005", &N::ANSLLib5, 100005},
        {"dtNaraLastReview", "1/2/2026", &N::NaraLastReview, 46054},
        {"dtNaraNextReview", "3/4/2027", &N::NaraNextReview, 46480},
    };
    run.record().client.IDNumber = "8103155009087";
    run.record().policies[0].RBEMVAge = 60;
    open();
    for (const auto& [name, typed, field, value] : controls)
        run.type(name, typed);
    run.type("txtNote", "Sells the practice");
    for (const auto& [name, typed, field, value] : controls)
        EXPECT_EQ(needs().*field, value) << name;
    EXPECT_EQ(needs().RANotes, "Sells the practice");
    run.expectShown("txtIDNum 8103155009087, numYearsToRet 17, numASS(5) 1 535 372, numLIB(5) 198 775");

    run.click("cmdPrint");
    run.click("Check3");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().size(), 1u);
    EXPECT_EQ(run.inPrint("SELECT * FROM NARA"),
              "Ms T. Ṱhoho-Nḓou|8103155009087|23391|1000|Initial Future-value Monthly Shortfall (at retirement date)|"
              "22391|10001|46|63|5.125|17|21|8.375|15/03/1981|1000001|200020|30300|300000|5050.5|61|702|8003|90004|"
              "100005|198775|1535371.5|Net worth for investment : 1 336 596|Funds available will provide income for 5 "
              "year/s.|2 630 000 additional cover required.||||0||0||0||0||0||||Notes|:|Sells the practice");
}

TEST_F(NARA, TableAndGraphShowTheYearsFromRetirement) {
    openFilled();
    run.click("cmdAmort");
    const auto rows = gridRows();
    ASSERT_EQ(rows.size(), 6u); // five years covered, and the one after
    EXPECT_EQ(rows[0], QStringList({"65", "1 550 000", "124 000", "12 000", "318 396"}));
    EXPECT_EQ(rows[5][0], "70");
    run.click("cmdGridClose");
    run.click("cmdNARAGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title, "Illustration of Life of Capital for Retirement");
    ASSERT_EQ(graph.series.size(), 4u);
    EXPECT_EQ(graph.series[0].values.size(), 5u);
    EXPECT_EQ(graph.series[2].values[0], 318396); // the legend has the required income first
    EXPECT_EQ(graph.series[3].values[0], 12000);
}

TEST_F(NARA, PrintsTheReportsThatAreTickedAndLeavesNothingOver) {
    openFilled();
    itemise(1, {"House", "900000"});
    run.click("cmdPrint");
    for (const char* choice : {"Check1", "Check3", "Check4", "chkPolInvestSchudule"})
        run.click(choice);
    run.click("cmdVR");
    QStringList titles;
    for (const auto* preview : run.program.reports().previews())
        titles << preview->windowTitle();
    EXPECT_EQ(titles, QStringList({"Needs Analysis for Retirement Including Amortisation",
                                   "Itemised Details - To export printout click on the suitcase button or goto "
                                   "Marlowbeck Help",
                                   "Policies & Investments Schedule"}));
    EXPECT_EQ(run.inPrint("SELECT Year, Capital, Interest, Required, Available FROM Amort LIMIT 1"),
              "65|950000|76000|318396|12000");
    EXPECT_EQ(run.inPrint("SELECT IncomeSource, Amount FROM ItemisePrint WHERE Amount LIKE "
                          "'9%'"),
              "House|900 000");

    run.typeAll("numLIB(4) 5000000, numMonIncPD 50, numAgeOfRetirement 96");
    run.click("cmdPrint"); // without notes and other options
    for (const char* choice : {"Check1", "Check3", "Check4"})
        run.click(choice);
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().size(), 5u);
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Policies & Investments Schedule");
    EXPECT_EQ(run.inPrint("SELECT ShoRTFall, NotesHeading || NotesColon || Notes || '.', IncomeShortText, IncomeShort, "
                          "Limitedto50 FROM NARA"),
              "Capital Shortfall : 3 800 000|.|Initial Monthly Excess (at retirement date)|427|(limited to 50 years)");
}

} // namespace
