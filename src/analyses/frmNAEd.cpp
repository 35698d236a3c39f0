#include "analyses/frmNAEd.h"

#include <utility>

#include "analyses/amounts.h"
#include "analyses/educationreport.h"
#include "analyses/frmKinds.h"
#include "analyses/premium.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"
#include "reports/report.h"
#include "screenkit/trouble.h"

namespace analyses {

using namespace screenkit;

namespace {

// Three digits more than an entry, after 25 years at 30 %. A figure that was cut off would read as another.
const NumberKind costAtStart{wholeRand.mask, false, 22};

} // namespace

frmNAEd::frmNAEd(Workplace& workplace)
    : Screen(workplace, "frmNAEd", "Needs Analysis for Education", workplace.record.changed.NAEdChanged),
      m_needs(workplace.record.education) {
    auto* calculateIt = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        m_answer->text().isEmpty() ? announce({m_cost}) : announce(m_answer->text());
    });
    m_answer = answerLine("txtAns", 60);
    m_answer->setAccessibleName("What it takes");
    m_ok = okButton();
    showsCalculated(m_answer);
    body(column({row({Item(person(), 1), Item(requirements(), 1)}), group("fraAnswers", "Result", m_answer), spring(),
                 row({calculateIt, button("cmdAmort", "A&mortisation", [this] { amortisation(); }),
                      button("cmdNAEDGraph", "&Graph", [this] { graph(); }),
                      button("cmdPremium", "&Show Premium", [this] { showPremium(); }),
                      opener("cmdInflation", "&Inflation", "frmInflation"),
                      button("cmdPrint", "&Print",
                             [this] {
                                 calculate();
                                 m_printPanel->open();
                             }),
                      spring(), m_ok})}));
    defaultButton(calculateIt);
    buildPrintPanel();
}

QWidget* frmNAEd::person() {
    m_name = shown("txtName", 30);
    auto* birth = date("dtBirthDate", m_work.record.client.BirthDate);
    auto* last = date("dtEducLastReview", m_needs.EducLastReview);
    auto* next = date("dtEducNextReview", m_needs.EducNextReview);
    for (DateField* known : {birth, last, next})
        notCalculatedFrom(known);
    return group("fraClient", "Client",
                 form({{"Name :", m_name},
                       {"Date of &birth :", birth},
                       {"Date of last re&view ", last},
                       {"Date of ne&xt review ", next}}));
}

QWidget* frmNAEd::requirements() {
    auto* funds = number("numFundsPres", m_needs.FundsPD, wholeRand);
    m_inflation = number("numInflaRate", m_needs.InflationEDU, inflation);
    auto* until = number("numYears", m_needs.YearsToEdu, periodUpTo(25));
    auto* years = number("numPerRequired", m_needs.FundsForYears, periodUpTo(10));
    m_rate = number("numInvestRate", m_needs.BankRate, bankRate);
    m_cost = result("numFundsFut", m_atStart, costAtStart);
    showsCalculated(m_cost);
    return group("fraRequirements", "Requirements",
                 form({{"Funds &required annually for education (present-day value)", funds},
                       {"Inf&lation rate", m_inflation, "% a year"},
                       {"&Years to education", until},
                       {"Funds re&quired for", years, "years."},
                       {"Ban&k investment rate", m_rate, "% a year"},
                       {"Funds required annually for education (real future value)", m_cost}}));
}

void frmNAEd::buildPrintPanel() {
    auto* amortised = check("Check1", "Include Amor&tisation", m_includeAmort);
    auto* premium = check("Check2", "Include Show Premium", m_includePremium);
    for (CheckField* choice : {amortised, premium})
        untrackedField(choice);
    m_printPanel = printPanel({amortised, premium}, [this](Destination to) { print(to); });
}

void frmNAEd::filled() {
    m_name->setText(QString::fromStdString(m_work.record.client.Name));
    recalculate();
}

void frmNAEd::recalculate() {
    const assessment::NAEducation before = m_needs;
    m_analysis = NAEdCalc(m_needs);
    if (m_needs != before) m_work.record.changed.NAEdChanged = 1; // the corrected rates are not saved yet
    for (NumberField* corrected : {m_inflation, m_rate})
        corrected->fill();
    m_cost->present(m_analysis.FundsFV);
    m_answer->setText(QString::fromStdString(m_analysis.txtAns));
    calculated();
}

void frmNAEd::calculate() {
    const BusyCursor busy;
    recalculate();
}

void frmNAEd::amortisation() {
    calculate();
    std::vector<std::vector<double>> rows;
    for (const ShownYear& year : m_analysis.years())
        rows.push_back({year.number, year.capital, year.interest, year.required});
    showGrid("Amortisation",
             {{" Year ", "##"},
              {"       Capital       ", amountMask},
              {"      Interest       ", amountMask},
              {"   Income Required      ", amountMask}},
             std::move(rows), m_ok);
}

void frmNAEd::graph() {
    calculate();
    if (m_analysis.points() == 0) return m_ok->setFocus(Qt::OtherFocusReason); // no capital, nothing to draw
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->NAEDUAmortGraph(m_analysis.run.CapitalByYear, m_analysis.run.InterestByYear,
                                m_analysis.flows.RequiredByYear, m_analysis.points());
}

void frmNAEd::showPremium() {
    calculate();
    carryPremium(m_work.record, m_analysis);
    m_work.shell.open("frmPremium");
}

void frmNAEd::print(Destination destination) {
    const auto printout = feedEducation(m_work.paths.PrintDbPath, m_work.record, m_analysis,
                                        {m_includeAmort == 1, m_includePremium == 1});
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace analyses
