#include "analyses/frmCover.h"

#include <utility>

#include "analyses/frmKinds.h"

namespace analyses {

using namespace screenkit;

namespace {

constexpr int policies = -1;
constexpr int policiesList = 11; ///< the number of the policies' button

} // namespace

CoverScreen::CoverScreen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                         assessment::Analysis analysis, NeedsWords words)
    : NeedsScreen(workplace, name, caption, changed, analysis, std::move(words)) {}

void CoverScreen::build(const CoverFields& fields, const CoverWords& words) {
    NeedsScreen::build({{words.tab, entriesPage(fields, words)}});
}

Item CoverScreen::entriesPage(const CoverFields& fields, const CoverWords& words) {
    std::vector<FormRow> person = clientRows("dtBirth");
    const auto review = reviewRows(words.lastReview, fields.lastReview, words.nextReview, fields.nextReview);
    person.insert(person.end(), review.begin(), review.end());
    auto* income = amount("numIncome", fields.income);
    auto* years = number("numCoverPeriod", fields.years, coverPeriod);
    auto* available = amount("numMonIncAval", fields.available);
    auto* inflationRate = number("numInflaGuard", fields.inflation, inflation);
    auto* rate = number("numInvestRate", fields.rate, bankRate);
    m_derived = {income, years, available, inflationRate, rate};
    auto* wanted = group("fraRequirements", "Requirements",
                         form({{words.income, row({income, itemiseButton(0), spring()})},
                               {"Income re&quired for", years, "years."},
                               {words.available, row({available, itemiseButton(1), spring()})},
                               {"&Inflation rate", inflationRate, "% a year"},
                               {"Investmen&t rate of return", rate, "% a year"}}));
    locks(0, {income, years});
    locks(1, {available});
    auto* assets = group(
        "fraCapital", words.assets,
        form(moneyRows("numASS",
                       {"Rea&l estate sale", "Stoc&ks && Cash ", "Car&s etc", "Policy/Investments ", "Othe&r capital"},
                       fields.assets, {2, 3, 4, policies, 5})));
    auto* liabilities =
        group("fraLiabilities", words.liabilities,
              form(moneyRows("numLIB", {"Mortgag&e", "Other loans", "Credit cards", words.fees, "Other expenses"},
                             fields.liabilities, {6, 7, 8, 9, 10})));
    return column({row({Item(group("fraClient", "Client", form(person)), 1), Item(wanted, 1)}),
                   row({Item(assets, 1), Item(liabilities, 1)}), notesLine(fields.notes), spring()});
}

std::vector<FormRow> CoverScreen::moneyRows(const char* name, const QStringList& captions,
                                            const std::array<double*, 5>& places, const std::array<int, 5>& lists) {
    std::vector<FormRow> rows;
    for (std::size_t line = 0; line < places.size(); ++line) {
        const QString field = QString("%1(%2)").arg(name).arg(line);
        const QString& caption = captions[static_cast<qsizetype>(line)];
        if (lists[line] == policies) {
            m_derived.push_back(result(field, *places[line], wholeRand)); // only the schedule of policies sets it
            rows.emplace_back(caption, row({m_derived.back(), policiesButton(policiesList), spring()}));
            continue;
        }
        NumberField* entry = amount(field, *places[line]);
        locks(lists[line], {entry});
        rows.emplace_back(caption, row({entry, itemiseButton(lists[line]), spring()}));
    }
    return rows;
}

void CoverScreen::filled() {
    showClient();
    prepare();
    recalculate();
}

void CoverScreen::showCorrected() {
    for (NumberField* field : m_derived)
        field->fill();
}

} // namespace analyses
