#include "analyses/frmNeeds.h"

#include <QLabel>
#include <QTabWidget>
#include <cmath>
#include <utility>

#include "analyses/amounts.h"
#include "assessment/tables.h"
#include "client/frmPolInvest.h"
#include "reports/report.h"
#include "screenkit/trouble.h"

namespace analyses {

using namespace screenkit;

NeedsScreen::NeedsScreen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                         assessment::Analysis analysis, NeedsWords words)
    : ItemisedScreen(workplace, name, caption, changed, analysis), m_words(std::move(words)) {}

void NeedsScreen::build(Pages pages) {
    pages.emplace_back("&Net Worth Analysis", resultsPage());
    m_pages = tabs("SSIndexTab1", pages);
    auto* calculateIt = button("cmdCalculate", "&Calculate", [this] {
        putRight();
        calculate();
        announceAnswer();
    });
    auto* years = button("cmdAmort", "&Amortisation", [this] { amortisation(); });
    auto* drawIt = button(m_words.graphButton, "&Graph", [this] { graph(); });
    auto* premium = m_words.premium ? button("cmdPremium", "&Show Premium", [this] { showPremium(); }) : nullptr;
    auto* printIt = button("cmdPrint", "&Print", [this] {
        calculate();
        m_printPanel->open();
    });
    m_ok = okButton();
    auto* buttons = premium != nullptr ? row({calculateIt, years, drawIt, premium, printIt, spring(), m_ok})
                                       : row({calculateIt, years, drawIt, printIt, spring(), m_ok});
    body(column({Item(m_pages, 1), buttons}));
    defaultButton(calculateIt);
    buildPrintPanel();
    connect(m_pages, &QTabWidget::currentChanged, this, [this] {
        if (!showsResults()) return;
        recalculate();
        announceAnswer();
    });
}

NumberField* NeedsScreen::amount(const QString& name, double& place) { return number(name, place, wholeRand); }

// ---- the pages

std::vector<FormRow> NeedsScreen::clientRows(const QString& birthField) {
    m_name = shown("txtName", 30);
    m_idNumber = shown("txtIDNum", 30);
    m_birth = date(birthField, m_work.record.client.BirthDate);
    return {{"Name :", m_name}, {"ID No. :", m_idNumber}, {"Date of &birth :", m_birth}};
}

std::vector<FormRow> NeedsScreen::reviewRows(const QString& lastField, double& last, const QString& nextField,
                                             double& next) {
    auto* lastReview = date(lastField, last);
    auto* nextReview = date(nextField, next);
    for (DateField* reviewed : {lastReview, nextReview})
        notCalculatedFrom(reviewed);
    return {{"Date of last re&view ", lastReview}, {"Date of ne&xt review ", nextReview}};
}

Item NeedsScreen::notesLine(std::string& notes) {
    const int size = assessment::sizeOf(assessment::dataTable(), &m_work.record, notes);
    return form({{"Notes", memo("txtNote", notes, size)}});
}

Item NeedsScreen::resultsPage() {
    m_required = result("numIncReqFV", m_shown[0], wholeRand);
    m_available = result("numMonIncAvail", m_shown[1], wholeRand);
    m_difference = result("numMonShortFall", m_shown[2], wholeRand);
    m_capital = result(m_words.capitalField, m_shown[3], wholeRand);
    m_expenses = result(m_words.expensesField, m_shown[4], wholeRand);
    m_netWorth = result(m_words.netWorthField, m_shown[5], wholeRand);
    m_shortfall = heading("lblShortfall");
    m_shortfall->setText("Shortfall");
    m_lasts = answerLine("txtAns1", 60);
    m_needed = answerLine("txtAns2", 60);
    m_lasts->setAccessibleName("How long the capital lasts");
    m_needed->setAccessibleName("Additional cover or excess");
    for (QLineEdit* line : std::initializer_list<QLineEdit*>{m_required, m_available, m_difference, m_capital,
                                                             m_expenses, m_netWorth, m_lasts, m_needed})
        showsCalculated(line);
    return column({group("fraIncome", "Monthly income",
                         form({{m_words.required, m_required},
                               {m_words.available, m_available},
                               {m_words.difference, m_difference}})),
                   group("fraNetWorth", "Capital",
                         form({{m_words.capital, m_capital},
                               {m_words.expenses, m_expenses},
                               {m_words.netWorth, row({m_netWorth, m_shortfall, spring()})}})),
                   group("fraAnswers", "Result", column({m_lasts, m_needed})), spring()});
}

