#include <cmath>
#include <limits>

#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/itemise.h"
#include "analyses/itemisereport.h"
#include "analyses/premium.h"
#include "client/years.h"
#include "clientfile/parts_support.h"
#include "finance/capitalpremium.h"

namespace {

using namespace parttest;
using assessment::Assessment;

class AnalysisParts : public PartsTest {
protected:
    /// A client with all analyses and a quotation, as their screens leave them.
    Assessment analysed() {
        Assessment full = fullClient(run.record());
        assessment::Policy life;
        life.PolInvType = "Whole life";
        life.DeathBen = 750000;
        life.DeathBenMonthly = 2500;
        life.DeathBenYears = 10;
        life.DisabilLumpSum = 300000;
        life.PolIncNote = "Reviewed";
        life.PolIncAddNote = "Ceded before";
        assessment::Policy annuity;
        annuity.PolInvType = "Retirement annuity";
        annuity.RBEMV = 900000;
        annuity.RBEMVAge = 60;
        annuity.RBMonAvaible = 4000;
        full.policies = {life, annuity};
        full.death.Inflation = full.disability.MDisaDTS6 = full.retirement.InflationRA = 6;
        full.death.InvestRate = full.disability.MDisaDTS7 = full.retirement.BankInvestRate = 10.5;
        full.death.DeathNotes = full.disability.DisaNotes = full.retirement.RANotes = "First line\nSecond line";
        full.death.ANSLib4 = full.disability.Disalib4 = full.retirement.ANSLLib4 = 250000;
        full.disability.MDisaDTS5 = full.retirement.IncomePD = 20000;
        full.disability.MDisaDTS15 = full.retirement.CoverYears = 20;
        full.retirement.AgeRetiment = 62;
        itemise(full, assessment::Analysis::death, 0, {{"Family", 18000, 6, 1, 15}});
        itemise(full, assessment::Analysis::death, 4, {{"Car", 200000, 0, 0, 0, 2}});
        itemise(full, assessment::Analysis::disability, 10, {{"Ramp", 90000, 0, 0, 0, 3}});
        itemise(full, assessment::Analysis::retirement, 0, {{"Rent", 5000, 5, 62, 80}});
        full.education = {80000, 7, 8, 4, 9};
        full.quotes = {"U", 50000, 0, 2000, 120, 11, 5};
        analyses::runDeath(full);
        analyses::runDisability(full);
        const double today = sourceOf(full).today;
        analyses::carryPremium(full, analyses::runRetirement(full, today));
        analyses::carryPremium(full, analyses::NAEdCalc(full.education));
        for (assessment::CapitalPremium* premium : {&full.premiums.retirement, &full.premiums.education}) {
            premium->PremGrowth = 12;
            finance::solvePremium(*premium, full.funds);
        }
        return full;
    }
    static void itemise(Assessment& record, assessment::Analysis analysis, int line,
                        const std::vector<assessment::ItemRow>& rows) {
        for (const analyses::ItemLine& each : analyses::itemLines(analysis))
            if (each.index == line) analyses::takeItems(record, each, rows);
    }
};

TEST_F(AnalysisParts, PrintWhatTheirScreensPrintWithEachChoice) {
    struct Printed {
        const char* part;
        Choices choices;
        const char *screen, *presses;
    };
    const Choice years = Choice::amortisation, notes = Choice::notes;
    const Printed all[] = {
        {"personalDetails", {}, "frmPersDet", "cmdPrint cmdVR"},
        {"personalDetails", {notes}, "frmPersDet", "cmdPrint Check3 cmdVR"},
        {"policiesDetails", {}, "frmPolInvest", "cmdPrint cmdVR"},
        {"policiesDetails", {notes}, "frmPolInvest", "cmdPrint chkIncNotes cmdVR"},
        {"policiesSchedule", {}, "frmPolInvest", "cmdPrint chkPolInvestSchudule chkPolInvestList cmdVR"},
        {"policiesSchedule",
         {notes},
         "frmPolInvest",
         "cmdPrint chkPolInvestSchudule chkPolInvestList chkIncNotes cmdVR"},
        {"deathAnalysis", {}, "frmNADeath", "cmdPrint cmdVR"},
        {"deathAnalysis", {years}, "frmNADeath", "cmdPrint Check1 cmdVR"},
        {"deathAnalysis", {notes}, "frmNADeath", "cmdPrint Check3 cmdVR"},
        {"disabilityAnalysis", {}, "frmNADisability", "cmdPrint cmdVR"},
        {"disabilityAnalysis", {years, notes}, "frmNADisability", "cmdPrint Check1 Check3 cmdVR"},
        {"retirementAnalysis", {}, "frmNARA", "cmdPrint cmdVR"},
        {"retirementAnalysis", {years, notes}, "frmNARA", "cmdPrint Check1 Check3 cmdVR"},
        {"retirementAnalysis", {Choice::premium}, "frmNARA", "cmdPrint Check2 cmdVR"},
        {"educationAnalysis", {}, "frmNAEd", "cmdPrint cmdVR"},
        {"educationAnalysis", {years, Choice::premium}, "frmNAEd", "cmdPrint Check1 Check2 cmdVR"},
        {"kwikQuotes", {}, "frmKwikQuotes", "cmdPrint cmdVR"},
        {"kwikQuotes", {Choice::commissions}, "frmKwikQuotes", "cmdPrint chkIncComms cmdVR"},
        {"kwikQuotes", {years}, "frmKwikQuotes", "cmdPrint chkIncAmort cmdVR"},
    };
    const Assessment full = analysed();
    for (const Printed& each : all)
        expectAsShown(each.part, each.choices, each.screen, each.presses, full);
    // What the screens work out when they open: an older client, new policies, rates above their limits.
    Assessment stale = full;
    stale.client.BirthDate -= 25 * 365.25;
    stale.policies[0].DeathBen += 123456;
    stale.policies[0].DisabilLumpSum += 5;
    stale.death.InvestRate = stale.disability.MDisaDTS7 = stale.retirement.BankInvestRate = stale.education.BankRate =
        60;
    stale.death.PeriodDeath = 3;
    stale.quotes.TYPEINVEST = "E";
    stale.funds.EAMFee = 40; // the screen reads the practice's rates when it opens
    stale.CurPolicy = 2;
    for (const Printed& each : all)
        expectAsShown(each.part, each.choices, each.screen, each.presses, stale);
}

TEST_F(AnalysisParts, PrintItemisedParticularsUnderTheirAnalysis) {
    const Assessment full = analysed();
    const std::tuple<const char*, const char*, const char*> all[] = {
        {"deathAnalysis", "frmNADeath", "Itemised Particulars of the Needs Analysis for Death"},
        {"disabilityAnalysis", "frmNADisability", "Itemised Particulars of the Needs Analysis for Disability"},
        {"retirementAnalysis", "frmNARA", "Itemised Particulars of the Needs Analysis for Retirement"}};
    for (const auto& [name, screen, title] : all) {
        std::string shown = shownBy(screen, "cmdPrint Check4 cmdVR", full);
        const std::size_t at = shown.find(analyses::itemisedTitle);
        ASSERT_NE(at, std::string::npos) << name;
        shown.replace(at, std::string(analyses::itemisedTitle).size(), title);
        EXPECT_EQ(printedBy(part(name), sourceOf(full), {Choice::itemised}), shown);
        Assessment plain = full;
        plain.itemised = {};
        const Source source = sourceOf(plain);
        EXPECT_EQ(printedBy(part(name), source, {Choice::itemised}), printedBy(part(name), source)) << name;
    }
}

TEST_F(AnalysisParts, SayWhyTheyCannotBePrinted) {
    const std::string nothing = "Nothing is entered yet.", none = "No policies or investments are on record.",
                      unprintable = "The figures give no result that can be printed.";
    constexpr double huge = std::numeric_limits<double>::max();
    const auto birth = [](Assessment& r) { r.client.BirthDate = 11000; };
    struct Case {
        const char* part;
        std::function<void(Assessment&)> change; ///< of a blank client
        std::string reason;
    };
    const Case all[] = {
        {"personalDetails", [](Assessment&) {}, nothing},
        {"personalDetails", [](Assessment& r) { r.details.DEP[7] = "Anna"; }, ""},
        {"personalDetails", birth, ""},
        {"policiesDetails", [](Assessment&) {}, none},
        {"policiesSchedule", [](Assessment& r) { r.policies.resize(3); }, none},
        {"policiesSchedule", [](Assessment& r) { r.policies.emplace_back().PaidUp = 1; }, ""},
        // The schedule of policies and an empty list are nothing that a person entered into the analysis.
        {"deathAnalysis", [](Assessment& r) { r.death.ANSAss5 = 5, r.itemised.DTHLifeAssItemise = 1; }, nothing},
        {"deathAnalysis", [](Assessment& r) { r.itemised.DTHCars.rows.resize(1); }, nothing},
        {"deathAnalysis", [](Assessment& r) { r.itemised.DISACars.rows.push_back({"Car"}); }, nothing},
        {"deathAnalysis", [](Assessment& r) { r.itemised.DTHCars.rows.push_back({"Car"}); }, ""},
        {"deathAnalysis", [](Assessment& r) { r.death.DTHNextReview = base::NoDate; }, nothing},
        {"deathAnalysis", [](Assessment& r) { r.death.DTHNextReview = 46000; }, ""},
        {"deathAnalysis", [](Assessment& r) { r.death.DeathNotes = "Later"; }, ""},
        {"deathAnalysis", [](Assessment& r) { r.death.ANSLib1 = huge, r.death.ANSLib2 = huge; }, unprintable},
        {"disabilityAnalysis", [](Assessment& r) { r.disability.DisaASS5 = 5; }, nothing},
        {"disabilityAnalysis", [](Assessment& r) { r.disability.DISALastReview = base::NoDate; }, nothing},
        {"disabilityAnalysis", [](Assessment& r) { r.disability.Disalib5 = 1; }, ""},
        // The last year's capital, not the first one's, is too large.
        {"disabilityAnalysis",
         [](Assessment& r) { r.disability.DisaASS1 = huge, r.disability.MDisaDTS7 = 50, r.disability.MDisaDTS15 = 9; },
         unprintable},
        {"retirementAnalysis", birth, nothing},
        {"retirementAnalysis", [&](Assessment& r) { birth(r), analyses::runRetirement(r, 46349); }, nothing},
        {"retirementAnalysis", [&](Assessment& r) { birth(r), r.retirement.AgeRetiment = 97; }, ""},
        {"retirementAnalysis", [&](Assessment& r) { birth(r), r.retirement.NaraLastReview = base::NoDate; }, nothing},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.CurrAge = 40; }, ""},
        {"retirementAnalysis",
         [](Assessment& r) { r.retirement.IncomeRA = r.retirement.ANSLAss4 = r.retirement.YearsToRet = 3; }, nothing},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.ANSLAss1 = huge, r.retirement.ANSLAss2 = huge; },
         unprintable},
        {"educationAnalysis", [](Assessment& r) { r.education.EducNextReview = base::NoDate; }, nothing},
        {"educationAnalysis", [](Assessment& r) { r.education.YearsToEdu = 1; }, ""},
        {"educationAnalysis", [](Assessment& r) { r.education.FundsPD = huge, r.education.InflationEDU = 30; },
         unprintable},
        {"kwikQuotes", [](Assessment&) {}, nothing},
        {"kwikQuotes", [](Assessment& r) { r.quotes.TYPEINVEST = "U"; },
         "The quotation needs a growth rate and a term."},
        {"kwikQuotes", [](Assessment& r) { r.quotes = {"B", 5000, 0, 0, 12, 8, 0}; }, ""},
        {"kwikQuotes", [](Assessment& r) { r.quotes = {"B", huge, huge, 0, 24, 50, 0}; }, unprintable},
        {"advice", [](Assessment& r) { r.fileTexts.decision = " \n "; }, "No text is written yet."},
        {"advice", [](Assessment& r) { r.fileTexts.decision = "Later."; }, ""},
    };
    for (const Case& each : all) {
        Assessment record = run.record();
        each.change(record);
        const Source source = sourceOf(record);
        EXPECT_EQ(part(each.part).whyNot(source), each.reason) << each.part << " " << &each - all;
        if (each.reason != unprintable) continue;
        EXPECT_EQ(printedBy(part(each.part), source, {Choice::amortisation}), "");
    }
    Source unread = sourceOf(analysed());
    unread.paths.DefaultDbPath = "/nowhere/Default.Mdb";
    EXPECT_NE(part("kwikQuotes").whyNot(unread), "");
}

