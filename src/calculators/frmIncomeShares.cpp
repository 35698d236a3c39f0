#include "calculators/frmIncomeShares.h"

#include "calculators/incomefromsharesreport.h"
#include "calculators/nominalrate.h"
#include "datastore/paths.h"
#include "reports/frmGraph.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr double highestGrowth = 99;
constexpr const char* figures = "### ### ##0";

const NumberKind growth =
    percent.where([](double rate) { return rate >= 0 && rate <= highestGrowth; }, [] { return Complaint{}; }).orElse(0);
const NumberKind share = percent.between(0, 100, "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
const NumberKind fee = money.from(0, "Please enter an amount that is not negative.", "Incorrect Amount");
const SettingsNames settingsNames{
    .panel = "fraDefaultRates", .ok = "cmdOKDefault", .cancel = "cmdCancelDefault", .title = "Default rates"};

std::vector<std::vector<double>> rowsOf(std::span<const SharesYear> years) {
    std::vector<std::vector<double>> rows;
    for (const SharesYear& year : years)
        rows.push_back({static_cast<double>(year.year), year.capital, year.incomeDrawn, year.tax});
    return rows;
}

std::vector<std::vector<double>> monthsOf(const IncomeSharesRun& run) {
    std::vector<std::vector<double>> rows;
    for (std::size_t month = 1; month <= static_cast<std::size_t>(run.months); ++month)
        rows.push_back({static_cast<double>(month), run.ISCapital[month], run.ISIncome[month], run.ISTax[month]});
    return rows;
}

} // namespace

frmIncomeShares::frmIncomeShares(Workplace& workplace)
    : ResultScreen(workplace, "frmIncomeShares", "Income From Shares", workplace.record.changed.IncomeSharesChanged),
      m_inputs(workplace.record.incomeShares), m_costs(readIncomeSharesCosts(workplace.paths.DefaultDbPath)) {
    m_samples = table("grdIncomeShares", "The first seven years", Grid::Picking::stretch);
    m_samples->setVisibleLines(7);
    m_answer = answerLine("txtAns", 50);
    m_answer->setAccessibleName(tr("How long the capital lasts"));
    showsCalculated(m_answer);
    body(column({row({buildInputs(), m_samples}), m_answer, spring(),
                 buttonLine({resultButton("cmdAmort", "Ta&ble", [this] { showTable(); }),
                             resultButton("cmdGraph", "&Graph", [this] { graph(); }),
                             button("cmdDefaultRates", "&Default rates", [this] { m_openSettings(); })})}));
    buildSettings();
    auto* commissions = check("chkIncComms", "Include co&mmissions", m_commissions);
    prints({commissions}, {commissions});
}

QLayout* frmIncomeShares::buildInputs() {
    const auto place = [this] { return m_inputs.AnnMonIncShare == "monthly" ? 0 : 1; };
    auto* interval =
        options("optInterval", {"&Monthly", "Annuall&y"},
                {place, [this](int index) { m_inputs.AnnMonIncShare = index == 0 ? "monthly" : "annually"; }});
    interval->option(0)->setObjectName("optMonthly");
    interval->option(1)->setObjectName("optAnnually");
    return column({form({{"Amount &invested", number("numInvestAmount", m_inputs.InvestAmount, money)},
                         {"Growth &rate", number("numGrowthRate", growthRate(), growth), "% a year"},
                         {"Income re&quired", number("numInitPercRequire", m_inputs.InitPercRequire, money)},
                         {"Income &escalation", number("numAnnIncEsca", m_inputs.AnnIncEsca, percent), "% a year"},
                         {"Effective &tax rate", number("numEffTaxRate", m_inputs.EffTaxRate, percent), "%"}}),
                   group("fraInterval", "Income drawn", interval)});
}

void frmIncomeShares::buildSettings() {
    auto* commission = number("numInitCom", m_entered.InitCom, share);
    auto* adminFee = number("numInitAdminFee", m_entered.InitAdminFee, fee);
    auto* dividend = number("numAnnDivBonus", m_entered.AnnDivBonus, share);
    auto* management = number("numAnnManFee", m_entered.AnnManFee, share);
    auto* trail = number("numTrailComm", m_entered.TrailComm, share);
    m_openSettings = settingsPanel<IncomeSharesCosts>(
        settingsNames,
        form({{"&Initial commission", commission, "%"},
              {"Initial a&dministration fee", adminFee, "rand"},
              {"Annual dividend &bonus", dividend, "%"},
              {"Annual &management fee", management, "%"},
              {"&Trail commission", trail, "% a year"}}),
        {commission, adminFee, dividend, management, trail}, m_costs, m_entered,
        [this](const IncomeSharesCosts& entered) { writeIncomeSharesCosts(m_work.paths.DefaultDbPath, entered); },
        [this] { calculate(); });
}

Bound<double> frmIncomeShares::growthRate() {
    return {[this] { return m_refusedRate.value_or(m_inputs.ISGrowthRate); },
            [this](double rate) {
                m_refusedRate.reset();
                if (rate > highestGrowth)
                    m_refusedRate = rate;
                else
                    m_inputs.ISGrowthRate = rate;
                takeNominalRate();
            }};
}

/// Each key counts: after 12, a rate of 1 keeps the nominal rate of 12.
void frmIncomeShares::takeNominalRate() {
    if (m_refusedRate) return;
    if (const auto nominal = nominalRate(m_inputs.ISGrowthRate)) m_nominalRate = *nominal;
}

void frmIncomeShares::filled() {
    takeNominalRate();
    calculate();
}

void frmIncomeShares::calculate() {
    m_run = incomeFromShares(m_inputs, m_costs, m_nominalRate);
    m_samples->show(
        {{" Year ", "##"}, {"Capital", figures}, {"   Income Drawn   ", figures}, {"  Tax due on income   ", figures}},
        hasRun() ? rowsOf(m_run.sampleYears()) : std::vector<std::vector<double>>());
    m_answer->setText(m_run.isFinite() ? QString::fromStdString(m_run.sentence()) : "   Error");
    showAnswers();
}

void frmIncomeShares::sayAnswers() { announce(m_answer->text()); }

void frmIncomeShares::showTable() {
    if (!hasRun()) return m_ok->setFocus(Qt::OtherFocusReason);
    showGrid("Income From Shares",
             {{m_run.isMonthly ? " Month " : "  Year  ", "##"},
              {"     Capital      ", figures},
              {"   Income Drawn   ", figures},
              {"Tax due on income", figures}},
             m_run.isMonthly ? monthsOf(m_run) : rowsOf(m_run.years()), m_ok);
}

void frmIncomeShares::graph() {
    if (!hasRun()) return m_ok->setFocus(Qt::OtherFocusReason);
    std::vector<double> capital{0}, drawn{0}, tax{0};
    for (const SharesYear& year : m_run.years()) {
        capital.push_back(year.capital);
        drawn.push_back(year.incomeDrawn);
        tax.push_back(year.tax);
    }
    m_work.shell.open("frmGraph");
    if (auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph")))
        window->IncFromSharesAmortGraph(capital, drawn, tax, static_cast<int>(capital.size()) - 1);
}

std::optional<datastore::Printout> frmIncomeShares::feed() {
    if (!hasRun()) return {};
    return feedIncomeFromShares(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_costs, m_run,
                                m_commissions == 1);
}

} // namespace calculators