void NeedsScreen::buildPrintPanel() {
    auto* amortised = check("Check1", "Include Amor&tisation", m_includeAmort);
    auto* premium = m_words.premium ? check("Check2", "Include Show Premium", m_includePremium) : nullptr;
    auto* notes = check("Check3", "Include &Notes", m_includeNotes);
    auto* items = check("Check4", "Include &Itemised Particulars", m_includeItems);
    auto* policies = check("chkPolInvestSchudule", "P&olicies && Investments Schedule", m_includePolicies);
    for (CheckField* choice : {amortised, premium, notes, items, policies})
        if (choice != nullptr) untrackedField(choice);
    const auto run = [this](Destination to) { print(to); };
    if (premium == nullptr) {
        m_printPanel = printPanel({amortised, notes, items, policies}, run);
    } else {
        m_printPanel = printPanel({amortised, premium, notes, items, policies}, run);
    }
}

// ---- results

void NeedsScreen::showClient() {
    m_name->setText(QString::fromStdString(m_work.record.client.Name));
    m_idNumber->setText(QString::fromStdString(m_work.record.client.IDNumber));
}

bool NeedsScreen::showsResults() const { return m_pages->currentIndex() == m_pages->count() - 1; }

void NeedsScreen::recalculate() {
    m_analysis = analyse();
    showCorrected();
    refreshItemised();
    showResults();
    calculated();
}

void NeedsScreen::calculate() {
    const BusyCursor busy;
    recalculate();
}

void NeedsScreen::showResults() {
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

void NeedsScreen::announceAnswer() {
    const QString sentences = (m_lasts->text() + " " + m_needed->text()).trimmed();
    if (sentences.isEmpty())
        announce({m_netWorth});
    else
        announce(sentences);
}

void NeedsScreen::amortisation() {
    calculate();
    std::vector<std::vector<double>> rows;
    for (const ShownYear& year : m_analysis.years())
        rows.push_back({year.number, year.capital, year.interest, year.available, year.required});
    showGrid("Amortisation",
             {{m_words.yearHead, "###"},
              {"       Capital       ", amountMask},
              {"      Interest       ", amountMask},
              {"   Income Available       ", amountMask},
              {"   Income Required      ", amountMask}},
             std::move(rows), m_ok);
}

void NeedsScreen::graph() {
    calculate();
    m_work.shell.open("frmGraph");
    auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph"));
    if (window == nullptr) return;
    const YearRun& run = m_analysis.run;
    const YearlyFlows& flows = m_analysis.flows;
    (window->*m_words.graph)(run.CapitalByYear, run.InterestByYear, flows.AvailableByYear, flows.RequiredByYear,
                             graphPoints(run, m_analysis.yearsAsked));
}

void NeedsScreen::showPremium() {
    calculate();
    carry(m_analysis);
    m_work.shell.open("frmPremium");
}

void NeedsScreen::print(Destination destination) {
    const datastore::Printout report =
        feed(m_analysis, {m_includeAmort == 1, m_includeNotes == 1, m_includePremium == 1});
    const bool ran = m_work.reports.run(QString::fromStdString(report.definition), QString::fromStdString(report.title),
                                        destination);
    if (!ran) return; // the user has been told
    if (m_includeItems == 1) printItems(destination);
    if (m_includePolicies == 1) client::PrintPolInvSchedule(m_work, destination);
}

} // namespace analyses
