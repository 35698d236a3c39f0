#include "analyses/frmNARA.h"
#include "assessment/tables.h"

#include <QLabel>
#include <QTabWidget>
#include <cmath>
#include <utility>

#include "analyses/amounts.h"
#include "analyses/frmKinds.h"
#include "analyses/retirementreport.h"
#include "client/frmPolInvest.h"
#include "client/policyschedule.h"
#include "client/years.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"
#include "reports/report.h"
#include "screenkit/trouble.h"

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
    : ItemisedScreen(workplace, "frmNARA", "Needs Analysis for Retirement", workplace.record.changed.NARAChanged,
                     assessment::Analysis::retirement),
      m_needs(workplace.record.retirement) {
    m_pages = tabs("SSIndexTab1", {{"Personal Req&uirements", requirementsPage()},
                                   {"Re&tirement Capital", capitalPage()},
                                   {"Retirement &Expenses", expensesPage()},
                                   {"&Net Worth Analysis", netWorthPage()}});
    auto* calculateIt = button("cmdCalculate", "&Calculate", [this] {
        updateYearsToRet(m_needs);
        calculate();
        announceAnswer();
    });
    m_ok = okButton();
    body(column({Item(m_pages, 1), row({calculateIt, button("cmdAmort", "&Amortisation", [this] { amortisation(); }),
                                        button("cmdNARAGraph", "&Graph", [this] { graph(); }),
                                        disabledButton("cmdPremium", "&Show Premium"),
                                        button("cmdPrint", "&Print",
                                               [this] {
                                                   calculate();
                                                   m_printPanel->open();
                                               }),
                                        spring(), m_ok})}));
    defaultButton(calculateIt);
    buildPrintPanel();
    connect(m_pages, &QTabWidget::currentChanged, this, [this] {
        if (!showsResults()) return;
        recalculate();
        announceAnswer();
    });
}

NumberField* frmNARA::amount(const QString& name, double& place) { return number(name, place, wholeRand); }

Bound<double> frmNARA::age(double& place) {
    return {[&place] { return place; },
            [this, &place](double typed) {
                place = typed;
                agesChanged();
            }};
}

// ---- the four pages

