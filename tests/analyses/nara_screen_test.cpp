#include "analyses/nara_screen.h"

#include "analyses/retirement.h"
#include "base/numberformat.h"

namespace {

using namespace naratest;

TEST_F(NARA, OpeningShowsTheAnalysisAndMarksNothingChanged) {
    open();
    run.expectShown("txtName Ms T. Ṱhoho-Nḓou, dtBirthDate 15/03/1981, numCurrentAge 45");
    EXPECT_EQ(run.shown("numYearsToRet"), "10"); // 55 after a reset
    EXPECT_EQ(run.shown("numASS(3)"), "0");      // the annuity is paid later
    EXPECT_TRUE(run.control("lblShortfall")->isHidden());
    EXPECT_TRUE(run.control("cmdPremium")->isVisible());
    EXPECT_EQ(changed(), 0);
    run.click("cmdOK");
    EXPECT_EQ(run.record().ClientChanged, 0);
}

TEST_F(NARA, WorksThroughToTheSentences) {
    openFilled();
    QTest::keyClick(run.front(), Qt::Key_N, Qt::AltModifier);
    RunningProgram::settle();
    EXPECT_EQ(run.shown("numIncReqFV"), "26 533"); // 10 000 at 5 % over 20 years
    run.expectShown("numMonIncAvail 1 000, numMonShortFall 25 533");
    EXPECT_EQ(run.captionOf("numMonShortFall")->text(), "Monthly shortfall");
    EXPECT_EQ(run.shown("numTOTASS"), "1 800 000"); // the annuity's cents are dropped
    EXPECT_EQ(run.shown("numNETCAP"), "1 550 000");
    EXPECT_FALSE(run.control("lblShortfall")->isVisible());
    run.expectShown(
        "txtAns1 Funds available will provide income for 5 year/s., txtAns2 2 910 000 additional cover required.");
    EXPECT_EQ(changed(), 1);

    run.type("numLIB(4)", "2000000");
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numNETCAP"), "200 000");
    EXPECT_TRUE(run.control("lblShortfall")->isVisibleTo(run.front()->findChild<QTabWidget*>()->widget(3)));

    run.type("numMonIncPD", "100"); // needs less than the pension pays
    run.click("cmdCalculate");
    EXPECT_EQ(run.captionOf("numMonShortFall")->text(), "Monthly excess");
    EXPECT_EQ(run.shown("numMonShortFall"), "735");

    run.enter("dtBirthDate", "1/1/2000"); // then straight to the results, which use the new age
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
    RunningProgram::settle();
    EXPECT_EQ(run.shown("numIncReqFV"), "670"); // over 39 years
}

TEST_F(NARA, AgesFollowEachOther) {
    open();
    run.enter("numCurrentAge", "60");
    EXPECT_EQ(needs().AgeRetiment, 55); // not while it is typed: 60 may become 6 again
    run.key(Qt::Key_Backspace);
    run.key(Qt::Key_Tab);
    EXPECT_EQ(run.shown("numYearsToRet"), "49");
    run.type("numCurrentAge", "60");
    run.expectShown("numAgeOfRetirement 60, numYearsToRet 0");
    run.type("dtBirthDate", "15/03/1981"); // as it was: the age typed stays
    run.expectShown("numCurrentAge 60");
    run.type("dtBirthDate", "1/1/2000");
    run.expectShown("numCurrentAge 26, numYearsToRet 34");
    run.type("numAgeOfRetirement", "90");
    EXPECT_EQ(run.shown("numYearsToRet"), "50"); // the limit of an analysis
    needs().YearsToRet = 3;                      // as in an old file
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numYearsToRet"), "50");
}

TEST_F(NARA, EveryLimitHasItsBoxAndKeepsTheFocus) {
    const char* const ages =
        "The maximum age allowed is 99 and the minimum age must be equal or greater than the current age";
    const char* const range = "The range for the Inflation Rate is between -5% and 30%";
    open();
    const char *const bank = "Incorrect Bank Interest Rate!", *const inflation = "Incorrect Inflation Rate!";
    for (const auto& [field, figure, text, title, good] :
         {std::tuple{"numAgeOfRetirement", "100", ages, bank, "99"},
          {"numAgeOfRetirement", "44", ages, bank, "45"},
          {"numCurrentAge", "455", "The maximum age allowed is 120", "Incorrect Age!", "45"},
          {"numCoverReq", "51", "The Maximum Period is 50 years", "Incorrect Period!", "50"},
          {"numInflationRate", "30.01", range, inflation, "30"},
          {"numInflationRate", "-5.01", range, inflation, "-5"},
          {"numBankInvRate", "50.1", "The maximum Bank Interest Rate allowed is 50%", bank, "50"},
          {"numBankInvRate", "-1", "The minimum Bank Interest Rate allowed is 0%", bank, "0"}}) {
        run.expectRefused(field, figure, text, title);
        run.type(field, good);
    }
    EXPECT_EQ(needs().AgeRetiment, 45);
    // Rates above their limits, left by another program, are silently reduced.
    needs().InflationRA = 31, needs().BankInvestRate = 51;
    run.menu("mnuPersDet");
    open();
    EXPECT_EQ(run.shown("numInflationRate") + run.shown("numBankInvRate"), "30.00050.000");
    EXPECT_EQ(needs().InflationRA + needs().BankInvestRate, 80);
}

TEST_F(NARA, AnImpossibleBirthDateIsToldAndHoldsNobodyUp) {
    for (const auto& [birth, age, told] : {std::tuple{"5/3/2028", "-2", "The minimum age is 0"},
                                           {"1/1/1900", "126", "The maximum age allowed is 120"}}) {
        run.record().client.BirthDate = *base::parseDate(birth);
        open();
        EXPECT_EQ(run.shown("numCurrentAge"), age);
        EXPECT_EQ(run.shown("numAgeOfRetirement"), "55"); // unchanged by an impossible age
        EXPECT_EQ(run.control<QLabel>("lblFaults")->text(), QString("Please check Current Age: ") + told);
        EXPECT_TRUE(run.control<QLabel>("lblFaults")->isVisible());
        run.click("cmdCalculate");
        run.menu("mnuSave");
        EXPECT_EQ(run.record().ClientOnFile, 1);
        run.click("cmdOK");
        EXPECT_FALSE(run.isOpen("frmNARA"));
    }
}

// 45 years are 16 436.25 days.
TEST_F(NARA, AgeTurnsWithTheDayAndRetirementWaitsForToday) {
    const double birth = run.record().client.BirthDate;
    for (const auto& [days, age] : {std::pair{16436, "44"}, {16437, "45"}}) {
        run.desk.day = QDate(1899, 12, 30).addDays(static_cast<qint64>(birth) + days);
        open();
        EXPECT_EQ(run.shown("numCurrentAge"), age);
        run.click("cmdOK");
    }
    needs().AgeRetiment = 40; // as in an old file
    open();
    run.expectShown("numAgeOfRetirement 45, numYearsToRet 0");
}

TEST_F(NARA, AClientOnNoScreenIsAnalysedAsOnTheScreen) {
    auto& list = run.record().itemised.RNAMonIncReq;
    list = {1, {{"Living", 9000, 5, 61, 85}, {"Travel", 2000, 0, 61, 70}}};
    needs().AgeRetiment = 61;
    needs().InflationRA = 31; // above the limit
    needs().BankInvestRate = 9;
    needs().ANSLAss1 = 4e6, needs().ANSLLib2 = 250000;
    assessment::Assessment alone = run.record();
    const auto analysis = analyses::runRetirement(alone, 46348); // 22 November 2026
    open();
    EXPECT_EQ(needs(), alone.retirement);
    const auto shows = [&](const char* field, double figure) {
        EXPECT_EQ(run.shown(field).toStdString(), base::formatNumber(std::fabs(figure), "# ### ### ##0")) << field;
    };
    shows("numIncReqFV", analysis.IncomeReqFV);
    shows("numMonIncAvail", analysis.monthlyAvailable);
    shows("numMonShortFall", analysis.monthlyDifference());
    shows("numTOTASS", analysis.TotalAssets);
    shows("numTOTLIAB", analysis.TotalLiabilities);
    shows("numNETCAP", analysis.NetCapital);
    EXPECT_EQ(run.shown("txtAns1").toStdString(), analysis.txtAns1);
    EXPECT_EQ(run.shown("txtAns2").toStdString(), analysis.txtAns2);
    EXPECT_FALSE(analysis.txtAns1.empty() || analysis.txtAns2.empty());
}

TEST_F(NARA, ItemisedNeedsSetIncomeAndPeriodAndFollowTheAge) {
    openFilled();
    itemise(11, {"Living", "8000", "6", "65", "85", "Travel", "2000", "0", "65", "70", "Care", "500", "0", "60", "90"});
    run.expectShown("numMonIncPD 10 000, numCoverReq 30");
    for (const char* name : {"numMonIncPD", "numCoverReq"})
        EXPECT_TRUE(run.control<QLineEdit>(name)->isReadOnly()) << name;
    run.type("numAgeOfRetirement", "62"); // no row starts then, so later ones count
    EXPECT_EQ(run.shown("numMonIncPD"), "10 000");
    run.type("numAgeOfRetirement", "60");
    EXPECT_EQ(run.shown("numMonIncPD"), "500");
    itemise(0, {"Rent", "700", "5", "60", "70"});
    EXPECT_EQ(run.shown("numMonIncAvail"), "1 700");
}

// The policies' line has no list: its button opens their schedule.
TEST_F(NARA, EachListLocksItsOwnLine) {
    using I = assessment::Itemised;
    const std::pair<assessment::ItemList I::*, const char*> lines[] = {
        {&I::RNARealEst, "numASS(0)"},    {&I::RNAStocks, "numASS(1)"},   {&I::RNABussSale, "numASS(2)"},
        {&I::RNAOtherCap, "numASS(4)"},   {&I::RNAMortgage, "numLIB(0)"}, {&I::RNARetProp, "numLIB(1)"},
        {&I::RNANewCar, "numLIB(2)"},     {&I::RNATravel, "numLIB(3)"},   {&I::RNAOtherExp, "numLIB(4)"},
        {&I::RNAMonIncReq, "numCoverReq"}};
    for (const auto& [on, locked] : lines) {
        (run.record().itemised.*on).flag = 1;
        open();
        for (const auto& [list, field] : lines)
            EXPECT_EQ(run.control<QLineEdit>(field)->isReadOnly(), field == locked) << field;
        run.click("cmdOK");
        (run.record().itemised.*on).flag = 0;
    }
}

// Damage that other programs, faults and hand-made files may leave in a client's rows.
TEST_F(NARA, ADamagedClientOpensCalculatesAndSavesUnharmed) {
    run.saveClient("Botha");
    run.inClients("UPDATE Data SET CoverYears = 80, BankInvestRate = -100, InflationRA = 'text', IncomePD = 1000, "
                  "AnsLAss1 = 5e6, RNAFutMonIncItemise = 1, RNAMonIncReqItemise = 1, YearsToRet = 1e300, "
                  "CurrAge = -1e300");
    run.inClients("DELETE FROM PolsInvests");
    for (const std::string rows :
         {"RNAFutureMonInc (DCLNO, MaxNum, IncomeSource, Amount, Escalation, FromAge, ToAge) "
          "SELECT 1, 5000, 'Row ' || i, i, 5, 50 + i % 40, 90",
          "RNAMonIncReq (DCLNO, MaxNum, Amount, Escalation, FromAge, ToAge) SELECT 1, 5000, i, 5, 50 + i % 40, 90",
          "PolsInvests (dclno, MaxNum, RBMonAvaible, RBMonAvaibleEscFor, InvBensMatValLS, InvBensTakeFinValAtRet, "
          "InvBensMatValLSAtAge, InvBensMatValLSEscAt) SELECT 1, 5000, i, -100, i, 1, 32000, 10"})
        run.inClients("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) INSERT INTO " +
                      rows + " FROM n");
    run.loadClient("Botha");
    ASSERT_EQ(run.record().policies.size(), 5000u);
    const std::string before = run.inClients("SELECT SUM(RBMonAvaible), COUNT(*) FROM PolsInvests");
    open();
    EXPECT_FALSE(run.shown("txtAns1").isEmpty());
    EXPECT_EQ(run.control<QLabel>("lblFaults")->text(),
              "Please check Current Age: The minimum age is 0\n"
              "Please check Investment rate of return: The minimum Bank Interest Rate allowed is 0%");
    run.click("cmdCalculate");
    run.menu("mnuSave");
    EXPECT_EQ(run.inClients("SELECT SUM(RBMonAvaible), COUNT(*) FROM PolsInvests"), before);
    EXPECT_EQ(run.inClients("SELECT COUNT(*), SUM(Amount) FROM RNAMonIncReq"), "5000|12502500");
    EXPECT_EQ(run.inClients("SELECT COUNT(*), MAX(MaxNum) FROM RNAFutureMonInc"), "5000|5000");
}

} // namespace
