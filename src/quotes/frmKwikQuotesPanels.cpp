#include <QLabel>

#include "datastore/funds.h"
#include "datastore/paths.h"
#include "quotes/frmKwikQuotes.h"
#include "reports/report.h"
#include "screenkit/trouble.h"

// The panels of Kwik-Quotes; its pages are in frmKwikQuotes.cpp.
namespace quotes {

using namespace screenkit;

void frmKwikQuotes::closePanel(Panel* shown) {
    shown->close();
    m_kinds->fill();
}

// ---- life of capital

void frmKwikQuotes::buildLifePanel() {
    auto* fields = form(lifeRows());
    m_okLife = button("cmdOkLC", "&OK", [this] { closePanel(m_lifePanel); });
    auto* years = lifeYearsButton([this] { showLifeYears(m_okLife); });
    auto* drawing = lifeGraphButton([this] { drawLife(m_okLife); });
    m_lifePanel = panel("fraLifeOfCap", "Life of Capital", fields, {years, drawing, m_okLife});
    m_lifePanel->setEnterWalks();
}

void frmKwikQuotes::openLife() {
    m_isLifeShown = true;
    calculateLife();
    m_lifePanel->open();
}

// ---- the practice's rates

namespace {

/// The limit of the annuity's commission speaks of the allocation, and the allocation has no limit: on purpose, since
/// users know the messages that way.
const NumberKind singleCommission =
    percent.upTo(100, "The maximum Allocation Percentage allowed is 100%", "Incorrect Allocation Percentage!");

} // namespace

struct frmKwikQuotes::RateLine {
    QString caption, control;
    double FundDefaults::*rate;
    NumberKind kind = percent;
};

QWidget* frmKwikQuotes::rateGroup(const QString& name, const QString& title, std::initializer_list<RateLine> lines) {
    std::vector<MatrixRow> rows;
    for (const RateLine& line : lines) {
        const bool isFee = line.kind.mask == money.mask;
        auto* own = number(line.control, m_funds.*line.rate, line.kind);
        auto* original = number(line.control + "DEF", m_original.*line.rate, line.kind);
        original->setLocked(true);
        m_rateFields.push_back(own);
        rows.push_back({line.caption, {own, row({original, new QLabel(isFee ? "rand" : "%")})}});
    }
    return group(name, title, matrix({"Your rates", "Original rates"}, rows));
}

void frmKwikQuotes::buildRatesPanel() {
    using Rates = FundDefaults;
    const NumberKind narrowMoney{money.mask, false, 10};
    auto* endowment = rateGroup("fraEndow", "Endowment",
                                {{"Single premium commission", "numESPremCom", &Rates::ESPremCom},
                                 {"Comm on regular premiums", "numEAPremCom", &Rates::EAPremCom},
                                 {"Monthly premium commission", "numEMPremCom", &Rates::EMPremCom},
                                 {"Trail comm. on portfolio value", "numEAComPortVal", &Rates::EAComPortVal},
                                 {"Comm. on escalating prem.'s", "numEComEscPr", &Rates::EComEscPr},
                                 {"Initial admin fees", "numEIAF", &Rates::EIAF, narrowMoney},
                                 {"Annual management fees", "numEAMFee", &Rates::EAMFee},
                                 {"Annual dividend/bonus", "numEADivBo", &Rates::EADivBo},
                                 {"Effective tax rate on annual profits", "numETaxRate", &Rates::ETaxRate}});
    auto* unitTrust = rateGroup("fraUnitTrust", "Unit Trust/Mutual Fund type",
                                {{"Commision", "numUTComm", &Rates::UTCOM},
                                 {"Annual Dividend", "numUTDiv", &Rates::UTDiv},
                                 {"Annual management fees", "numUTAMFee", &Rates::UTAMFee},
                                 {"Trail comm. on portfolio value", "numUTAComPortVal", &Rates::UTAComPortVal}});
    auto* retirement = rateGroup("fraRA", "Retirement Annuity/Superannuation",
                                 {{"Single premium commission", "numRSPreCom", &Rates::RSPremCom, singleCommission},
                                  {"Comm on regular premiums", "numRAPremCom", &Rates::RAPremCom},
                                  {"Monthly premium commission", "numRMPremCom", &Rates::RMPremCom},
                                  {"Trail comm. on portfolio value", "numRAComPortVal", &Rates::RAComPortVal},
                                  {"Comm. on escalating premiums", "numRComEscPr", &Rates::RComEscPr},
                                  {"Initial admin fees", "numRIAF", &Rates::RIAF, narrowMoney},
                                  {"Annual management fees", "numRAMFee", &Rates::RAMFee},
                                  {"Annual dividend/bonus", "numRAADivBo", &Rates::RAADivBo},
                                  {"Lump sum portion", "numLumpSumPort", &Rates::LumpSumPort},
                                  {"Allocation Percentage", "numRAAllocPerc", &Rates::AllocationPer},
                                  {"Annuity Percentage", "numRAAnnuityPerc", &Rates::AnnuityPer}});
    auto* step = number("numGrowRateStep", m_work.record.GRINC,
                        percent.from(0, "The growth rate step cannot be negative", "Incorrect Growth rate step!"));
    m_rateFields.push_back(step);
    for (Field* field : m_rateFields)
        untrackedField(field);
    auto* spinning = group("fraStep", "Spin buttons", form({{"&Growth rate step", step, "%"}}));
    m_ratesPanel = panel("fraDefaults", "Default Rates",
                         row({column({endowment, unitTrust}), column({retirement, spinning, spring()})}),
                         {button("cmdOKDefault", "&OK", [this] { keepRates(); }),
                          cancelButton("cmdCancelDefault", "&Cancel/Undo Changes", [this] { undoRates(); })});
    m_ratesPanel->setEnterWalks();
}

void frmKwikQuotes::openRates() {
    m_heldFunds = m_funds;
    m_heldStep = m_work.record.GRINC;
    for (Field* field : m_rateFields)
        field->fill();
    m_ratesPanel->open();
}

void frmKwikQuotes::keepRates() {
    m_ratesPanel->close();
    if (!isOnPremiums()) m_lumpSum->takeFocus();
    if (m_isSearched && m_funds != m_heldFunds) outdated(premiumPageIndex);
    showQuote();
    guarded(m_work.desk, tr("store the default rates, so they apply only until it is closed"),
            [this] { datastore::storeFunds(m_work.record, m_work.paths.DefaultDbPath); });
}

void frmKwikQuotes::restoreRates() {
    m_funds = m_heldFunds;
    m_work.record.GRINC = m_heldStep;
}

void frmKwikQuotes::undoRates() {
    restoreRates();
    m_ratesPanel->close();
    if (!isOnPremiums()) m_lumpSum->takeFocus();
    showQuote();
}

void frmKwikQuotes::closing() {
    if (!m_ratesPanel->isHidden()) restoreRates();
}

// ---- the growth of unit trusts

void frmKwikQuotes::buildHistoryPanel() {
    m_historyGrid = table("DBGrid1", "Unit Trust History", Grid::Picking::stretch, {}, {}, [this](int column) {
        showHistory({column, !m_ascending[static_cast<std::size_t>(column)]});
    });
    m_historyGrid->setVisibleLines(16);
    m_historyPanel = panel("fraUnitHist", "Unit Trust History", m_historyGrid,
                           {button("cmdPrintHist", "&Print", [this] { printHistory(); }),
                            button("cmdOkUnitHist", "&OK", [this] { closePanel(m_historyPanel); })});
    m_historyPanel->setEnterWalks();
}

void frmKwikQuotes::openHistory() {
    m_ascending = {};
    showHistory({});
    m_historyPanel->open(m_historyGrid);
}

void frmKwikQuotes::showHistory(HistoryOrder order) {
    constexpr const char* growth = "#0.0%";
    constexpr int growthWidth = 6;                                   // characters
    FundHistory history = readFundHistory(m_work.paths.UnitsDbPath); // each time: the file may have been replaced
    sortFunds(history.funds, order);
    m_history = std::move(history);
    m_order = order;
    m_ascending[static_cast<std::size_t>(order.column)] = order.ascending;
    std::vector<GridColumn> columns{GridColumn::text("Unit Trust Fund")};
    for (const char* period : {"1 yr", "2 yr", "3 yr", "5 yr", "7 yr"})
        columns.push_back({period, growth, GridColumn::Kind::figures, growthWidth});
    m_historyGrid->show(std::move(columns), {m_history.funds.size(), [this](std::size_t row, std::size_t column) {
                                                 const FundGrowth& fund = m_history.funds[row];
                                                 if (column == 0) return GridCell(QString::fromStdString(fund.name));
                                                 const auto figure = fund.growth[column - 1];
                                                 return figure ? GridCell(*figure) : GridCell();
                                             }});
    m_historyGrid->setSortedBy(order.column, order.ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void frmKwikQuotes::printHistory() {
    const auto printout = feedFundHistory(m_work.paths.PrintDbPath, m_history, m_order);
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       Destination::preview);
}

} // namespace quotes
