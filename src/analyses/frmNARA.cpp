#include "analyses/frmNARA.h"

#include <utility>

#include "analyses/frmKinds.h"
#include "analyses/retirementreport.h"
#include "client/policyschedule.h"
#include "client/years.h"
#include "datastore/paths.h"

namespace analyses {

using namespace screenkit;

namespace {

constexpr double highestAge = 99; ///< at retirement

// A typing error in the age must not move the age of retirement with it.
const NumberKind ages = whole.from(0, "The minimum age is 0", "Incorrect Age!")
                            .upTo(client::oldestAge, "The maximum age allowed is 120", "Incorrect Age!");

/// From the client's age to 99; an older client retires today. The box has the bank rate's title; this is deliberate.
NumberKind retirementAge(const assessment::NARetirement& needs) {
    return whole.where(
        [&needs](double age) {
            const double today = needs.CurrAge > client::oldestAge ? 0 : needs.CurrAge; // its field reports the error
            return age >= today && age <= std::max(highestAge, today);
        },
        "The maximum age allowed is 99 and the minimum age must be equal or greater than the current age",
        "Incorrect Bank Interest Rate!");
}

} // namespace

frmNARA::frmNARA(Workplace& workplace)
    : NeedsScreen(workplace, "frmNARA", "Needs Analysis for Retirement", workplace.record.changed.NARAChanged,
                  assessment::Analysis::retirement,
                  {.required = "Actual monthly income required (at retirement date)",
                   .available = "Future-value monthly income available (at retirement date)",
                   .difference = "Initial Monthly shortfall at retirement date",
                   .capital = "Total capital (at retirement date)",
                   .expenses = "Total expenses (at retirement date)",
                   .netWorth = "Net Worth (at retirement date)",
                   .capitalField = "numTOTASS",
                   .expensesField = "numTOTLIAB",
                   .netWorthField = "numNETCAP",
                   .graphButton = "cmdNARAGraph",
                   .graph = &reports::frmGraph::NARAAmortGraph,
                   .yearHead = "   Age   ",
                   .premium = true}),
      m_needs(workplace.record.retirement) {
    build({{"Personal Req&uirements", requirementsPage()},
           {"Re&tirement Capital", capitalPage()},
           {"Retirement &Expenses", expensesPage()}});
}

Bound<double> frmNARA::age(double& place) {
    return {[&place] { return place; },
            [this, &place](double typed) {
                place = typed;
                agesChanged();
            }};
}

// ---- the pages

Item frmNARA::requirementsPage() {
    std::vector<FormRow> person = clientRows("dtBirthDate");
    m_age = number("numCurrentAge", age(m_needs.CurrAge), ages);
    m_retirement = number("numAgeOfRetirement", age(m_needs.AgeRetiment), retirementAge(m_needs));
    m_years = result("numYearsToRet", m_needs.YearsToRet, whole);
    m_income = amount("numMonIncPD", m_needs.IncomePD);
    m_cover = number("numCoverReq", m_needs.CoverYears, coverPeriod);
    m_inflation = number("numInflationRate", m_needs.InflationRA, inflation);
    m_rate = number("numBankInvRate", m_needs.BankInvestRate, bankRate);
    person.insert(
        person.end(),
        {{"Cu&rrent Age ", m_age}, {"Age at retirement &date", m_retirement}, {"Years to retirement", m_years}});
    auto* wanted =
        group("fraRequirements", "Requirements",
              form({{"&Monthly income required (present-day value)", row({m_income, itemiseButton(11), spring()})},
                    {"Income re&quired for", m_cover, "years."},
                    {"Source of monthly income available", row({itemiseButton(0), spring()})},
                    {"Inf&lation rate", m_inflation, "% a year"},
                    {"&Investment rate of return", m_rate, "% a year"}}));
    locks(11, {m_income, m_cover});
    auto* review =
        group("fraReview", "Review",
              form(reviewRows("dtNaraLastReview", m_needs.NaraLastReview, "dtNaraNextReview", m_needs.NaraNextReview)));
    Item notes = notesLine(m_needs.RANotes);
    notes.stretch = 1;
    return column({row({Item(group("fraClient", "Client", form(person)), 1), Item(wanted, 1)}),
                   row({Item(review), notes}), spring()});
}

Item frmNARA::capitalPage() {
    auto* estate = amount("numASS(0)", m_needs.ANSLAss1);
    auto* stocks = amount("numASS(1)", m_needs.ANSLAss2);
    auto* business = amount("numASS(2)", m_needs.ANSLAss3);
    m_policies = result("numASS(3)", m_needs.ANSLAss4, wholeRand); // only the schedule of policies sets it
    auto* other = amount("numASS(4)", m_needs.ANSLAss5);
    m_totalAssets = result("numASS(5)", m_assets, wholeRand);
    locks(1, {estate});
    locks(2, {stocks});
    locks(3, {business});
    locks(5, {other});
    return column({group("fraCapital", "Capital available at retirement",
                         form({{"From rea&l estate sale", row({estate, itemiseButton(1), spring()})},
                               {"Stoc&ks && cash etc.", row({stocks, itemiseButton(2), spring()})},
                               {"&Business sale ", row({business, itemiseButton(3), spring()})},
                               {"Policy/Investments", row({m_policies, policiesButton(4), spring()})},
                               {"Othe&r capital", row({other, itemiseButton(5), spring()})},
                               {"Total capital", m_totalAssets}})),
                   spring()});
}

Item frmNARA::expensesPage() {
    auto* mortgage = amount("numLIB(0)", m_needs.ANSLLib1);
    auto* property = amount("numLIB(1)", m_needs.ANSLLib2);
    auto* car = amount("numLIB(2)", m_needs.ANSLLib3);
    auto* travel = amount("numLIB(3)", m_needs.ANSLLib4);
    auto* other = amount("numLIB(4)", m_needs.ANSLLib5);
    m_totalLiabilities = result("numLIB(5)", m_liabilities, wholeRand);
    int index = 6;
    for (NumberField* field : {mortgage, property, car, travel, other})
        locks(index++, {field});
    return column({group("fraExpenses", "Expenses at retirement",
                         form({{"Existing &mortgage", row({mortgage, itemiseButton(6), spring()})},
                               {"&Retirement property", row({property, itemiseButton(7), spring()})},
                               {"New Car/R&V", row({car, itemiseButton(8), spring()})},
                               {"Trave&l plans", row({travel, itemiseButton(9), spring()})},
                               {"Other e&xpenses", row({other, itemiseButton(10), spring()})},
                               {"Total expenses", m_totalLiabilities}})),
                   spring()});
}

// ---- ages

void frmNARA::filled() {
    showClient();
    prepareRetirement(m_work.record, today());
    m_birthUsed = m_work.record.client.BirthDate;
    m_ageUsed = m_needs.CurrAge;
    showAges();
    recalculate();
}

void frmNARA::showAges() {
    for (NumberField* field : {m_age, m_retirement})
        field->fill();
    agesChanged();
}

void frmNARA::agesChanged() {
    followAges(m_work.record);
    client::CalculatePolInv(m_work.record); // their values depend on the age
    for (NumberField* follower : {m_years, m_income, m_cover, m_policies})
        follower->fill();
    showTotals();
}

void frmNARA::settled(Field* field) {
    const std::pair before(m_needs.CurrAge, m_needs.AgeRetiment);
    if (field == m_birth && m_work.record.client.BirthDate != m_birthUsed) {
        m_birthUsed = m_work.record.client.BirthDate;
        prepareRetirement(m_work.record, today());
    } else if (field == m_age && m_needs.CurrAge != m_ageUsed) {
        // Done once per new age. A retirement age typed below it later brings a message instead of a silent correction.
        retireNotBeforeToday(m_needs);
        followAges(m_work.record);
    }
    m_ageUsed = m_needs.CurrAge;
    if (before == std::pair(m_needs.CurrAge, m_needs.AgeRetiment)) return;
    showAges();
    // If the user goes from the field straight to the results, they were calculated before the ages were updated.
    if (showsResults()) recalculate();
}

// ---- results

void frmNARA::showCorrected() {
    for (NumberField* corrected : {m_years, m_inflation, m_rate, m_policies})
        corrected->fill();
    showTotals();
}

void frmNARA::showTotals() {
    m_totalAssets->present(totalCapital(m_needs));
    m_totalLiabilities->present(totalExpenses(m_needs));
}

datastore::Printout frmNARA::feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) {
    return feedRetirement(m_work.paths.PrintDbPath, m_work.record, analysis, options);
}

} // namespace analyses
