#include "calculators/bondbuster.h"
#include "clientfile/partlists.h"
#include "clientfile/parts_support.h"
#include "tax/frmMonthly.h"

namespace {

using namespace parttest;
using A = assessment::Assessment;
using Change = void (*)(A&); ///< of a client

constexpr const char* nothing = "Nothing is entered yet.";
constexpr const char* noResult = "The figures give no result that can be printed.";

const assessment::Loans neverClears{"Repayment period", 100000, 0, 12, 1000};
const assessment::Loans inWholeCents{"Monthly repayment", 100000, 25, 12, 4540.68};
const assessment::DrawDownPhase growing{1, 50, 1, 0, 99};

constexpr auto noDate = static_cast<std::int32_t>(base::NoDate);

const QStringList screens =
    QString("inflation frmInflation, loans frmLoans, bondBuster frmBondBuster, bondAnalysis frmBondAna, "
            "lifeOfCapital frmLifeOfCap, incomeShares frmIncomeShares, dailyBalance frmDayBal, "
            "nominalEffective frmNomEffec, debtConsolidation frmDebtCon, investmentComparison frmInvestComp, "
            "offshoreInvestments frmOffShore, drawDownAnnuity frmDDLivAnn, realRate frmRRRNEW, "
            "realRateSingle frmRRROLD, retirementFunding frmRATaxAdv, estateDuty frmEstateDutyEst, "
            "capitalGains frmCGTCalcIncome, lumpSums frmLumpSum, travelClaim frmCarAll, quickTax frmKwikTax")
        .split(", ");
QString screenOf(const char* name) { return screens.filter(QString(name) + ' ').front().section(' ', 1); }

class CalculatorParts : public PartsTest {
protected:
    A fullWith(Change change = [](A&) {}) {
        A client = fullClient(run.record());
        change(client);
        return client;
    }
    /// presses: up to the choices in the print panel.
    void expectPrinted(
        const char* name, const Choices& choices, const QString& presses, Change change = [](A&) {}) {
        const QString view = name == std::string("quickTax") ? " cmdViewScreen" : " cmdVR";
        expectAsShown(name, choices, screenOf(name), presses + view, fullWith(change));
    }
    void setDefault(const char* sql) { store::Database(run.folder / "Default.Mdb").execute(sql); }
};

TEST_F(CalculatorParts, PrintWhatTheirScreensPrintWithEachChoice) {
    const Choice table = Choice::amortisation, monthly = Choice::monthly;
    for (const QString& each : screens)
        expectPrinted(each.section(' ', 0, 0).toLatin1(), {}, "cmdPrint");
    expectPrinted("loans", {monthly, Choice::charges}, "cmdFinCharge cmdPrint");
    for (const char* loan : {"loans", "debtConsolidation"}) {
        expectPrinted(loan, {table}, "cmdPrint Check1");
        expectPrinted(loan, {table, monthly}, "cmdPrint Check1 Option1(1)");
    }
    expectPrinted("lifeOfCapital", {table}, "cmdPrint Check1");
    expectPrinted("drawDownAnnuity", {table}, "cmdPrint Check1");
    expectPrinted("incomeShares", {Choice::commissions}, "cmdPrint chkIncComms");
    expectPrinted("capitalGains", {Choice::knownGains}, "cmdPrint Check4");
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
    for (const Choices& choices : {Choices{}, Choices{Choice::knownGains}}) // known gains alone are always printed
        expectPrinted("capitalGains", choices, "cmdPrint Check4", [](A& of) { of.capitalGains.assets.clear(); });
    setDefault("UPDATE Setup SET RptLanguage = 'A'");
    setDefault("UPDATE EstateDutyEst SET RateofTax = 11");
    for (const char* name : {"retirementFunding", "estateDuty", "travelClaim"})
        expectPrinted(name, {}, "cmdPrint");
}

TEST_F(CalculatorParts, AMonthOfPAYEIsThatOfItsScreenWhileThatHoldsOne) {
    const Part& month = part("monthlyTax");
    run.record() = fullWith();
    Source source = sourceOf(run.record());
    run.menu("mnuPAYE");
    const auto shown = [&] { return qobject_cast<tax::frmMonthly*>(run.screen("frmMonthly"))->shown(); };
    EXPECT_FALSE(shown().has_value());
    EXPECT_EQ(month.whyNot(source), clientfile::nothingOnScreen);
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
        {"loans", noResult, [](A& of) { of.loans = neverClears; }},
        {"bondBuster", nothing, [](A& of) { of.bond.BCMBP2 = 1; }},
        {"bondBuster", noResult, [](A& of) { of.bond = {1e308, 600, 50, 0, 0, 0}; }},
        {"bondAnalysis", nothing, [](A& of) { of.bond.VOLUN = 1; }},
        {"bondAnalysis", noResult, [](A& of) { of.bond = {0, 0, 0, 0, 1e308, 50}; }},
        {"inflation", noResult,
         [](A& of) {
             of.inflation.PresCostInflation = 1e308, of.inflation.IntRateInflation = 40,
             of.inflation.PeriodInflation = 40;
         }},
        {"lifeOfCapital", noResult,
         [](A& of) { of.lifeOfCapital.CAPI = of.lifeOfCapital.GRTE = 1e308, of.lifeOfCapital.MINC = 1; }},
        {"incomeShares", nothing, [](A& of) { of.incomeShares.AnnMonIncShare = "monthly"; }},
        {"incomeShares", noResult, [](A& of) { of.incomeShares.InvestAmount = 1; }},
        {"incomeShares", noResult, [](A& of) { of.incomeShares = {1e308, 99, 1, 0, 0, "monthly"}; }},
        {"dailyBalance", nothing, [](A& of) { of.dailyBalance.StartDateDB = of.dailyBalance.EndDateDB = noDate; }},
        {"nominalEffective", nothing,
         [](A& of) { of.nominalEffective.PeriodNomEff = 12, of.nominalEffective.IntComp = 4; }},
        {"nominalEffective", noResult, [](A& of) { of.nominalEffective.amount = of.nominalEffective.NomRate = 8; }},
        {"debtConsolidation", noResult, [](A& of) { of.debts.Loan1Amt = of.debts.Loan2Amt = 1e308; }},
        {"investmentComparison", noResult, [](A& of) { of.comparison.MonTAnn = 1e308; }},
        {"offshoreInvestments", noResult, [](A& of) { of.offShore = {2000000000, 600, 50, 50, 0, 0, 0}; }},
        {"drawDownAnnuity", noResult, [](A& of) { of.drawDown.LSAmt = 1e308, of.drawDownPhases.phase0 = growing; }},
        {"realRate", noResult, [](A& of) { of.rrrNew.RegMpay1 = 1e308, of.rrrNew.RRRNEWPeriod = 12; }},
        {"realRateSingle", noResult, [](A& of) { of.rrrOld.MonPrem = 1e308, of.rrrOld.Period = 12; }},
        {"retirementFunding", nothing,
         [](A& of) { of.raTaxAdvantage.RATaxPayerAge = 45, of.raTaxAdvantage.RASurname = "N"; }},
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
        EXPECT_EQ(shownBy(screenOf(each.part), "cmdPrint cmdVR", client), "");
    }
    EXPECT_EQ(part("travelClaim").whyNot(sourceOf(blank)), clientfile::nothingOnScreen);
    A loaded = fullWith();
    loaded.drawDownPhases = {};
    EXPECT_EQ(part("drawDownAnnuity").whyNot(sourceOf(loaded)), clientfile::nothingOnScreen);
    // Costs that can't be read are told by printing, else the part would be missing without a word.
    setDefault("DELETE FROM IncFromShares");
    EXPECT_EQ(part("incomeShares").whyNot(sourceOf(fullWith())), "");
    EXPECT_THROW(printedBy(part("incomeShares"), sourceOf(fullWith())), store::Error);
}

