#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "analyses/coverreport.h"
#include "analyses/death.h"
#include "analyses/disability.h"
#include "analyses/educationreport.h"
#include "analyses/itemisereport.h"
#include "analyses/retirementreport.h"
#include "assessment/tables.h"
#include "clientfile/analysisremarks.h"
#include "clientfile/partlists.h"
#include "datastore/funds.h"
#include "quotes/quotereport.h"
#include "store/error.h"

namespace clientfile {

namespace {

using analyses::NeedsAnalysis;
using assessment::Analysis;
using assessment::Assessment;

// ---- what a person has entered

/// A date field that was cleared holds another number than one that was never filled.
void blankUnlessShown(std::initializer_list<double*> dates) {
    for (double* date : dates)
        if (!base::isShownOnScreen(*date)) *date = base::blankDate;
}

bool isEntered(const assessment::ItemList& list) {
    const auto isFilled = [](const assessment::ItemRow& row) { return row != assessment::ItemRow{}; };
    return list.flag != 0 || std::ranges::any_of(list.rows, isFilled);
}

bool anyList(const Assessment& record, Analysis analysis) {
    assessment::Itemised lists = record.itemised;
    return std::ranges::any_of(assessment::itemTables(), [&](const assessment::ItemTable& line) {
        return line.analysis == analysis && line.list != nullptr && isEntered(line.list(lists));
    });
}

bool isDeathEntered(const Assessment& record) {
    assessment::NADeath group = record.death;
    blankUnlessShown({&group.DTHLastReview, &group.DTHNextReview});
    group.ANSAss5 = 0; // from the schedule of policies
    return group != assessment::NADeath{} || anyList(record, Analysis::death);
}

bool isDisabilityEntered(const Assessment& record) {
    assessment::NADisability group = record.disability;
    blankUnlessShown({&group.DISALastReview, &group.DISANextReview});
    group.DisaASS5 = 0;
    return group != assessment::NADisability{} || anyList(record, Analysis::disability);
}

/// The screen works out the ages of a client whose birth date is known when it is opened, and retires him today if he
/// is older than the age of retirement that a new client has.
bool isRetirementEntered(const Assessment& record) {
    const assessment::NARetirement blank;
    assessment::NARetirement group = record.retirement;
    blankUnlessShown({&group.NaraLastReview, &group.NaraNextReview});
    if (group.AgeRetiment == std::max(blank.AgeRetiment, group.CurrAge)) group.AgeRetiment = blank.AgeRetiment;
    if (base::isShownOnScreen(record.client.BirthDate)) group.CurrAge = 0;
    group.YearsToRet = group.IncomeRA = group.ANSLAss4 = 0;
    return group != blank || anyList(record, Analysis::retirement);
}

bool isEducationEntered(const Assessment& record) {
    assessment::NAEducation group = record.education;
    blankUnlessShown({&group.EducLastReview, &group.EducNextReview});
    return group != assessment::NAEducation{};
}

// ---- the three analyses whose lines may be itemised

struct NeedsPart {
    Analysis analysis;
    bool (*isEntered)(const Assessment&);
    NeedsAnalysis (*run)(Assessment&, double today);
    datastore::Printout (*feed)(const std::filesystem::path&, const Assessment&, const NeedsAnalysis&,
                                const analyses::NeedsReportOptions&);
};

constexpr NeedsPart death{Analysis::death, isDeathEntered,
                          [](Assessment& record, double) { return analyses::runDeath(record); }, analyses::feedDeath};
constexpr NeedsPart disability{Analysis::disability, isDisabilityEntered,
                               [](Assessment& record, double) { return analyses::runDisability(record); },
                               analyses::feedDisability};
constexpr NeedsPart retirement{Analysis::retirement, isRetirementEntered, analyses::runRetirement,
                               analyses::feedRetirement};

bool areFinite(const std::vector<analyses::ShownYear>& years) {
    return std::ranges::all_of(years, [](const analyses::ShownYear& year) {
        return std::isfinite(year.capital + year.interest + year.available + year.required);
    });
}

bool isPrintable(const NeedsAnalysis& analysis) { return analysis.isFinite && areFinite(analysis.years()); }

template <const NeedsPart& needs>
std::string whyNoAnalysis(const Source& source) {
    if (!needs.isEntered(source.record)) return nothingEntered;
    Assessment record = source.record;
    return isPrintable(needs.run(record, source.today)) ? "" : noResult;
}

template <const NeedsPart& needs>
void printAnalysis(const Source& source, const Choices& choices, const Print& print) {
    Assessment record = source.record;
    const NeedsAnalysis analysis = needs.run(record, source.today);
    if (!isPrintable(analysis)) return;
    print(needs.feed(source.paths.PrintDbPath, record, analysis,
                     {.amortised = choices.contains(Choice::amortisation),
                      .notes = choices.contains(Choice::notes),
                      .premium = choices.contains(Choice::premium)}));
    if (!choices.contains(Choice::itemised) || !analyses::anyItemised(record, needs.analysis)) return;
    analyses::feedItemised(source.paths.PrintDbPath, record, needs.analysis);
    print({analyses::itemisedDefinition, analyses::itemisedTitle});
}

// ---- education

bool isPrintable(const analyses::EducationAnalysis& analysis) {
    return std::isfinite(analysis.flows.RequiredByYear[analyses::lastYear]) && areFinite(analysis.years());
}

std::string whyNoEducation(const Source& source) {
    if (!isEducationEntered(source.record)) return nothingEntered;
    assessment::NAEducation needs = source.record.education;
    return isPrintable(analyses::NAEdCalc(needs)) ? "" : noResult;
}

void printEducation(const Source& source, const Choices& choices, const Print& print) {
    Assessment record = source.record;
    const analyses::EducationAnalysis analysis = analyses::NAEdCalc(record.education);
    if (!isPrintable(analysis)) return;
    print(analyses::feedEducation(
        source.paths.PrintDbPath, record, analysis,
        {.amortised = choices.contains(Choice::amortisation), .premium = choices.contains(Choice::premium)}));
}

// ---- Kwik-Quotes

/// Refreshes the practice's rates in the record, as the screen does when it opens.
quotes::ShownQuote shownQuote(Assessment& record, const Source& source) {
    datastore::refreshFunds(record, source.paths.DefaultDbPath);
    return quotes::ShowQuote(record.quotes, record.funds);
}

std::string whyNoQuote(const Source& source) {
    if (source.record.quotes == assessment::KwikQuotes{}) return nothingEntered;
    try {
        Assessment record = source.record;
        const quotes::ShownQuote shown = shownQuote(record, source);
        if (shown.quote.QuoteEmpty) return "The quotation needs a growth rate and a term.";
        return shown.isFinite ? "" : noResult;
    } catch (const store::Error&) {
        return {}; // printing it tells what is wrong with the rates; left out, nobody would miss it
    }
}

void printQuote(const Source& source, const Choices& choices, const Print& print) {
    Assessment record = source.record;
    const quotes::ShownQuote shown = shownQuote(record, source);
    if (!shown.isFinite) return;
    const finance::CapitalLife none; // the screen prints the life of a capital only after its panel was opened
    print(quotes::feedQuote(
        source.paths.PrintDbPath, record.client.Name, {record.quotes, record.funds, shown, record.lifeOfCapital, none},
        {.commissions = choices.contains(Choice::commissions), .amortised = choices.contains(Choice::amortisation)}));
}

} // namespace

std::vector<Part> analysisParts() {
    using enum Choice;
    return {{"deathAnalysis",
             "Needs Analysis for Death",
             {amortisation, notes, itemised},
             whyNoAnalysis<death>,
             printAnalysis<death>,
             deathRemark},
            {"disabilityAnalysis",
             "Needs Analysis for Disability",
             {amortisation, notes, itemised},
             whyNoAnalysis<disability>,
             printAnalysis<disability>,
             disabilityRemark},
            {"retirementAnalysis",
             "Needs Analysis for Retirement",
             {amortisation, notes, premium, itemised},
             whyNoAnalysis<retirement>,
             printAnalysis<retirement>,
             retirementRemark},
            {"educationAnalysis",
             "Needs Analysis for Education",
             {amortisation, premium},
             whyNoEducation,
             printEducation,
             educationRemark},
            {"kwikQuotes", "Kwik-Quotes", {commissions, amortisation}, whyNoQuote, printQuote}};
}

} // namespace clientfile
