#include "client/frmPolInvest.h"
#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using assessment::Policy;
using shelltest::RunningProgram;

/// A client whose totals are all different.
void fillSchedule(assessment::Assessment& record) {
    record.client.Name = "Ms T. Ṱhoho-Nḓou";
    record.client.BirthDate = 25967;
    record.CPI = 4.5;
    record.policies.clear();
    // Who receives the death benefit, the benefit, what is ceded, what is lent against.
    for (const auto& [person, amount, ceded, loan] : {std::array{0, 1000, 0, 400},
                                                      {1, 3000, 3000, 0},
                                                      {1, 3000, 0, 0},
                                                      {2, 500, 100, 0},
                                                      {3, 100, 0, 0},
                                                      {0, 10, 20, 0},
                                                      {9, 7000, 0, 0}}) {
        Policy& policy = record.policies.emplace_back();
        policy.PolInvType = "Whole life";
        policy.DeathBenPerson = static_cast<std::int16_t>(person);
        policy.DeathBen = amount, policy.DeathBenAmtCeded = ceded, policy.DeathBenLoanAgainst = loan;
        policy.DeathBenOther = "Ṱhoho trust";
        policy.PolIncAddNote = "confidential";
    }
    Policy& first = record.policies[0];
    first.InceptionDate = 45000;
    double figure = 10;
    for (double Policy::*const total : {&Policy::PremInvAmtMonthly, &Policy::DisabilLumpSum, &Policy::TraumlLumpSum,
                                        &Policy::DeathBenMonthly, &Policy::DisabilMonthly, &Policy::TraumMonthly,
                                        &Policy::IncProMonthly, &Policy::RBMonAvaible, &Policy::DeathBenCashVal})
        first.*total = ++figure;
    first.RBEMV = 20.5, first.RBEMVAge = 55, first.RBEMVEscFor = 7.25F;
    record.policies[1].PremInvAmtMonthly = 100;
}

TEST(PolicyReport, HeaderHoldsTheTotalsAndEachRecordItsRow) {
    RunningProgram run;
    fillSchedule(run.record());
    client::feedPolicies(run.folder / "Print.mdb", run.record(), {});
    const std::pair<std::string, const char*> totals[] = {
        {"[Name],[BirthDate],[CurrentCPI]", "Ms T. Ṱhoho-Nḓou|03/02/1971|4.5"},
        {"[ContributionTotal],[LifeCoverTotal],[DisabilityTotal],[DreadTotal]", "111|14610|12|13"},
        {"[RetirementTotal],[CashValueTotal],[IncomeProTotal]", "20.5|19|17"},
        {"[MONLifeCoverTotal],[MONDisabilityTotal],[MONDreadTotal],[MONIncomeProTotal],[MONIncomeRBTotal]",
         "14|15|16|17|18"},
        // Less what is ceded or lent, never below 0; a person without a number receives nothing.
        {"[DBenEstate],[DBenSpouse],[DBenCharity],[DBenOther]", "600|3000|400|100"},
        {"round([DBenSpousePerc] * 1000),[DBenTotal],[WorthTotal],[FilledPolicies],[NoPolicies]", "73171|4100|20.5|7|"},
        {"count(*),[PolIncAddNote]", "1|"},
    };
    for (const auto& [fields, figures] : totals)
        EXPECT_EQ(run.inPrint("SELECT " + fields + " FROM PolsInvests"), figures);
    EXPECT_EQ(run.inPrint("SELECT count(*), max([PolNum]) FROM PolsInvestsAmorts"), "7|7");
    EXPECT_EQ(run.inPrint("SELECT [InceptionDate],[DeathBenPerson],[DeathBenOther],[RBEMVEscFor],[PolIncAddNote] FROM "
                          "PolsInvestsAmorts WHERE [PolNum] IN (1, 5, 7)"),
              "15/03/2023|Estate||7.25|\n |Other|Ṱhoho trust|0|\n |||0|");
    run.record().policies.resize(1);
    run.record().policies[0].DeathBen = 0;
    client::feedPolicies(run.folder / "Print.mdb", run.record(), {true}); // nothing remains of the first printout
    EXPECT_EQ(run.inPrint("SELECT [DBenSpousePerc],[PolIncAddNote] FROM PolsInvests"), "0|Note: confidential");
    EXPECT_EQ(run.inPrint("SELECT [PolIncNote],[PolIncAddNote] FROM PolsInvestsAmorts"), "|Note: confidential");
    run.record().policies.assign(7, {});
    run.record().policies[0].DeathBenUseCashAtRet = 1;
    double Policy::*const lumpSums[] = {&Policy::RBEMV, &Policy::RBPenLump, &Policy::RBProvFLump, &Policy::EndowEMV,
                                        &Policy::InvBensMatValLS};
    for (std::size_t i = 0; i < std::size(lumpSums); ++i)
        run.record().policies[i + 1].*lumpSums[i] = 1;
    client::feedPolicies(run.folder / "Print.mdb", run.record(), {});
    EXPECT_EQ(run.inPrint("SELECT [LumpSumsDue] FROM PolsInvests"), "6") << "all but the empty policy";
}

