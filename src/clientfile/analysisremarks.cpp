#include "clientfile/analysisremarks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "analyses/itemise.h"
#include "analyses/premium.h"
#include "assessment/tables.h"
#include "base/numberformat.h"
#include "client/policyschedule.h"
#include "finance/capitalpremium.h"

namespace clientfile {

namespace {

using assessment::Analysis;
using assessment::Assessment;
using assessment::NADeath;
using assessment::NADisability;
using assessment::NARetirement;

using Figure = double& (*)(Assessment&);
template <auto Group, auto Member>
double& in(Assessment& record) {
    return record.*Group.*Member;
}

/// The stored figures of an analysis that something else in the record gives.
struct StoredResults {
    Analysis analysis;
    std::string name;
    Figure policies; ///< the capital line that the schedule of policies fills
    Figure inflation, rate;
    std::array<Figure, 3> derived{}; ///< from the lists of incomes
};

using A = Assessment;
const StoredResults death{
    Analysis::death,
    "death analysis",
    in<&A::death, &NADeath::ANSAss5>,
    in<&A::death, &NADeath::Inflation>,
    in<&A::death, &NADeath::InvestRate>,
    {in<&A::death, &NADeath::Income>, in<&A::death, &NADeath::PeriodDeath>, in<&A::death, &NADeath::DeathMIAvail>}};
const StoredResults disability{Analysis::disability,
                               "disability analysis",
                               in<&A::disability, &NADisability::DisaASS5>,
                               in<&A::disability, &NADisability::MDisaDTS6>,
                               in<&A::disability, &NADisability::MDisaDTS7>,
                               {in<&A::disability, &NADisability::MDisaDTS5>,
                                in<&A::disability, &NADisability::MDisaDTS15>,
                                in<&A::disability, &NADisability::DisaMIAvail>}};
const StoredResults retirement{
    Analysis::retirement,
    "retirement analysis",
    in<&A::retirement, &NARetirement::ANSLAss4>,
    in<&A::retirement, &NARetirement::InflationRA>,
    in<&A::retirement, &NARetirement::BankInvestRate>,
    {in<&A::retirement, &NARetirement::IncomePD>, in<&A::retirement, &NARetirement::CoverYears>}};

/// The same figure; a figure that is none is the same as another such.
bool isSame(double one, double other) { return one == other || (std::isnan(one) && std::isnan(other)); }

/// Adds a sentence behind those before it.
void say(std::string& sentences, const std::string& sentence) {
    if (!sentences.empty()) sentences += ' ';
    sentences += sentence;
}

/// Totals the schedule at the stored age of retirement.
bool isOfPresentSchedule(const StoredResults& needs, Assessment stored) {
    Assessment now = stored;
    client::CalculatePolInv(now);
    const auto isFlagSame = [&](const assessment::ItemTable& line) {
        const auto flag = [&](Assessment& record) { return *std::get<std::int16_t*>(line.flag.at(&record)); };
        return line.analysis != needs.analysis || line.list != nullptr || flag(stored) == flag(now);
    };
    // The pension's flag is not stored, and thus in no line.
    return isSame(needs.policies(stored), needs.policies(now)) &&
           std::ranges::all_of(assessment::itemTables(), isFlagSame);
}

bool isOfItsLists(const StoredResults& needs, Assessment stored) {
    Assessment now = stored;
    for (const analyses::ItemLine& line : analyses::itemLines(needs.analysis)) {
        if (line.list(stored).flag == 0) continue;
        analyses::takeItems(now, line, line.list(stored).rows);
        if (line.amount != nullptr && !isSame(line.amount(stored), line.amount(now))) return false;
    }
    return std::ranges::all_of(needs.derived, [&](double& (*figure)(Assessment&)) {
        return figure == nullptr || isSame(figure(stored), figure(now));
    });
}

/// An analysis reduces a rate above its limit without a word.
void sayRate(std::string& sentences, const std::string& which, const std::string& name, double rate, double limit) {
    if (!(rate > limit)) return;
    say(sentences, "The " + which + " of the " + name + " is " + base::plainNumber(rate) + " % a year; it counts as " +
                       base::plainNumber(limit) + " %, the highest allowed.");
}

std::string analysisRemark(const StoredResults& needs, const Source& source) {
    const std::string stored = "The " + needs.name + " stored is not that of ";
    std::string sentences;
    if (!isOfPresentSchedule(needs, source.record)) say(sentences, stored + "the present schedule.");
    if (!isOfItsLists(needs, source.record)) say(sentences, stored + "its itemised lists.");
    Assessment record = source.record;
    sayRate(sentences, "inflation rate", needs.name, needs.inflation(record), analyses::highestInflation);
    sayRate(sentences, "investment rate", needs.name, needs.rate(record), analyses::highestBankInvest);
    return sentences;
}

/// The premium is printed only while it is that for the capital of the analysis.
std::string premiumRemark(const assessment::CapitalPremium& premium, std::optional<double> capital, double years,
                          const Assessment& record, const std::string& name) {
    if (premium.isSolved != 1) return {};
    if (!finance::isSolvedFor(premium, capital, years))
        return "The premium worked out is not for the capital of the present " + name + " and is left out.";
    assessment::CapitalPremium now = premium;
    finance::solvePremium(now, record.funds);
    if (isSame(now.premium, premium.premium)) return {};
    return "The premium for the capital of the " + name + " is not that of the present rates.";
}

} // namespace

std::string deathRemark(const Source& source) { return analysisRemark(death, source); }
std::string disabilityRemark(const Source& source) { return analysisRemark(disability, source); }

std::string retirementRemark(const Source& source) {
    const NARetirement& stored = source.record.retirement;
    std::string sentences = analysisRemark(retirement, source);
    Assessment now = source.record;
    const analyses::NeedsAnalysis analysis = analyses::runRetirement(now, source.today);
    if (!isSame(stored.CurrAge, now.retirement.CurrAge) || !isSame(stored.AgeRetiment, now.retirement.AgeRetiment))
        say(sentences, "The retirement analysis stored is not that of the client's present age.");
    else if (!isSame(stored.YearsToRet, now.retirement.YearsToRet))
        say(sentences, "The retirement analysis stored has other years to retirement than its two ages give.");
    // The income depends on all the rest: it is told only if it alone differs.
    if (sentences.empty() && !isSame(stored.IncomeRA, now.retirement.IncomeRA))
        say(sentences, "The income of the retirement analysis stored is not that of its present figures.");
    const std::string premium =
        premiumRemark(source.record.premiums.retirement, analysis.capitalToProvide(),
                      analyses::yearsUntilNeeded(now.retirement), source.record, retirement.name);
    if (!premium.empty()) say(sentences, premium);
    return sentences;
}

std::string educationRemark(const Source& source) {
    const assessment::NAEducation& stored = source.record.education;
    std::string sentences;
    sayRate(sentences, "inflation rate", "education analysis", stored.InflationEDU, analyses::highestInflation);
    sayRate(sentences, "investment rate", "education analysis", stored.BankRate, analyses::highestBankInvest);
    assessment::NAEducation now = stored;
    const analyses::EducationAnalysis analysis = analyses::NAEdCalc(now);
    const std::string premium = premiumRemark(source.record.premiums.education, analysis.capitalToProvide(),
                                              analyses::yearsUntilNeeded(now), source.record, "education analysis");
    if (!premium.empty()) say(sentences, premium);
    return sentences;
}

} // namespace clientfile