TEST_F(CalculatorParts, SayWhereAStoredResultIsNotThePresentOne) {
    struct Remarked {
        const char *part, *words; ///< of the remark; empty: there is none
        Change change;            ///< of the full client
    };
    const Remarked all[] = {
        {"loans", "loan stored", [](A& of) { of.loans.Num3 = 11; }},
        {"loans", "loan stored", [](A& of) { of.loans.Num4 -= 0.01; }},
        {"loans", "loan stored", [](A& of) { of.loans = inWholeCents; }},
        {"loans", "", [](A& of) { of.loans = neverClears; }},
        {"loans", "", [](A& of) { of.loans.Heading = "Anything"; }},
        {"bondBuster", "extra payment stored", [](A& of) { of.bond.VOLUN = 1234.56; }},
        {"bondBuster", "", [](A& of) { of.bond.VOLUN = 1e9; }}, // too high to be raised
        {"bondBuster", "",
         [](A& of) { of.bond.VOLUN = 1234.56, calculators::keepExtra(of.bond, calculators::BBCalc(of.bond)); }},
        {"nominalEffective", "12 months count", [](A& of) { of.nominalEffective.PeriodNomEff = 17; }},
        {"nominalEffective", "", [](A& of) { of.nominalEffective.PeriodNomEff = 0; }},
        {"realRate", "payments of the real rate", [](A& of) { of.rrrNew.RRRNEWPeriod = 12; }},
        {"realRateSingle", "counts as 0. The rate of return", [](A& of) { of.rrrOld.Period = 12; }},
        {"realRateSingle", "", [](A& of) { of.rrrOld.RRR = of.rrrOld.TotPremPaid = 0; }}, // as loaded
        {"capitalGains", "give: 1, 2. The capital loss",
         [](A& of) {
             of.capitalGains.CarryOverCapGainPrev = of.capitalGains.assets[0].CapGain =
                 of.capitalGains.assets[1].CapGain = 5;
         }},
        {"capitalGains", "The known capital gains", [](A& of) { of.capitalGains.trustOther[0].Amount = 5; }},
        {"capitalGains", "",
         [](A& of) { of.capitalGains.AdditCapGainLocal = 7, of.capitalGains.ItemiseAdditCapGain = 0; }},
    };
    for (const Remarked& each : all) {
        const auto remark = part(each.part).remark;
        const std::string said = remark(sourceOf(fullWith(each.change)));
        EXPECT_TRUE(*each.words == 0 ? said.empty() : said.find(each.words) != std::string::npos) << said;
        EXPECT_EQ(remark(sourceOf(fullWith())), "") << each.part;
        EXPECT_EQ(remark(sourceOf(run.record())), "") << each.part;
    }
}

} // namespace
