#include <map>

#include "calculators/bondbuster.h"
#include "clientfile/parts_support.h"
#include "tax/frmMonthly.h"

namespace {

using namespace parttest;
using A = assessment::Assessment;
using Change = void (*)(A&); ///< of a client

constexpr const char* nothing = "Nothing is entered yet.";
constexpr const char* noResult = "The figures give no result that can be printed.";

const std::map<std::string, const char*> screens{{"inflation", "frmInflation"},
                                                 {"loans", "frmLoans"},
                                                 {"bondBuster", "frmBondBuster"},
                                                 {"bondAnalysis", "frmBondAna"},
                                                 {"lifeOfCapital", "frmLifeOfCap"},
                                                 {"incomeShares", "frmIncomeShares"},
                                                 {"dailyBalance", "frmDayBal"},
                                                 {"nominalEffective", "frmNomEffec"},
                                                 {"debtConsolidation", "frmDebtCon"},
                                                 {"investmentComparison", "frmInvestComp"},
                                                 {"offshoreInvestments", "frmOffShore"},
                                                 {"drawDownAnnuity", "frmDDLivAnn"},
                                                 {"realRate", "frmRRRNEW"},
                                                 {"realRateSingle", "frmRRROLD"},
                                                 {"retirementFunding", "frmRATaxAdv"},
                                                 {"estateDuty", "frmEstateDutyEst"},
                                                 {"capitalGains", "frmCGTCalcIncome"},
                                                 {"lumpSums", "frmLumpSum"},
                                                 {"travelClaim", "frmCarAll"},
                                                 {"quickTax", "frmKwikTax"}};

class CalculatorParts : public PartsTest {
protected:
    A fullWith(Change change = [](A&) {}) {
        A client = fullClient(run.record());
        change(client);
        return client;
    }
    /// presses: up to the choices in the print panel.
    void expectPrinted(
        const std::string& name, const Choices& choices = {}, const QString& presses = "cmdPrint",
        Change change = [](A&) {}) {
        const QString view = name == "quickTax" ? " cmdViewScreen" : " cmdVR";
        expectAsShown(name.c_str(), choices, screens.at(name), presses + view, fullWith(change));
    }
    void setDefault(const char* sql) { store::Database(run.folder / "Default.Mdb").execute(sql); }
};

TEST_F(CalculatorParts, PrintWhatTheirScreensPrintWithEachChoice) {
    struct Printed {
        const char* part;
        Choices choices;
        const char* presses;
    };
    const Choice table = Choice::amortisation, monthly = Choice::monthly;
    const Printed chosen[] = {{"loans", {monthly, Choice::charges}, "cmdFinCharge cmdPrint"},
                              {"loans", {table}, "cmdPrint Check1"},
                              {"loans", {table, monthly}, "cmdPrint Check1 Option1(1)"},
                              {"lifeOfCapital", {table}, "cmdPrint Check1"},
                              {"incomeShares", {Choice::commissions}, "cmdPrint chkIncComms"},
                              {"debtConsolidation", {table}, "cmdPrint Check1"},
                              {"debtConsolidation", {table, monthly}, "cmdPrint Check1 Option1(1)"},
                              {"drawDownAnnuity", {table}, "cmdPrint Check1"},
                              {"capitalGains", {Choice::knownGains}, "cmdPrint Check4"}};
    for (const auto& [name, screen] : screens)
        expectPrinted(name);
    for (const Printed& each : chosen)
        expectPrinted(each.part, each.choices, each.presses);
    // Stored results that are not those of today's figures, and growth rates that have no nominal one.
    expectPrinted("loans", {}, "cmdPrint", [](A& of) { of.loans.Num4 = 1400; });
    expectPrinted("bondBuster", {}, "cmdPrint", [](A& of) { of.bond.VOLUN = 1234.56; });
    expectPrinted("incomeShares", {}, "cmdPrint", [](A& of) { of.incomeShares.ISGrowthRate = 1; });
    expectPrinted("nominalEffective", {}, "cmdPrint", [](A& of) { of.nominalEffective = {50000, 17, 8, 4}; });
    expectPrinted("drawDownAnnuity", {}, "cmdPrint", [](A& of) { of.drawDownPhases.phase0.GRLA = 1.05; });
    expectPrinted("capitalGains", {}, "cmdPrint", [](A& of) {
        of.details.Deceased = 1;
        of.capitalGains.assets[0].CapGain = of.capitalGains.assets[1].CapGain = 700000; // only the first is shown
    });
    expectPrinted("travelClaim", {}, "cmdPrint", [](A& of) { of.car.expensesKept = 1; });
    A known = fullWith([](A& of) { of.capitalGains.assets.clear(); });
    EXPECT_EQ(printedBy(part("capitalGains"), sourceOf(known)),
              shownBy("frmCGTCalcIncome", "cmdPrint Check4 cmdVR", known))
        << "all that there is";
    setDefault("UPDATE Setup SET RptLanguage = 'A'");
    setDefault("UPDATE EstateDutyEst SET RateofTax = 11");
    for (const char* name : {"retirementFunding", "estateDuty", "travelClaim"})
        expectPrinted(name);
}

TEST_F(CalculatorParts, AMonthOfPAYEIsThatOfItsScreenWhileThatHoldsOne) {
    const Part& month = part("monthlyTax");
    run.record() = fullWith();
    Source source = sourceOf(run.record());
    run.menu("mnuPAYE");
    const auto shown = [&] { return qobject_cast<tax::frmMonthly*>(run.screen("frmMonthly"))->shown(); };
    EXPECT_FALSE(shown().has_value());
    EXPECT_EQ(month.whyNot(source), "Its screen holds no figures, and it stores none.");
    EXPECT_EQ(printedBy(month, source), "");
    // The second month allows another deduction than a first one would.
    for (const char* typed :
         {"silgEdit9 45, numSalRemun 40000, silgEdit13 8000, numEmpERFundCont 15000", "numSalRemun 30000"}) {
        run.typeAll(typed);
        source.month = shown();
        const std::string printed = printedBy(month, source);
        run.click("cmdPrint");
        run.click("cmdVR");
        EXPECT_EQ(month.whyNot(source), "");
        EXPECT_EQ(printed, textOf(run.program.reports().previews().back()->report()));
        source.month = shown(); // calculated by now
        EXPECT_EQ(printedBy(month, source), printed);
        run.window().activateWindow();
        RunningProgram::settle();
    }
    run.type("dtMEndDate", "30/04/2026");
    EXPECT_FALSE(shown().has_value());
}

TEST_F(CalculatorParts, SayWhyTheyCannotBePrinted) {
    struct Refused {
        const char *part, *reason;
        Change change; ///< of a blank client
    };
    const Refused all[] = {
        {"loans", nothing, [](A& of) { of.loans.Heading = "Interest rate"; }},
        {"loans", noResult,
         [](A& of) {
             of.loans = {"Repayment period", 100000, 0, 12, 1000};
         }},
        {"bondBuster", nothing, [](A& of) { of.bond.BCMBP2 = 1; }},
        {"bondBuster", noResult, [](A& of) { of.bond = {1e308, 600, 50, 0, 0, 0}; }},
        {"bondAnalysis", nothing, [](A& of) { of.bond.VOLUN = 1; }},
        {"bondAnalysis", noResult, [](A& of) { of.bond = {0, 0, 0, 0, 1e308, 50}; }},
        {"inflation", noResult,
         [](A& of) {
             of.inflation = {1e308, 40, 40};
         }},
        {"lifeOfCapital", noResult,
         [](A& of) {
             of.lifeOfCapital = {1e308, 1, 1e5, 0, 0};
         }},
        {"incomeShares", nothing, [](A& of) { of.incomeShares.AnnMonIncShare = "monthly"; }},
        {"incomeShares", noResult, [](A& of) { of.incomeShares.InvestAmount = 1; }},
        {"incomeShares", noResult, [](A& of) { of.incomeShares = {1e308, 99, 1, 0, 0, "monthly"}; }},
        {"dailyBalance", nothing, [](A& of) { of.dailyBalance.EndDateDB = static_cast<std::int32_t>(base::NoDate); }},
        {"nominalEffective", nothing,
         [](A& of) {
             of.nominalEffective = {0, 12, 0, 4};
         }},
        {"nominalEffective", noResult,
         [](A& of) {
             of.nominalEffective = {1000, 0, 8, 12};
         }},
        {"debtConsolidation", noResult, [](A& of) { of.debts.Loan1Amt = of.debts.Loan2Amt = 1e308; }},
        {"investmentComparison", noResult, [](A& of) { of.comparison.MonTAnn = 1e308; }},
        {"offshoreInvestments", noResult, [](A& of) { of.offShore = {2000000000, 600, 50, 50, 0, 0, 0}; }},
        {"drawDownAnnuity", noResult,
         [](A& of) {
             of.drawDown.LSAmt = 1e308, of.drawDownPhases.phase0 = {1, 50, 1, 0, 99};
         }},
        {"realRate", noResult, [](A& of) { of.rrrNew.RegMpay1 = 1e308, of.rrrNew.RRRNEWPeriod = 12; }},
        {"realRateSingle", noResult, [](A& of) { of.rrrOld.MonPrem = 1e308, of.rrrOld.Period = 12; }},
        {"retirementFunding", nothing, [](A& of) { of.raTaxAdvantage.RATaxPayerAge = 45; }},
        {"estateDuty", noResult, [](A& of) { of.estateDuty.PropEstate = of.estateDuty.OtherEstate = 1e308; }},
        {"capitalGains", nothing, [](A& of) { of.capitalGains.assets = {assessment::newAsset()}; }},
        {"capitalGains", noResult, [](A& of) { of.capitalGains.CarryOverCapGainPrev = -1; }},
        {"retirementFunding", noResult, [](A& of) { of.raTaxAdvantage = {0, 1e308, 1, 0, "", 1e308}; }},
        {"lumpSums", nothing, [](A& of) { of.lumpSums.FstLumpTaken = 2; }},
        {"quickTax", nothing, [](A& of) { of.tax.YR9798 = 0; }},
    };
    const A blank = run.record();
    for (const Refused& each : all) {
        SCOPED_TRACE(each.part);
        A client = blank;
        each.change(client);
        EXPECT_EQ(part(each.part).whyNot(sourceOf(blank)), nothing);
        EXPECT_EQ(part(each.part).whyNot(sourceOf(client)), each.reason);
        if (each.reason == nothing) continue;
        EXPECT_EQ(printedBy(part(each.part), sourceOf(client)), "");
        if (each.part == std::string("retirementFunding")) run.desk.expect(screenkit::Answer::ok); // it says so at View
        EXPECT_EQ(shownBy(screens.at(each.part), "cmdPrint cmdVR", client), "");
    }
    EXPECT_EQ(part("travelClaim").whyNot(sourceOf(blank)), "Its screen holds no figures, and it stores none.");
    // Costs that can't be read are told by printing, else the part would be missing without a word.
    setDefault("DELETE FROM IncFromShares");
    EXPECT_EQ(part("incomeShares").whyNot(sourceOf(fullWith())), "");
    EXPECT_THROW(printedBy(part("incomeShares"), sourceOf(fullWith())), store::Error);
}

TEST_F(CalculatorParts, SayWhereAStoredResultIsNotThePresentOne) {
    struct Remarked {
        const char *part, *remark;
        Change change; ///< of the full client
    };
    const char* const loan = "The loan stored is not the one that its own figures give.";
    const char* const bond = "The extra payment stored for the bond is not the one that its own figures give.";
    const char* const period = "The period stored for nominal and effective interest is not a whole number of "
                               "compounding periods: 12 months count instead.";
    const char* const payments =
        "Escalations stored for the payments of the real rate of return have no effect and count as 0.";
    const char* const single =
        "The escalation stored for the premium of the single investment has no effect and counts as 0. The rate of "
        "return stored for the single investment is not the one that its own figures give.";
    const char* const gains = "The capital gains stored with these assets are not those that their own figures give: "
                              "1, 2. The capital loss brought forward that is stored is above 0 and counts as a gain.";
    const char* const known = "The known capital gains stored are not the sum of their own list.";
    const Remarked all[] = {
        {"loans", loan, [](A& of) { of.loans.Num3 = 11; }},
        {"loans", loan, [](A& of) { of.loans.Num4 -= 0.01; }},
        {"loans", loan,
         [](A& of) {
             of.loans = {"Monthly repayment", 100000, 25, 12, 4540.68};
         }},
        {"loans", "",
         [](A& of) {
             of.loans = {"Repayment period", 100000, 0, 12, 1000};
         }}, // never clears
        {"loans", "", [](A& of) { of.loans.Heading = "Anything"; }},
        {"bondBuster", bond, [](A& of) { of.bond.VOLUN = 1234.56; }},
        {"bondBuster", "", [](A& of) { of.bond.VOLUN = 1e9; }}, // too high to be raised
        {"bondBuster", "",
         [](A& of) { of.bond.VOLUN = 1234.56, calculators::keepExtra(of.bond, calculators::BBCalc(of.bond)); }},
        {"nominalEffective", period, [](A& of) { of.nominalEffective.PeriodNomEff = 17; }},
        {"nominalEffective", "", [](A& of) { of.nominalEffective.PeriodNomEff = 0; }},
        {"realRate", payments, [](A& of) { of.rrrNew.RRRNEWPeriod = 12; }},
        {"realRateSingle", single, [](A& of) { of.rrrOld.Period = 12; }},
        {"realRateSingle", "", [](A& of) { of.rrrOld.RRR = of.rrrOld.TotPremPaid = 0; }}, // as loaded
        {"capitalGains", gains,
         [](A& of) {
             of.capitalGains.assets[0].CapGain = of.capitalGains.assets[1].CapGain =
                 of.capitalGains.CarryOverCapGainPrev = 5;
         }},
        {"capitalGains", known, [](A& of) { of.capitalGains.trustOther[0].Amount = 5; }},
        {"capitalGains", "",
         [](A& of) { of.capitalGains.AdditCapGainLocal = 7, of.capitalGains.ItemiseAdditCapGain = 0; }},
    };
    for (const Remarked& each : all) {
        const auto remark = part(each.part).remark;
        EXPECT_EQ(remark(sourceOf(fullWith(each.change))), each.remark);
        EXPECT_EQ(remark(sourceOf(fullWith())), "") << each.part;
        EXPECT_EQ(remark(sourceOf(run.record())), "") << each.part;
    }
}

} // namespace
