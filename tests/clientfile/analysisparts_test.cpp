#include <cmath>
#include <limits>

#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/itemise.h"
#include "analyses/premium.h"
#include "clientfile/front.h"
#include "clientfile/partlists.h"
#include "clientfile/parts_support.h"
#include "finance/capitalpremium.h"

namespace {

using namespace parttest;
using R = assessment::Assessment;

class AnalysisParts : public PartsTest {
protected:
    /// A client with all analyses and a quotation, as their screens leave them.
    R analysed() {
        R full = fullClient(run.record());
        assessment::Policy& life = full.policies[0];
        life.PolInvType = life.PolIncNote = life.PolIncAddNote = "Whole life";
        life.DeathBen = life.DisabilLumpSum = life.RBEMV = 750000;
        life.DeathBenMonthly = life.RBMonAvaible = 2500;
        life.DeathBenYears = life.RBEMVAge = 60;
        full.policies.push_back(life);
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
        analyses::carryPremium(full, analyses::runRetirement(full, sourceOf(full).today));
        analyses::carryPremium(full, analyses::NAEdCalc(full.education));
        full.premiums.retirement.PremGrowth = full.premiums.education.PremGrowth = 12;
        finance::solvePremium(full.premiums.retirement, full.funds);
        finance::solvePremium(full.premiums.education, full.funds);
        return full;
    }
    static void itemise(R& record, assessment::Analysis analysis, int line,
                        const std::vector<assessment::ItemRow>& rows) {
        for (const analyses::ItemLine& each : analyses::itemLines(analysis))
            if (each.index == line) analyses::takeItems(record, each, rows);
    }
};

TEST_F(AnalysisParts, PrintWhatTheirScreensPrintWithEachChoice) {
    const Choice years = Choice::amortisation, notes = Choice::notes, lists = Choice::itemised;
    const std::tuple<const char*, Choices, const char*, const char*> all[] = {
        {"personalDetails", {notes}, "frmPersDet", "Check3 "},
        {"policiesDetails", {}, "frmPolInvest", ""},
        {"policiesSchedule", {notes}, "frmPolInvest", "chkPolInvestSchudule chkPolInvestList chkIncNotes "},
        {"deathAnalysis", {years}, "frmNADeath", "Check1 "},
        {"deathAnalysis", {notes, lists}, "frmNADeath", "Check3 Check4 "},
        {"disabilityAnalysis", {years, lists}, "frmNADisability", "Check1 Check4 "},
        {"retirementAnalysis", {years, notes}, "frmNARA", "Check1 Check3 "},
        {"retirementAnalysis", {Choice::premium, lists}, "frmNARA", "Check2 Check4 "},
        {"educationAnalysis", {years, Choice::premium}, "frmNAEd", "Check1 Check2 "},
        {"kwikQuotes", {Choice::commissions}, "frmKwikQuotes", "chkIncComms "},
        {"kwikQuotes", {years}, "frmKwikQuotes", "chkIncAmort "},
    };
    const R full = analysed();
    R stale = full; // for which the screens have something to work out when they open
    stale.client.BirthDate -= 25 * 365.25;
    stale.policies[0].DeathBen = stale.policies[0].DisabilLumpSum = 123456;
    for (double* rate : {&stale.death.InvestRate, &stale.retirement.BankInvestRate, &stale.education.BankRate})
        *rate = 60;
    stale.death.PeriodDeath = 3;
    stale.itemised.DISAOtherExp = {}; // no list of that analysis is left
    stale.quotes.TYPEINVEST = "E";
    stale.funds.EAMFee = 40; // not the practice's
    stale.CurPolicy = 2;
    for (const R& record : {full, stale})
        for (const auto& [name, choices, screen, ticks] : all)
            expectAsShown(name, choices, screen, QString("cmdPrint %1cmdVR").arg(ticks), record);
}

using Case = std::pair<std::function<void(R&)>, std::string>;         // a change, what is said of it
using Cases = std::vector<std::pair<const char*, std::vector<Case>>>; // by part

TEST_F(AnalysisParts, SayWhyTheyCannotBePrinted) {
    const std::string nothing = "Nothing is entered yet.", unprintable = clientfile::noResult;
    constexpr double huge = std::numeric_limits<double>::max();
    // Changes of a blank client. The schedule of policies, an empty list, a cleared date and what follows from the
    // birth date are nothing that a person entered into an analysis.
    const Cases all = {
        {"personalDetails", {{[](R&) {}, nothing}, {[](R& r) { r.client.BirthDate = 11000; }, ""}}},
        {"policiesDetails", {{[](R& r) { r.policies.resize(3); }, "No policies or investments are on record."}}},
        {"policiesSchedule", {{[](R& r) { r.policies.emplace_back().PaidUp = 1; }, ""}}},
        {"deathAnalysis",
         {{[](R& r) { r.death.ANSAss5 = r.itemised.DTHLifeAssItemise = 1; }, nothing},
          {[](R& r) { r.itemised.DISACars.rows.push_back({"Car"}), r.itemised.DTHCars.rows.resize(1); }, nothing},
          {[](R& r) { r.itemised.DTHCars.rows.push_back({"Car"}); }, ""},
          {[](R& r) { r.death.DeathNotes = "Later"; }, ""},
          {[](R& r) { r.death.ANSLib1 = r.death.ANSLib2 = huge; }, unprintable}}},
        {"disabilityAnalysis",
         {{[](R& r) { r.disability.DisaASS5 = 5, r.disability.DISALastReview = base::NoDate; }, nothing},
          {[](R& r) { r.disability.DisaASS1 = huge, r.disability.MDisaDTS7 = 50; }, unprintable}}}, // in year 2
        {"retirementAnalysis",
         {{[](R& r) { r.client.BirthDate = 11000, analyses::runRetirement(r, 46349); }, nothing},
          {[](R& r) { r.client.BirthDate = 11000, r.retirement.AgeRetiment = 97; }, ""},
          {[](R& r) { r.retirement.NaraLastReview = base::NoDate, r.retirement.IncomeRA = 3; }, nothing},
          {[](R& r) { r.retirement.CurrAge = 40; }, ""},
          {[](R& r) { r.retirement.ANSLAss1 = r.retirement.ANSLAss2 = huge; }, unprintable}}},
        {"educationAnalysis",
         {{[](R& r) { r.education.EducNextReview = base::NoDate; }, nothing},
          {[](R& r) { r.education.FundsPD = huge, r.education.InflationEDU = 30; }, unprintable}}},
        {"kwikQuotes",
         {{[](R& r) { r.quotes.TYPEINVEST = "U"; }, "The quotation needs a growth rate and a term."},
          {[](R& r) { r.quotes = {"B", 5000, 0, 0, 12, 8, 0}; }, ""},
          {[](R& r) { r.quotes = {"B", huge, huge, 0, 24, 50, 0}; }, unprintable}}},
        {"advice",
         {{[](R& r) { r.fileTexts.decision = " \n "; }, "No text is written yet."},
          {[](R& r) { r.fileTexts.decision = "Later."; }, ""}}},
    };
    for (const auto& [name, cases] : all)
        for (const Case& each : cases) {
            R record = run.record();
            each.first(record);
            EXPECT_EQ(part(name).whyNot(sourceOf(record)), each.second) << name << " " << &each - cases.data();
            EXPECT_TRUE(each.second != unprintable || printedBy(part(name), sourceOf(record)).empty()) << name;
        }
    Source unread = sourceOf(analysed());
    unread.paths.DefaultDbPath = "/nowhere/Default.Mdb";
    EXPECT_EQ(part("kwikQuotes").whyNot(unread), ""); // else the quotation would be missing without a word
    EXPECT_THROW(printedBy(part("kwikQuotes"), unread), store::Error);
}

TEST_F(AnalysisParts, RemarkWhatIsStoredAndNoLongerTrue) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto is = [](const char* analysis, const char* not_of) {
        return std::string("The ") + analysis + " analysis stored is not that of " + not_of + ".";
    };
    const auto counts = [](const char* rate, const char* as) {
        return std::string("The ") + rate + " % a year; it counts as " + as + " %, the highest allowed.";
    };
    const char *schedule = "the present schedule", *lists = "its itemised lists";
    const Cases all = {
        {"policiesSchedule",
         {{[](R& r) { r.policies[1].DeathBenAmtCeded = r.policies[1].DeathBenLoanAgainst = 1; },
           "A policy has both a loan against it and an amount ceded. It can have only one of them."}}},
        {"deathAnalysis",
         {{[](R& r) { r.death.ANSAss5 = std::nextafter(r.death.ANSAss5, 0); }, is("death", schedule)},
          {[](R& r) { r.itemised.DTHLifeAssItemise = 0; }, is("death", schedule)},
          {[](R& r) { r.death.ANSAss5 = nan, r.policies[0].DeathBen = HUGE_VAL; }, ""},
          {[](R& r) { r.itemised.DTHCars.rows[0].Amount += 0.01; }, is("death", lists)},
          {[](R& r) { r.death.PeriodDeath += 1; }, is("death", lists)},
          {[](R& r) { r.death.Inflation = 30.5; }, counts("inflation rate of the death analysis is 30.5", "30")}}},
        {"disabilityAnalysis",
         {{[](R& r) { r.policies[0].DisabilLumpSum += 1, r.disability.MDisaDTS7 = 51; },
           is("disability", schedule) + ' ' + counts("investment rate of the disability analysis is 51", "50")},
          {[](R& r) { r.disability.Disalib5 += 1; }, is("disability", lists)}}},
        {"retirementAnalysis",
         {{[](R& r) { r.retirement.ANSLAss4 += 1; }, is("retirement", schedule)},
          {[](R& r) { r.retirement.CurrAge -= 1; }, is("retirement", "the client's present age")},
          {[](R& r) { r.retirement.YearsToRet -= 1; },
           "The retirement analysis stored has other years to retirement than its two ages give."},
          {[](R& r) { r.retirement.IncomeRA += 1; },
           "The income of the retirement analysis stored is not that of its present figures."},
          {[](R& r) { r.premiums.retirement.capital += 1; },
           "The premium worked out is not for the capital of the present retirement analysis and is left out."},
          {[](R& r) { r.premiums.retirement.capital += 1, r.premiums.retirement.isSolved = 0; }, ""}}},
        {"educationAnalysis",
         {{[](R& r) { r.education.InflationEDU = 31, r.education.BankRate = 50, r.premiums = {}; },
           counts("inflation rate of the education analysis is 31", "30")},
          {[](R& r) { r.funds.UTCOM += 1; },
           "The premium for the capital of the education analysis is not that of the present rates."}}},
    };
    const R full = analysed();
    for (const clientfile::Part& each : clientfile::parts())
        EXPECT_EQ(remarkOn(each, sourceOf(full)), "");
    for (const auto& [name, cases] : all)
        for (const Case& each : cases) {
            R record = full;
            each.first(record);
            EXPECT_EQ(part(name).remark(sourceOf(record)), each.second) << name << " " << &each - cases.data();
        }
}