TEST_F(AnalysisParts, RemarkWhatIsStoredAndNoLongerTrue) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto is = [](const std::string& name, const std::string& what) {
        return "The " + name + " analysis stored is not that of " + what + ".";
    };
    const std::string schedule = "the present schedule", lists = "its itemised lists", age = "the client's present age";
    struct Case {
        const char* part;
        std::function<void(Assessment&)> change;
        std::string remark;
    };
    const Case all[] = {
        {"policiesSchedule", [](Assessment& r) { r.policies[1].DeathBenAmtCeded = 1; }, ""},
        {"policiesSchedule",
         [](Assessment& r) { r.policies[1].DeathBenAmtCeded = r.policies[1].DeathBenLoanAgainst = 1; },
         "A policy has both a loan against it and an amount ceded. It can have only one of them."},
        {"deathAnalysis", [](Assessment& r) { r.death.ANSAss5 = std::nextafter(r.death.ANSAss5, 0); },
         is("death", schedule)},
        {"deathAnalysis", [](Assessment& r) { r.policies[0].DeathBen += 1; }, is("death", schedule)},
        {"deathAnalysis", [](Assessment& r) { r.itemised.DTHLifeAssItemise = 0; }, is("death", schedule)},
        {"deathAnalysis", [](Assessment& r) { r.death.ANSAss5 = nan; }, is("death", schedule)},
        {"deathAnalysis", [](Assessment& r) { r.death.ANSAss5 = nan, r.policies[0].DeathBen = HUGE_VAL; }, ""},
        {"deathAnalysis", [](Assessment& r) { r.itemised.DTHCars.rows[0].Amount += 0.01; }, is("death", lists)},
        {"deathAnalysis", [](Assessment& r) { r.death.PeriodDeath += 1; }, is("death", lists)},
        {"deathAnalysis", [](Assessment& r) { r.death.Income += 1, r.itemised.DTHMonIncReq.flag = 0; }, ""},
        {"deathAnalysis", [](Assessment& r) { r.death.Inflation = 30.5; },
         "The inflation rate of the death analysis is 30.5 % a year; it counts as 30 %, the highest allowed."},
        {"deathAnalysis", [](Assessment& r) { r.death = {}, r.itemised = {}; }, ""}, // nothing is entered
        {"disabilityAnalysis", [](Assessment& r) { r.policies[0].DisabilLumpSum += 1, r.disability.MDisaDTS7 = 51; },
         is("disability", schedule) +
             " The investment rate of the disability analysis is 51 % a year; it counts as 50 %, the highest allowed."},
        {"disabilityAnalysis", [](Assessment& r) { r.disability.Disalib5 += 1; }, is("disability", lists)},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.ANSLAss4 += 1; }, is("retirement", schedule)},
        {"retirementAnalysis", [](Assessment& r) { r.itemised.RNAPoliciesItemise = 0; }, is("retirement", schedule)},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.CurrAge -= 1, r.retirement.YearsToRet += 1; },
         is("retirement", age)},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.YearsToRet -= 1; },
         "The retirement analysis stored has other years to retirement than its two ages give."},
        {"retirementAnalysis", [](Assessment& r) { r.retirement.IncomeRA += 1; },
         "The income of the retirement analysis stored is not that of its present figures."},
        {"retirementAnalysis", [](Assessment& r) { r.premiums.retirement.capital += 1; },
         "The premium worked out is not for the capital of the present retirement analysis and is left out."},
        {"retirementAnalysis",
         [](Assessment& r) { r.premiums.retirement.capital += 1, r.premiums.retirement.isSolved = 0; }, ""},
        {"educationAnalysis", [](Assessment& r) { r.education.InflationEDU = 31, r.premiums = {}; },
         "The inflation rate of the education analysis is 31 % a year; it counts as 30 %, the highest allowed."},
        {"educationAnalysis", [](Assessment& r) { r.education.BankRate = 50, r.premiums = {}; }, ""},
        {"educationAnalysis", [](Assessment& r) { r.funds.UTCOM += 1; },
         "The premium for the capital of the education analysis is not that of the present rates."},
    };
    const Assessment full = analysed();
    EXPECT_THAT(clientfile::remarksOn(sourceOf(full)), testing::IsEmpty());
    for (const Case& each : all) {
        Assessment record = full;
        each.change(record);
        EXPECT_EQ(part(each.part).remark(sourceOf(record)), each.remark) << each.part << " " << &each - all;
    }
}

} // namespace
