#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/nara_screen.h"
#include "base/numberformat.h"
#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"

namespace {

using namespace naratest;
using assessment::Assessment;
using assessment::ItemList;

/// The differences between the two screens.
struct Twin {
    const char *menu, *screen, *at;
    std::vector<double*> (*fields)(Assessment&); ///< in the order of `names`
    std::string& (*notes)(Assessment&);
    std::int16_t assessment::Changed::*changed;
    analyses::NeedsAnalysis (*run)(Assessment&);
    std::vector<ItemList assessment::Itemised::*> lists; ///< in the order of `lockedBy`
    const char *tab, *assets, *liabilities, *fees;
    const char *row, *firstRow; ///< content of the report
    const char *title, *amortisedTitle;
};

/// The entries, ending with the two review dates.
const std::vector<const char*> names{"numIncome", "numCoverPeriod", "numInflaGuard", "numInvestRate", "numMonIncAval",
                                     "numASS(0)", "numASS(1)",      "numASS(2)",     "numASS(4)",     "numLIB(0)",
                                     "numLIB(1)", "numLIB(2)",      "numLIB(3)",     "numLIB(4)"};
const std::vector<const char*> typed{"10001", "21",     "5.125", "8.375", "700.5", "1000001", "200020",
                                     "30300", "5050.5", "61",    "702",   "8003",  "90004",   "100005"};
const std::vector<const char*> lockedBy{"numCoverPeriod", "numMonIncAval", "numASS(0)", "numASS(1)",
                                        "numASS(2)",      "numASS(4)",     "numLIB(0)", "numLIB(1)",
                                        "numLIB(2)",      "numLIB(3)",     "numLIB(4)"};

using I = assessment::Itemised;

const Twin death{
    "mnuNADeath",
    "frmNADeath",
    "death",
    [](Assessment& a) -> std::vector<double*> {
        auto& d = a.death;
        return {&d.Income,  &d.PeriodDeath, &d.Inflation,     &d.InvestRate,   &d.DeathMIAvail, &d.ANSAss1,
                &d.ANSAss2, &d.ANSAss4,     &d.ANSAss6,       &d.ANSLib1,      &d.ANSLib2,      &d.ANSLib3,
                &d.ANSLib4, &d.lib5,        &d.DTHLastReview, &d.DTHNextReview};
    },
    [](Assessment& a) -> std::string& { return a.death.DeathNotes; },
    &assessment::Changed::NADeathChanged,
    analyses::runDeath,
    {&I::DTHMonIncReq, &I::DTHFutMonInc, &I::DTHRealEst, &I::DTHStocks, &I::DTHCars, &I::DTHOtherCap, &I::DTHMortgage,
     &I::DTHOtherLoans, &I::DTHCreditCard, &I::DTHEstateDuty, &I::DTHOtherExp},
    "Death Capital ",
    "Capital available at Death",
    "Capital liabilities at Death",
    "Estate duty/fees etc.",
    "Ms T. Ṱhoho-Nḓou|10001|8103155009087|5.125|8.375|21|10001|1700.5|Initial Monthly Shortfall (at death)|8300.5|"
    "15/03/1981|1000001|200020|30300|500000|5050.5|61|702|8003|90004|100005|198775|1735371.5|Net capital worth for "
    "investment : 1 536 596|Funds available will provide income for 20 years.|50 000 additional cover required."
    "|Notes|:|Sells the practice",
    "1|1625400.5|136127|104400|19200",
    "Death Needs Analysis ",
    "Death Needs Analysis Including Amortisation"};

const Twin disability{
    "mnuNADisability",
    "frmNADisability",
    "disability",
    [](Assessment& a) -> std::vector<double*> {
        auto& d = a.disability;
        return {&d.MDisaDTS5, &d.MDisaDTS15, &d.MDisaDTS6,      &d.MDisaDTS7,     &d.DisaMIAvail, &d.DisaASS1,
                &d.DisaASS2,  &d.DisaASS4,   &d.DisaASS6,       &d.Disalib1,      &d.Disalib2,    &d.Disalib3,
                &d.Disalib4,  &d.Disalib5,   &d.DISALastReview, &d.DISANextReview};
    },
    [](Assessment& a) -> std::string& { return a.disability.DisaNotes; },
    &assessment::Changed::NADisabilityChanged,
    analyses::runDisability,
    {&I::DISAMonIncReq, &I::DISAFutMonInc, &I::DISARealEst, &I::DISAStocks, &I::DISACars, &I::DISAOtherCap,
     &I::DISAMortgage, &I::DISAOtherLoans, &I::DISACreditCard, &I::DISAEstateDuty, &I::DISAOtherExp},
    "Disability Cover",
    "Capital available at Disability ",
    "Disability Liabilities",
    "Conversion costs etc.",
    "Ms T. Ṱhoho-Nḓou|10001|8103155009087|5.125|8.375|21|10001|1600.5|Initial Monthly Shortfall (at disability)|"
    "8400.5|15/03/1981|1000001|200020|30300|300000|5050.5|61|702|8003|90004|100005|198775|1535371.5|Net capital worth "
    "for investment : 1 336 596|Funds available will provide income for 16 years.|280 000 additional cover required.|"
    "Notes|:|Sells the practice",
    "1|1425400.5|119377|104400|18000",
    "Disability Needs Analysis ",
    "Disability Needs Analysis Including Amortisation"};

class CoverScreens : public NeedsTest, public testing::WithParamInterface<const Twin*> {
protected:
    CoverScreens() {
        auto& client = run.record().client;
        client.Name = "Ms T. Ṱhoho-Nḓou";
        client.BirthDate = *base::dayNumber(1981, 3, 15);
        client.IDNumber = "8103155009087";
        auto& policy = run.record().policies[0];
        policy.DeathBen = 500000.9, policy.DeathBenPerson = 1;
        policy.DeathBenMonthly = 1000, policy.DeathBenYears = 10;
        policy.DisabilLumpSum = 300000.9, policy.DisabilMonthly = 400, policy.IncProMonthly = 500;
    }
    const Twin& twin = *GetParam();
    void open() { run.menu(twin.menu); }
    void fill() {
        open();
        for (std::size_t i = 0; i < names.size(); ++i)
            run.type(names[i], typed[i]);
    }
    std::int16_t& changed() { return run.record().changed.*twin.changed; }
};

TEST_P(CoverScreens, EveryControlHoldsItsFieldAndEveryFieldItsPlaceInTheReport) {
    open();
    EXPECT_EQ(run.shown("txtName"), "Ms T. Ṱhoho-Nḓou");
    EXPECT_EQ(run.shown("txtIDNum"), "8103155009087");
    EXPECT_EQ(run.shown("dtBirth"), "15/03/1981");
    EXPECT_EQ(changed(), 0);
    fill();
    EXPECT_EQ(changed(), 1);
    const std::string screen = twin.at;
    run.type(screen == "death" ? "dtDTHLastReview" : "dtDISALastReview", "1/2/2026");
    run.type(screen == "death" ? "dtDTHNextReview" : "dtDISANextReview", "3/4/2027");
    run.type("txtNote", "Sells the practice");
    const auto fields = twin.fields(run.record());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(*fields[i], std::stod(typed[i])) << names[i];
    EXPECT_EQ(*fields[14], 46054);
    EXPECT_EQ(*fields[15], 46480);
    EXPECT_EQ(twin.notes(run.record()), "Sells the practice");
    EXPECT_EQ(run.shown("numASS(3)"), screen == "death" ? "500 000" : "300 000"); // cents are dropped

    run.click("cmdPrint");
    run.click("Check3");
    run.click("cmdVR");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), twin.title);
    EXPECT_EQ(run.inPrint("SELECT * FROM NADeath"), twin.row);
    EXPECT_EQ(run.inPrint("SELECT COUNT(*) FROM Amort"), "0");
}