// The printed column must add up to the printed total, whatever the hidden cents.
TEST(PolicyReport, TheSchedulesColumnAddsUpToItsTotal) {
    RunningProgram run;
    run.record().retirement.AgeRetiment = 65;
    Policy fund;
    fund.RBEMV = 1000;
    fund.RBEMVAge = 63;
    fund.RBEMVEscFor = 0.1245F; // 1001.245: a fraction of a cent more than the cell shows
    fund.PolOwner = "Ṅwali";
    fund.PremInvAmtMonthlyAnnEsc = 7;
    run.record().policies = {fund, Policy{}, fund, fund};
    client::feedPolicies(run.folder / "Print.mdb", run.record(), {});
    EXPECT_EQ(run.inPrint("SELECT round(sum([WorthAtRetirement]) - [WorthTotal], 6),printf('%.2f',[WorthTotal]),"
                          "[FilledPolicies] FROM PolsInvestsAmorts,PolsInvests"),
              "0|3003.72|3");
    for (const char* definition : {"PolInvestSchedule.rpt", "PolInvestDetails.rpt"}) {
        const QString text = reporttest::textOfPdf(run.program.reports().pdf(definition)).simplified();
        EXPECT_EQ(text.count("1 001.24"), 3) << text.toStdString();
        EXPECT_TRUE(text.contains("3 003.72")) << definition;
        EXPECT_EQ(text.count(QRegularExpression(" 7 ?%")), 3) << definition; // how the premium rises
        EXPECT_GE(text.count("Ṅwali"), 3) << definition;
    }
    run.record().policies = {Policy{}};
    client::feedPolicies(run.folder / "Print.mdb", run.record(), {});
    for (const char* definition : {"PolInvestSchedule.rpt", "PolInvestDetails.rpt"}) {
        QString text = reporttest::textOfPdf(run.program.reports().pdf(definition)).simplified();
        EXPECT_TRUE(text.contains("No policies or investments are on record.")) << definition;
        text.remove("Page 1 of 1");
        for (const char* absent : {"0.00", "Total", "Policy ", " 1 "})
            EXPECT_FALSE(text.contains(absent)) << definition << absent;
    }
}

TEST(PolicyReport, ThePanelRunsWhatIsTicked) {
    RunningProgram run;
    fillSchedule(run.record());
    run.menu("mnuPolInvests");
    run.record().policies[0].DeathBenCashVal = 0;
    run.click("cmdPrint");
    run.click("chkPolInvestList");
    EXPECT_FALSE(run.control("cmdVR")->isEnabled()); // no report is chosen
    EXPECT_FALSE(run.control("cmdPD")->isEnabled());
    run.click("chkPolInvestSchudule");
    run.click("chkPolInvestList");
    run.click("chkIncNotes");
    run.click("cmdVR");
    const auto previews = run.program.reports().previews();
    ASSERT_EQ(previews.size(), 2u);
    EXPECT_EQ(previews[0]->windowTitle(), "Policies & Investments Details");
    EXPECT_EQ(previews[1]->windowTitle(), "Policies & Investments Schedule");
    EXPECT_EQ(run.record().death.ANSAss5, 3600); // the analyses' totals are updated before printing
    const QString text = reporttest::textOfPdf(reports::toPdf(previews[0]->report())).simplified();
    for (const char* line :
         {"Ms T. Ṱhoho-Nḓou", "1 Whole life Rand", "Inception date 15/03/2023", "R/A maturity value 20.50 55 7.25 %",
          "Death benefit 100.00 to Other: Ṱhoho trust", "Note: confidential", "Life cover 14 610.00 14.00",
          "At retirement 20.50 18.00", "Spouse 3 000.00 73.17 % of all"})
        EXPECT_TRUE(text.contains(line)) << line << "\n" << text.toStdString();
    EXPECT_FALSE(text.contains("Cash value ")); // not filled
}

} // namespace
