#include "client/frmPolInvest.h"

#include <QGroupBox>
#include <QTabWidget>
#include <algorithm>
#include <limits>
#include <tuple>

#include "datastore/paths.h"
#include "datastore/reset.h"
#include "reports/report.h"

namespace client {

using namespace screenkit;

namespace {

constexpr const char* screenTitle = "Policies & Investments";
constexpr std::size_t mostRecords = std::numeric_limits<std::int16_t>::max(); // the file counts them in 16 bits
const NumberKind cpiRate =
    percent.between(0, 100, "The range for the CPI is between 0% and 100%", "Incorrect Inflation Rate!");

/// The totals of the schedule that are stored with the client.
auto storedTotals(const assessment::Assessment& record) {
    return std::tuple(record.retirement.ANSLAss4, record.death.ANSAss5, record.disability.DisaASS5,
                      record.itemised.RNAPoliciesItemise, record.itemised.DTHLifeAssItemise,
                      record.itemised.DISALifeAssItemise);
}

/// Recalculates the totals that the schedule gives the analyses. New totals mark the client as changed.
template <class Fold>
void foldSchedule(assessment::Assessment& record, Fold fold) {
    const auto before = storedTotals(record);
    fold();
    if (storedTotals(record) != before) record.changed.PolInvestChanged = 1;
}

bool printPolicies(Workplace& workplace, Destination destination, const PolicyReportOptions& options,
                   const datastore::Printout& report) {
    foldSchedule(workplace.record, [&] { feedPolicies(workplace.paths.PrintDbPath, workplace.record, options); });
    return workplace.reports.run(QString::fromStdString(report.definition), QString::fromStdString(report.title),
                                 destination);
}

/// Disables a button. If it has the focus, the opposite button gets it, so that one key press too many does no harm.
void greyOut(QPushButton* button, QPushButton* opposite) {
    if (button->hasFocus() && opposite->isEnabled()) opposite->setFocus(Qt::OtherFocusReason);
    button->setEnabled(false);
}

} // namespace

bool PrintPolInvList(Workplace& workplace, Destination destination, const PolicyReportOptions& options) {
    return printPolicies(workplace, destination, options, policiesDetails);
}

bool PrintPolInvSchedule(Workplace& workplace, Destination destination, const PolicyReportOptions& options) {
    return printPolicies(workplace, destination, options, policiesSchedule);
}

frmPolInvest::frmPolInvest(Workplace& workplace)
    : Screen(workplace, "frmPolInvest", screenTitle, workplace.record.changed.PolInvestChanged),
      m_record(workplace.record) {
    m_pages = tabs("tabPolInvest", {{"Polic&y", policyPage()},
                                    {"D&eath", deathPage()},
                                    {"Disa&bility and trauma", disabilityPage()},
                                    {"Retirement and in&vestments", retirementPage()},
                                    {"All policies", listPage()}});
    connect(m_pages, &QTabWidget::currentChanged, this, [this] { fillList(); });
    body(column({m_pages, valuesGroup(), buttons()}));
    buildCPIPanel();
    buildPrintPanel();
}

QLayout* frmPolInvest::buttons() {
    m_back = button("cmdBack", "< Bac&k", [this] { step(-1); });
    m_forward = button("cmdForward", "Fo&rward >", [this] { step(1); });
    auto* solve = button("cmdCalculatePolInv", "&Calculate", [this] {
        calculate();
        std::vector<NumberField*> counted = m_valueFields;
        std::erase_if(counted, [](const NumberField* field) { return field->value() == 0; });
        if (counted.empty())
            announce(tr("Nothing at retirement"));
        else
            announce(counted, tr("At retirement: "));
    });
    defaultButton(solve);
    return row({m_back, m_forward, button("cmdAdd", "A&dd", [this] { add(); }),
                cancelButton("cmdDelete", "De&lete", [this] { remove(); }), solve,
                button("cmdCPI", "CP&I", [this] { m_openCPI(); }),
                button("cmdPrint", "Prin&t",
                       [this] {
                           calculate();
                           m_printPanel->open();
                       }),
                spring(), okButton()});
}

void frmPolInvest::buildCPIPanel() {
    auto* rate = number("numCPI", m_typedCPI, cpiRate);
    m_openCPI = settingsPanel<double>(
        {"fraCPI", "cmdCPIOK", "cmdCPICancel", tr("Consumer price index")}, form({{"CP&I", rate, "% a year"}}), {rate},
        m_record.CPI, m_typedCPI, [this](double percent) { datastore::writeCPI(m_work.paths.DataDbPath, percent); });
}

void frmPolInvest::buildPrintPanel() {
    const auto onlyWithAReport = [this](bool) { m_printPanel->setPrintable(m_printList == 1 || m_printSchedule == 1); };
    auto* list = check("chkPolInvestList", "Policies && Investments &Details", m_printList, onlyWithAReport);
    auto* schedule =
        check("chkPolInvestSchudule", "Policies && Investments &Schedule", m_printSchedule, onlyWithAReport);
    auto* notes = check("chkIncNotes", "Include &Notes", m_includeNotes);
    for (CheckField* choice : {list, schedule, notes})
        untrackedField(choice);
    m_printPanel = printPanel({list, schedule, notes}, [this](Destination to) { print(to); });
}

assessment::Policy& frmPolInvest::policy() {
    auto& policies = m_record.policies;
    if (policies.empty()) policies.emplace_back();
    const auto last = static_cast<std::int16_t>(std::min(policies.size(), mostRecords));
    m_record.CurPolicy = std::clamp<std::int16_t>(m_record.CurPolicy, 1, last);
    return policies[static_cast<std::size_t>(m_record.CurPolicy - 1)];
}

void frmPolInvest::filled() {
    showPlace();
    m_other->setEnabled(policy().DeathBenPerson == 3);
    showValues();
    if (!m_inList) fillList();
}

void frmPolInvest::showPlace() {
    const auto number = static_cast<std::size_t>(m_record.CurPolicy);
    const bool isFirst = number <= 1, isLast = number >= std::min(count(), mostRecords);
    setWindowTitle(QString("Policies & Investments. : Num. %1 of %2").arg(number).arg(count()));
    if (!isFirst) m_back->setEnabled(true);
    if (!isLast) m_forward->setEnabled(true);
    if (isFirst) greyOut(m_back, m_forward);
    if (isLast) greyOut(m_forward, m_back);
}

void frmPolInvest::showValues() {
    m_values = valuesAtRetirement(policy(), m_record.retirement.AgeRetiment);
    for (NumberField* field : m_valueFields)
        field->fill();
    showName();
    showRemarks();
}

void frmPolInvest::showName() {
    constexpr int readable = 90; // characters: a longer name would widen the window
    const std::string entered = policyName(policy());
    const QString name = entered.empty() ? tr("not named yet") : QString::fromStdString(entered);
    const QString title = tr("%1 of %2:  %3").arg(m_record.CurPolicy).arg(count()).arg(name);
    const QString shown = fontMetrics().elidedText(title, Qt::ElideRight, fontMetrics().averageCharWidth() * readable);
    m_atRetirement->setTitle(tr("%1  -  at retirement").arg(QString(shown).replace('&', "&&")));
}

void frmPolInvest::lockPremiums(bool paidUp) {
    for (QWidget* premium : m_premiums)
        premium->setEnabled(!paidUp);
}

void frmPolInvest::show(std::size_t number) {
    m_record.CurPolicy = static_cast<std::int16_t>(number);
    refill();
}

void frmPolInvest::step(int direction) {
    show(static_cast<std::size_t>(m_record.CurPolicy + direction)); // always exists: else the button is disabled
}

void frmPolInvest::add() {
    if (count() >= mostRecords)
        return m_work.desk.tell(BoxStyle::warning, tr("A client's file can hold %1 policies at most.").arg(mostRecords),
                                screenTitle);
    m_record.policies.emplace_back();
    m_record.changed.PolInvestChanged = 1;
    show(count());
    m_pages->setCurrentIndex(0);
    m_type->takeFocus();
}

void frmPolInvest::remove() {
    // A deleted record comes back only by loading the client as last saved.
    const QString question = tr("Are you sure you want to delete Policy/Investment %1 of %2 ?");
    const Answer answer = m_work.desk.box(BoxStyle::question, question.arg(m_record.CurPolicy).arg(count()),
                                          tr("Delete Policy/Investment"), Buttons::yesNo, Answer::no);
    if (answer != Answer::yes) return;
    if (count() == 1)
        policy() = {};
    else
        m_record.policies.erase(m_record.policies.begin() + (m_record.CurPolicy - 1));
    m_record.changed.PolInvestChanged = 1;
    show(std::min(static_cast<std::size_t>(m_record.CurPolicy), count()));
}

void frmPolInvest::calculate() {
    assessment::Policy& shown = policy();
    if (shown.DeathBenLoanAgainst > 0 && shown.DeathBenAmtCeded > 0) {
        m_work.desk.tell(BoxStyle::warning,
                         "There cannot be a Value for both 'Loan against' and 'Amount ceded'\nin the same policy!",
                         screenTitle);
        shown.DeathBenLoanAgainst = shown.DeathBenAmtCeded = 0;
        m_record.changed.PolInvestChanged = 1;
        refill();
    }
    foldSchedule(m_record, [this] { CalculatePolInv(m_record); });
    showValues();
}

void frmPolInvest::print(Destination destination) {
    const PolicyReportOptions options{m_includeNotes == 1};
    if (m_printList == 1 && !PrintPolInvList(m_work, destination, options)) return;
    if (m_printSchedule == 1) PrintPolInvSchedule(m_work, destination, options);
}

} // namespace client