TEST_F(AnalysisParts, FrontPagesAndAdviceSayWhatIsGivenAndLeaveOutWhatIsEmpty) {
    R record = run.record();
    record.client = {"  J Nel", 29660, ""};
    record.fileTexts.basis = "One\n\nTwo";
    record.fileTexts.decision = "Agrees";
    const Source source = sourceOf(record);
    const auto words = [&](const datastore::Printout& printout) {
        return textOf(*run.program.reports().prepare(QString::fromStdString(printout.definition)));
    };
    const auto& print = source.paths.PrintDbPath;
    using testing::HasSubstr;
    EXPECT_THAT(words(clientfile::feedCover(print, record, 46349)),
                HasSubstr("<h1 class=\"cover\">J Nel</h1>\n<p class=\"lead\">Client file</p>\n<hr>\n"
                          "<p>23 November 2026</p>\n<hr>"));
    EXPECT_THAT(words(clientfile::feedRemarks(print, record.client.Name, {"One.", "Two."})), HasSubstr(">Two.</td>"));
    const std::string advice = printedBy(part("advice"), source);
    EXPECT_THAT(advice, HasSubstr("<p>One<br><br>Two</p>\n<h2>What the client decided</h2>\n<p>Agrees</p>\n<table"));
    EXPECT_THAT(advice.substr(advice.find("<h2>Adviser</h2>")), HasSubstr("Signature"));
}

} // namespace
