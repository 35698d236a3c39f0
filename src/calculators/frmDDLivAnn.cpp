#include "calculators/frmDDLivAnn.h"

#include "base/numberformat.h"
#include "calculators/drawdowncosts.h"
#include "calculators/drawdownreport.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"
#include "screenkit/enterwalk.h"

namespace calculators {

using namespace screenkit;
using assessment::DrawDownPhase;

namespace {

constexpr const char* detailsTitle = "Monthly requirement details";
constexpr const char* disclaimer = "This report may not be construed as any form of quotation issued by a life assurer "
                                   "or other product provider.";

const NumberKind fromYear = whole.between(0, 99, "Only a value between 0 and 99 can be entered!", detailsTitle);
const NumberKind toYear = whole.between(0, 50, "Only a value between 1 and 50 can be entered!", detailsTitle);
const NumberKind income =
    money.between(0, 99999999, "Only a value between 0 and 99 999 999 can be entered!", detailsTitle);
const NumberKind escalation = percent.where([](double rate) { return rate > -99 && rate < 99; },
                                            "Only a value between -99 and 99 can be entered!", detailsTitle);
const NumberKind growth = percent.between(0, 99, "Only a value between 0 and 99 can be entered!", detailsTitle);

const NumberKind initialCommission =
    percent.from(0, "The Initial up-front commission cannot be below 0%", "Incorrect Initial up-front commission!")
        .upTo(99, "The Initial up-front commission cannot exceed 99%", "Incorrect Initial up-front commission!");
const NumberKind setupCosts = money.from(0, "The Setup costs cannot be below 0", "Incorrect Setup costs!");
const NumberKind managementFee =
    percent.from(0, "The Annual management fee cannot be below 0%", "Incorrect Annual management fee!")
        .upTo(30, "The Annual management fee cannot exceed 30%", "Incorrect Annual management fee!");
const NumberKind dividend = percent.from(0, "The Annual Dividend cannot be below 0%", "Incorrect Annual Dividend!")
                                .upTo(50, "The Annual Dividend cannot exceed 50%", "Incorrect Annual Dividend!");
const NumberKind trailCommission =
    percent.between(0, 100, "The Trail commission cannot be below 0% or exceed 100%", "Incorrect Trail commission!");

bool isAllowedLimit(double percentage) { return percentage >= 2.5 && percentage <= 17.5; }

const NumberKind maximumIncome =
    percent
        .where(isAllowedLimit, "The Maximum income allowed cannot be below 2.5% or exceed 17.5%",
               "Incorrect Maximum income allowed!")
        .orElse(2.5);
const NumberKind minimumIncome =
    percent.where(isAllowedLimit, "The Minimum income allowed cannot be below 2.5% or exceed 17.5%",
                  "Incorrect Minimum income allowed!");

const SettingsNames costNames{
    .panel = "fraCosts", .ok = "cmdOKCosts", .cancel = "cmdCancelCosts", .title = "Costs and income limits"};

EditRow rowOf(const DrawDownPhase& phase) {
    return {phase.FromYear, phase.ToYear, phase.LAInitDraw, phase.Esc, phase.GRLA};
}

DrawDownPhase phaseOf(const EditRow& row) {
    const auto figure = [&row](std::size_t column) { return std::get<double>(row[column]); };
    return {figure(0), figure(1), figure(2), figure(3), figure(4)};
}

std::vector<EditRow> rowsOf(const assessment::DrawDownPhases& phases) {
    std::vector<EditRow> rows{rowOf(phases.phase0), rowOf(phases.phase1)};
    for (const DrawDownPhase& phase : phases.further)
        rows.push_back(rowOf(phase));
    return rows;
}

} // namespace

frmDDLivAnn::frmDDLivAnn(Workplace& workplace)
    : ResultScreen(workplace, "frmDDLivAnn", "Draw Down Annuity", workplace.record.changed.DDLivAnnChanged),
      m_annuity(workplace.record.drawDown), m_phases(workplace.record.drawDownPhases),
      m_costs(workplace.record.drawDownCosts) {
    m_costs = readDrawDownCosts(m_work.paths.DefaultDbPath);
    auto* who = annuity();
    auto* first = firstPhase();
    auto* second = secondPhase();
    auto* table = details();
    auto* disclaims = note(disclaimer);
    disclaims->setObjectName("lblDisclaimer");
    m_sentence = answerLine("txtAns", 60);
    m_sentence->setAccessibleName("How long the income is paid");
    showsCalculated(m_sentence);
    body(column({row({column({who, answers()}), first, second}), table, m_sentence, disclaims, spring(),
                 buttonLine({resultButton("cmdAmort", "A&mortisation", [this] { showYears(); }),
                             resultButton("cmdGraph", "&Graph", [this] { draw(); }),
                             button("cmdCosts", "Co&sts", [this] { m_openCosts(); })})}));
    buildCosts();
    auto* amortised = check("Check1", "Include Amorti&zation", m_includeAmort);
    prints({amortised}, {amortised});
}

Complaint frmDDLivAnn::rangeComplaint(FirstIncome found) const {
    const auto [lowest, highest] = firstIncomeRange(m_annuity.LSAmt, m_costs);
    const bool isAbove = found == FirstIncome::aboveMaximum;
    const QString limit = QString::fromStdString(base::formatNumber(isAbove ? highest : lowest, "### ### ##0"));
    return {(isAbove ? "The Initial Monthly Income can only be maximum of "
                     : "The Initial Monthly Income can only be a minimum of ") +
                limit,
            "Initial Monthly Income Drawn"};
}

NumberKind frmDDLivAnn::withinRange(const NumberKind& kind, const double& place) {
    const auto found = [this] { return checkFirstIncome(m_annuity.LSAmt, m_phases.phase0.LAInitDraw, m_costs); };
    // The user corrects the figure that was entered last; the other one was allowed beside the figure before.
    return kind.where(
        [this, &place, found](double) { return m_rangeEdited != &place || found() == FirstIncome::allowed; },
        [this, found] { return rangeComplaint(found()); });
}

QWidget* frmDDLivAnn::annuity() {
    m_name = shown("txtCLName", 26);
    const Bound<double> amount = Bound<double>(m_annuity.LSAmt).then([this] { m_rangeEdited = &m_annuity.LSAmt; });
    return group("fraAnnuity", "Annuity",
                 form({{"Name", m_name},
                       {"Amount &invested", number("numLumpInv", amount, withinRange(money, m_annuity.LSAmt))}}));
}

QWidget* frmDDLivAnn::phase(int index, const Entry& from, const Entry& firstIncome, DrawDownPhase& rest) {
    const auto line = [this, index](const char* name, const char* label, const Entry& entry) {
        auto* field = number(QString("%1(%2)").arg(name).arg(index), entry.place, entry.kind);
        const QString spoken = index == 0 ? tr("%1, first phase") : tr("%1, second phase");
        field->setAccessibleName(spoken.arg(spokenLabel(label)));
        m_phaseFields.push_back(field);
        return FormRow(index == 0 ? label : QString(label).remove('&'), field); // one access key, for the first phase
    };
    return group(QString("fraPhase%1").arg(index), index == 0 ? "First phase" : "Second phase",
                 form({line("numFY", "F&rom year", from), line("numTY", "&To year", {rest.ToYear, toYear}),
                       line("numInitDraw", "Initial monthl&y income", firstIncome),
                       line("numAnnIncEsc", "Escalatio&n %pa", {rest.Esc, escalation}),
                       line("numGrowRate", "Growth rat&e %pa", {rest.GRLA, growth})}));
}

QWidget* frmDDLivAnn::firstPhase() {
    DrawDownPhase& first = m_phases.phase0;
    const auto noted = Bound<double>(first.LAInitDraw).then([this, &first] { m_rangeEdited = &first.LAInitDraw; });
    return phase(0, {first.FromYear, fromYear}, {noted, withinRange(income, first.LAInitDraw)}, first);
}

QWidget* frmDDLivAnn::secondPhase() {
    DrawDownPhase& second = m_phases.phase1;
    const auto noted = Bound<double>(second.FromYear).then([this] { m_secondFromEdited = true; });
    const auto yearAfterFirst = [this] { return m_phases.phase0.ToYear + 1; };
    // Not before it is entered: an annuity of one phase leaves the second one blank.
    const NumberKind afterFirst =
        whole
            .where([this, yearAfterFirst](double year) { return !m_secondFromEdited || year == yearAfterFirst(); },
                   "Only a value of one year more than the Previous 'To Year' Allowed.", "From Year!")
            .orElse(yearAfterFirst);
    return phase(1, {noted, afterFirst}, {second.LAInitDraw, income}, second);
}

std::vector<EditColumn> frmDDLivAnn::columns() {
    const auto isTooHigh = [this](double typed) {
        return m_grid->hasOpenEntry() && m_grid->currentIndex().row() == 0 &&
               checkFirstIncome(m_annuity.LSAmt, typed, m_costs) == FirstIncome::aboveMaximum;
    };
    const NumberKind details = income.where([isTooHigh](double typed) { return !isTooHigh(typed); },
                                            [this] { return rangeComplaint(FirstIncome::aboveMaximum); });
    const NumberKind endYear = whole.where([](double year) { return year > 1 && year <= 50; },
                                           "Only a value between 1 and 50 can be entered!", detailsTitle);
    NumberKind rise = escalation;
    rise.characters = 10; // its head is longer than its figures
    return {{"From year", fromYear, 0, {}},
            {"To year", endYear, 0, {}},
            {"Monthly income", details, 0, {}},
            {"Escalation %", rise, 0, {}},
            {"Growth %", growth, 0, {}}};
}

QWidget* frmDDLivAnn::details() {
    m_grid = editGrid("grdMRD");
    m_grid->setAccessibleName(detailsTitle);
    letEnterPass(m_grid);
    m_grid->edited = [this, marked = m_grid->edited] {
        takeRows();
        marked();
    };
    auto* add = button("cmdAddRow", "A&dd row", [this] { m_grid->addRow(); });
    auto* remove = button("cmdDeleteRow", "De&lete row", [this] { m_grid->deleteRow(); });
    auto* said =
        note("The first two rows are the two phases. Further rows are kept until another client is opened, but "
             "do not count.");
    return group("fraMRD", detailsTitle, column({{m_grid, 1}, row({Item(said, 1), add, remove})}));
}

QWidget* frmDDLivAnn::answers() {
    const auto last = [this](const DrawDownResult::Yearly& years) {
        return Bound<double>([this, &years] { return years[static_cast<std::size_t>(m_result.DrawYears)]; },
                             [](double) {});
    };
    return group("fraAnswers", "Result",
                 form({{"Invested after costs", answer("numNetPercent", m_result.NetPercent, percent), "%"},
                       {"Income is paid for", answer("numDrawYears", m_result.DrawYears, whole), "years"},
                       {"Portfolio then", answer("numLastPortfolio", last(m_result.YearPortfolio))},
                       {"Monthly income then", answer("numLastIncome", last(m_result.YearIncome))}}));
}

void frmDDLivAnn::buildCosts() {
    auto* commission = number("numInitCom", m_entered.BrokerCom, initialCommission);
    auto* setup = number("numSetupCosts", m_entered.SetupCosts, setupCosts);
    auto* fee = number("numAnnPortFee", m_entered.AnnPortFee, managementFee);
    auto* yield = number("numAnnDiv", m_entered.AnnualDiv, dividend);
    auto* trail = number("numTrailComm", m_entered.TrailComm, trailCommission);
    auto* highest = number("numMaxIncAllowed", m_entered.MaxIncAllowed, maximumIncome);
    auto* lowest = number("numMinIncAllowed", m_entered.MinIncAllowed, minimumIncome);
    m_openCosts = settingsPanel<assessment::DrawDownCosts>(
        costNames,
        form({{"Initial &up-front commission", commission, "%"},
              {"&Setup costs", setup},
              {"Annual &management fee", fee, "%"},
              {"Annual &dividend", yield, "%"},
              {"&Trail commission on portfolio value", trail, "%"},
              {"Ma&ximum income allowed", highest, "% a year"},
              {"Mi&nimum income allowed", lowest, "% a year"}}),
        {commission, setup, fee, yield, trail, highest, lowest}, m_costs, m_entered,
        [this](const assessment::DrawDownCosts& costs) { writeDrawDownCosts(m_work.paths.DefaultDbPath, costs); },
        [this] { calculate(); });
}

void frmDDLivAnn::filled() {
    m_name->setText(QString::fromStdString(m_work.record.client.Name));
    showRows();
    calculate();
}

void frmDDLivAnn::edited() {
    if (m_grid->rows() != rowsOf(m_phases)) showRows();
}

void frmDDLivAnn::showRows() {
    constexpr int visibleRows = 4;
    m_grid->present(columns(), rowsOf(m_phases), visibleRows);
}

void frmDDLivAnn::takeRows() {
    const std::vector<EditRow> rows = m_grid->rows();
    m_phases = {};
    m_rangeEdited = nullptr; // the table has checked the income by its own rule
    for (std::size_t line = 0; line < rows.size(); ++line)
        if (line < 2)
            (line == 0 ? m_phases.phase0 : m_phases.phase1) = phaseOf(rows[line]);
        else
            m_phases.further.push_back(phaseOf(rows[line]));
    for (Field* field : m_phaseFields)
        field->fill();
}

void frmDDLivAnn::calculate() {
    m_result = DrawDownCalc(m_annuity, m_phases, m_costs, m_NomRate);
    const bool isFinite = m_result.isFinite();
    const QString answer = m_result.DrawYears > 0 ? QString::fromStdString(m_result.sentence())
                           : m_result.end == DrawDownEnd::notStarted
                               ? "Enter the amount, and the income and growth rate of the first phase."
                               : "Enter the last year of the first phase.";
    m_sentence->setText(isFinite ? answer : QString());
    showAnswers(isFinite);
}

void frmDDLivAnn::sayAnswers() {
    m_sentence->text().isEmpty() ? ResultScreen::sayAnswers() : announce(m_sentence->text());
}

void frmDDLivAnn::showYears() {
    showGrid("Draw Down Annuity",
             {{" Years ", "##"},
              {"Portfolio value ", "### ### ###"},
              {"Monthly income", "### ### ###.00"},
              {"    % Change    ", "### ### ###.00"}},
             tableRows(yearRows(m_result)), m_ok);
}

void frmDDLivAnn::draw() {
    if (m_result.DrawYears == 0) return m_ok->setFocus(Qt::OtherFocusReason); // no amount, or no years
    DrawDownResult::Yearly annualIncome{};
    for (std::size_t year = 0; year < annualIncome.size(); ++year)
        annualIncome[year] = 12 * m_result.YearIncome[year];
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->LivAnnGraph(m_result.YearPortfolio, annualIncome, m_result.DrawYears);
}

std::optional<datastore::Printout> frmDDLivAnn::feed() {
    if (!m_result.isFinite()) return {};
    return feedDrawDown(m_work.paths.PrintDbPath, m_work.record.client.Name, m_annuity, m_phases, m_costs, m_result,
                        m_includeAmort == 1);
}

} // namespace calculators