Item frmNARA::requirementsPage() {
    auto& client = m_work.record.client;
    m_name = shown("txtName", 30);
    m_idNumber = shown("txtIDNum", 30);
    m_birth = date("dtBirthDate", client.BirthDate);
    m_age = number("numCurrentAge", age(m_needs.CurrAge), ages);
    m_retirement = number("numAgeOfRetirement", age(m_needs.AgeRetiment), retirementAge(m_needs));
    m_years = result("numYearsToRet", m_needs.YearsToRet, whole);
    m_income = amount("numMonIncPD", m_needs.IncomePD);
    m_cover = number("numCoverReq", m_needs.CoverYears, coverPeriod);
    m_inflation = number("numInflationRate", m_needs.InflationRA, inflation);
    m_rate = number("numBankInvRate", m_needs.BankInvestRate, bankRate);
    auto* person = group("fraClient", "Client",
                         form({{"Name :", m_name},
                               {"ID No. :", m_idNumber},
                               {"Date of &birth :", m_birth},
                               {"Cu&rrent Age ", m_age},
                               {"Age at retirement &date", m_retirement},
                               {"Years to retirement", m_years}}));
    auto* wanted =
        group("fraRequirements", "Requirements",
              form({{"&Monthly income required (present-day value)", row({m_income, itemiseButton(11), spring()})},
                    {"Income re&quired for", m_cover, "years."},
                    {"Source of monthly income available", row({itemiseButton(0), spring()})},
                    {"Inf&lation rate", m_inflation, "% a year"},
                    {"&Investment rate of return", m_rate, "% a year"}}));
    locks(11, {m_income, m_cover});
    auto* lastReview = date("dtNaraLastReview", m_needs.NaraLastReview);
    auto* nextReview = date("dtNaraNextReview", m_needs.NaraNextReview);
    for (DateField* reviewed : {lastReview, nextReview})
        notCalculatedFrom(reviewed);
    auto* review = group("fraReview", "Review",
                         form({{"Date of last re&view ", lastReview}, {"Date of ne&xt review ", nextReview}}));
    auto* notes = form({{"Notes", memo("txtNote", m_needs.RANotes,
                                       assessment::sizeOf(assessment::dataTable(), &m_work.record, m_needs.RANotes))}});
    return column({row({Item(person, 1), Item(wanted, 1)}), row({Item(review), Item(notes, 1)}), spring()});
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

Item frmNARA::netWorthPage() {
    m_required = result("numIncReqFV", m_shown[0], wholeRand);
    m_available = result("numMonIncAvail", m_shown[1], wholeRand);
    m_difference = result("numMonShortFall", m_shown[2], wholeRand);
    m_capital = result("numTOTASS", m_shown[3], wholeRand);
    m_expenses = result("numTOTLIAB", m_shown[4], wholeRand);
    m_netWorth = result("numNETCAP", m_shown[5], wholeRand);
    m_shortfall = heading("lblShortfall");
    m_shortfall->setText("Shortfall");
    m_lasts = answerLine("txtAns1", 60);
    m_needed = answerLine("txtAns2", 60);
    m_lasts->setAccessibleName("How long the capital lasts");
    m_needed->setAccessibleName("What more it takes");
    for (QLineEdit* line : std::initializer_list<QLineEdit*>{m_required, m_available, m_difference, m_capital,
                                                             m_expenses, m_netWorth, m_lasts, m_needed})
        showsCalculated(line);
    return column({group("fraIncome", "Monthly income",
                         form({{"Actual monthly income required (at retirement date)", m_required},
                               {"Future-value monthly income available (at retirement date)", m_available},
                               {"Initial Monthly shortfall at retirement date", m_difference}})),
                   group("fraNetWorth", "Capital",
                         form({{"Total capital (at retirement date)", m_capital},
                               {"Total expenses (at retirement date)", m_expenses},
                               {"Net Worth (at retirement date)", row({m_netWorth, m_shortfall, spring()})}})),
                   group("fraAnswers", "Result", column({m_lasts, m_needed})), spring()});
}

void frmNARA::buildPrintPanel() {
    auto* amortised = check("Check1", "Include Amor&tisation", m_includeAmort);
    auto* premium = check("Check2", "Include Show Premium", m_includePremium);
    auto* notes = check("Check3", "Include &Notes", m_includeNotes);
    auto* items = check("Check4", "Include &Itemised Particulars", m_includeItems);
    auto* policies = check("chkPolInvestSchudule", "P&olicies && Investments Schedule", m_includePolicies);
    premium->setEnabled(false); // no premium can be solved yet
    for (CheckField* choice : {amortised, premium, notes, items, policies})
        untrackedField(choice);
    m_printPanel = printPanel({amortised, premium, notes, items, policies}, [this](Destination to) { print(to); });
}

// ---- ages

void frmNARA::filled() {
    const auto& client = m_work.record.client;
    m_name->setText(QString::fromStdString(client.Name));
    m_idNumber->setText(QString::fromStdString(client.IDNumber));
    prepareRetirement(m_work.record, today());
    m_birthUsed = client.BirthDate;
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

void frmNARA::itemsTaken(const ItemLine&) {
    m_income->fill();
    m_cover->fill();
}

bool frmNARA::showsResults() const { return m_pages->currentIndex() == m_pages->count() - 1; }

void frmNARA::recalculate() {
    const assessment::NARetirement before = m_needs;
    m_analysis = NARACalc(m_work.record);
    if (m_needs != before) m_work.record.changed.NARAChanged = 1; // the saved client does not have these results yet
    for (NumberField* corrected : {m_years, m_inflation, m_rate, m_policies})
        corrected->fill();
    refreshItemised();
    showTotals();
    showResults();
    calculated();
}

void frmNARA::calculate() {
    const BusyCursor busy;
    recalculate();
}

void frmNARA::showTotals() {
    m_totalAssets->present(totalCapital(m_needs));
    m_totalLiabilities->present(totalExpenses(m_needs));
}

void frmNARA::showResults() {
    m_required->present(m_analysis.IncomeReqFV);
    m_available->present(m_analysis.monthlyAvailable);
    const double difference = m_analysis.monthlyDifference();
    m_difference->present(std::fabs(difference));
    if (difference != 0) setRowLabel(m_difference, difference < 0 ? "Monthly shortfall" : "Monthly excess");
    m_capital->present(m_analysis.TotalAssets);
    m_expenses->present(m_analysis.TotalLiabilities);
    m_netWorth->present(std::fabs(m_analysis.NetCapital));
    m_shortfall->setVisible(m_analysis.NetCapital < 0);
    m_lasts->setText(QString::fromStdString(m_analysis.txtAns1));
    m_needed->setText(QString::fromStdString(m_analysis.txtAns2));
}

void frmNARA::announceAnswer() {
    const QString sentences = (m_lasts->text() + " " + m_needed->text()).trimmed();
    if (sentences.isEmpty())
        announce({m_netWorth});
    else
        announce(sentences);
}

void frmNARA::amortisation() {
    calculate();
    std::vector<std::vector<double>> rows;
    for (const ShownYear& year : m_analysis.years())
        rows.push_back({year.number, year.capital, year.interest, year.available, year.required});
    showGrid("Amortisation",
             {{"   Age   ", "###"},
              {"       Capital       ", amountMask},
              {"      Interest       ", amountMask},
              {"   Income Available       ", amountMask},
              {"   Income Required      ", amountMask}},
             std::move(rows), m_ok);
}

void frmNARA::graph() {
    calculate();
    const YearRun& run = m_analysis.run;
    const YearlyFlows& flows = m_analysis.flows;
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->NARAAmortGraph(run.CapitalByYear, run.InterestByYear, flows.AvailableByYear, flows.RequiredByYear,
                               graphPoints(run, m_analysis.yearsAsked));
}

void frmNARA::print(Destination destination) {
    auto& record = m_work.record;
    feedRetirement(m_work.paths.PrintDbPath, record, m_analysis, {m_includeAmort == 1, m_includeNotes == 1});
    const bool amortised = m_includeAmort == 1;
    const bool ran = m_work.reports.run(amortised ? "\\RetiremA.rpt" : "\\Retirem.rpt",
                                        amortised ? "Needs Analysis for Retirement Including Amortisation"
                                                  : "Needs Analysis for Retirement ",
                                        destination);
    if (!ran) return; // the user has been told
    if (m_includeItems == 1) printItems(destination);
    if (m_includePolicies == 1) client::PrintPolInvSchedule(m_work, destination);
}

} // namespace analyses