TEST_P(CoverScreens, ShowTheResultsTheTableAndTheGraphInTheirOwnWords) {
    fill();
    const QString at = twin.at;
    EXPECT_EQ(run.captionOf("numIncome")->text().remove('&'), "Monthly income required at " + at);
    EXPECT_EQ(run.captionOf("numMonIncAval")->text().remove('&'), "Monthly income available at " + at);
    EXPECT_EQ(run.captionOf("numLIB(3)")->text().remove('&'), twin.fees);
    EXPECT_EQ(run.control<QTabWidget>("SSIndexTab1")->tabText(0).remove('&'), twin.tab);
    EXPECT_EQ(run.control<QGroupBox>("fraCapital")->title(), twin.assets);
    EXPECT_EQ(run.control<QGroupBox>("fraLiabilities")->title(), twin.liabilities);

    run.type("numLIB(4)", "2000000");
    QTest::keyClick(run.front(), Qt::Key_N, Qt::AltModifier);
    RunningProgram::settle();
    Assessment alone = run.record();
    const auto analysis = twin.run(alone);
    EXPECT_EQ(run.captionOf("numIncReqFV")->text(), "Monthly income required(at " + at + ")");
    EXPECT_EQ(run.captionOf("numMonIncAvail")->text(), "Monthly income available(at " + at + ")");
    EXPECT_EQ(run.captionOf("numMonShortFall")->text(), "Monthly shortfall");
    for (const auto& [field, figure] : {std::pair{"numIncReqFV", analysis.IncomeReqFV},
                                        {"numMonIncAvail", analysis.monthlyAvailable},
                                        {"numMonShortFall", -analysis.monthlyDifference()},
                                        {"numTotAss", analysis.TotalAssets},
                                        {"numTotLib", analysis.TotalLiabilities},
                                        {"numNetCap", -analysis.NetCapital}})
        EXPECT_EQ(run.shown(field).toStdString(), base::formatNumber(figure, "# ### ### ##0")) << field;
    EXPECT_TRUE(run.control("lblShortfall")->isVisible());
    EXPECT_EQ(run.shown("txtAns2").toStdString(), analysis.txtAns2);
    EXPECT_TRUE(analysis.txtAns2.ends_with("additional cover required."));

    run.type("numLIB(4)", "1000000");
    run.click("cmdAmort");
    auto* table = run.control<QTableView>("grdPayments")->model();
    EXPECT_EQ(table->headerData(0, Qt::Horizontal).toString(), "Year");
    const auto rows = gridRows();
    alone = run.record();
    const auto years = twin.run(alone).years();
    ASSERT_EQ(rows.size(), years.size());
    EXPECT_EQ(rows[1][0], "2");
    EXPECT_EQ(rows[0][3].toStdString(), base::formatNumber(years[0].available, "### ### ###"));
    EXPECT_EQ(rows[0][4], "120 012");
    run.click("cmdGridClose");
    run.click("cmdESTGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph();
    EXPECT_EQ(graph.title + graph.xTitle, "Illustration of Life of CapitalTERM OF COVER (years)");
    EXPECT_EQ(graph.points + 1, static_cast<int>(years.size()));
    EXPECT_EQ(graph.series.at(2).values[0], 120012); // the legend has the required income first
    run.click("cmdOK");
    run.type("numIncome", at == "death" ? "1700.5" : "1600.5");
    run.click("cmdCalculate"); // neither an excess nor a shortfall: the caption stays as it was
    run.expectShown("numMonShortFall 0");
    EXPECT_EQ(run.captionOf("numMonShortFall")->text(), "Monthly shortfall");
}

TEST_P(CoverScreens, EachListLocksItsOwnLineAndThePoliciesAreOpened) {
    for (std::size_t on = 0; on < lockedBy.size(); ++on) {
        (run.record().itemised.*twin.lists[on]).flag = 1;
        open();
        for (std::size_t line = 0; line < lockedBy.size(); ++line)
            EXPECT_EQ(run.control<QLineEdit>(lockedBy[line])->isReadOnly(), line == on) << lockedBy[line];
        EXPECT_TRUE(run.control("cmdItemise(11)")->accessibleDescription() == "In use"); // the line of the policies
        run.click("cmdOK");
        (run.record().itemised.*twin.lists[on]).flag = 0;
    }
    (run.record().itemised.*twin.lists[0]) = {1, {{"Living", 700, 0, 3, 9}}};
    open(); // a list in use sets its figures as soon as the screen opens
    run.expectShown("numIncome 700, numCoverPeriod 6");
    run.click("cmdItemise(11)");
    EXPECT_EQ(run.front()->objectName(), "frmPolInvest");
}

TEST_P(CoverScreens, ItemisedIncomesAreShownAtOnceAndPrinted) {
    fill();
    itemise(0, {"Living", "8000", "6", "1", "20", "Rates", "700", "0", "1", "30"});
    EXPECT_EQ(run.shown("numIncome"), "8 700");
    EXPECT_EQ(run.shown("numCoverPeriod"), "29");
    itemise(1, {"Rent", "600", "5", "1", "9"});
    EXPECT_EQ(run.shown("numMonIncAval"), "600");
    itemise(9, {"Fees", "1200", "3"});
    EXPECT_EQ(run.shown("numLIB(3)"), "1 200");
    run.click("cmdPrint");
    EXPECT_EQ(run.front()->findChild<QWidget*>("Check2"), nullptr); // there is no premium for cover
    for (const char* choice : {"Check1", "Check4", "chkPolInvestSchudule"})
        run.click(choice);
    run.click("cmdVR");
    QStringList titles;
    for (const auto* preview : run.program.reports().previews())
        titles << preview->windowTitle();
    EXPECT_EQ(titles, QStringList({twin.amortisedTitle,
                                   "Itemised Details - To export printout click on the suitcase button or goto "
                                   "Marlowbeck Help",
                                   "Policies & Investments Schedule"}));
    EXPECT_EQ(run.inPrint("SELECT Year, Capital, Interest, Required, Available FROM Amort LIMIT 1"), twin.firstRow);
    EXPECT_EQ(run.inPrint("SELECT NewGrid FROM ItemisePrint WHERE NewGrid LIKE '%.'"), twin.fees);
    EXPECT_EQ(run.inPrint("SELECT NotesHeading || Notes || '.' FROM NADeath"), ".");
}

TEST_P(CoverScreens, LimitsAreTheirFieldsOwn) {
    open();
    for (const auto& [field, refused, taken, told, title] :
         {std::tuple{"numCoverPeriod", "51", "50", "The Maximum Period is 50 years", "Incorrect Period!"},
          {"numInflaGuard", "30.01", "30", "The range for the Inflation Rate is between -5% and 30%",
           "Incorrect Inflation Rate!"},
          {"numInvestRate", "50.1", "50", "The maximum Bank Interest Rate allowed is 50%",
           "Incorrect Bank Interest Rate!"}}) {
        run.expectRefused(field, refused, told, title);
        run.type(field, taken);
    }
    const auto fields = twin.fields(run.record());
    *fields[2] = 31, *fields[3] = 51; // rates above their limits are silently reduced
    run.menu("mnuPersDet");
    open();
    EXPECT_EQ(run.shown("numInflaGuard") + run.shown("numInvestRate"), "30.00050.000");
}

INSTANTIATE_TEST_SUITE_P(Twins, CoverScreens, testing::Values(&death, &disability),
                         [](const auto& twin) { return std::string(twin.param->at); });

} // namespace
