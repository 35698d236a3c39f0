#include <QLabel>

#include "datastore/paths.h"
#include "reports/report.h"
#include "screenkit/look.h"
#include "tax/capitalgainhelp.h"
#include "tax/capitalgainreports.h"
#include "tax/frmCGTCalcIncome.h"

// The panels of capital gains: help, known gains, summary and print. The page is in frmCGTCalcIncome.cpp.
namespace tax {

using namespace screenkit;
using assessment::CGTTrustRow;

// ---- help

QPushButton* frmCGTCalcIncome::helpButton(const QString& name, const QString& title, std::function<void()> open) {
    auto* push = button(name, "?", std::move(open));
    push->setAccessibleName(tr("Help: %1").arg(title));
    push->setToolTip(title);
    push->setFixedWidth(look::lineHeight(push) * 2);
    return push;
}

QPushButton* frmCGTCalcIncome::help(int topic) {
    const HelpText& words = capitalGainTopics[topic];
    return helpButton(QString("cmdInfo(%1)").arg(topic), words.title, [this, &words] {
        m_openHelp({words.title, words.text});
    });
}

void frmCGTCalcIncome::buildHelp() {
    m_openHelp = infoPanel();
    QLabel* texts[3];
    for (int i = 0; i < 3; ++i) {
        texts[i] = note(baseCostTexts[i]);
        texts[i]->setObjectName(QString("lblABC(%1)").arg(i));
    }
    auto* ok = cancelButton("cmdOK_Info_Two", "&OK", [this] { m_baseCostHelp->close(); });
    m_baseCostHelp = panel("fraInfo_Two", baseCostTitle, column({texts[0], texts[1], texts[2]}), {ok});
}

// ---- known gains

namespace {

EditColumn amountColumn(const QString& head) {
    const NumberKind amount{"### ### ###", false, 12};
    return {
        head,
        amount.between(-999999999, 999999999, "Only a value between -999 999 999 and 999 999 999 can be entered!", {}),
        0,
        {}};
}

EditColumn yesOrNoColumn(const QString& head) {
    EditColumn column = yesNoColumn(head);
    column.complaint = "Please enter a Y or N !";
    return column;
}

QString yesNo(const std::string& stored) { return isYes(stored) ? "Yes" : "No"; }

} // namespace

void frmCGTCalcIncome::openKnownGains() {
    constexpr int longestSource = 60; // characters
    std::vector<EditRow> rows;
    for (const CGTTrustRow& gain : m_gains.trustOther)
        rows.push_back({QString::fromStdString(gain.source), yesNo(gain.copSplit), gain.baseCost, gain.Proceeds,
                        gain.Amount, yesNo(gain.ExclCOPSplit)});
    openList(tr("Known gains from trusts and other sources"),
             {{"Trust or Other Source", {}, longestSource, "A maximum of only 60 characters can be accepted !"},
              yesOrNoColumn("Foreign Y/N?"),
              amountColumn("Base Cost"),
              amountColumn("Proceeds"),
              amountColumn("Gain/Loss"),
              yesOrNoColumn("COP Split N/Y?")},
             std::move(rows), 6);
}

void frmCGTCalcIncome::listTaken(const std::vector<EditRow>& rows) {
    if (rows.empty() && m_gains.trustOther.empty()) return; // an empty list must not take the typed totals away
    std::vector<CGTTrustRow> gains;
    const auto word = [](const EditCell& cell) { return std::get<QString>(cell).toStdString(); };
    for (const EditRow& row : rows)
        gains.push_back({.source = word(row[0]),
                         .copSplit = word(row[1]),
                         .Amount = std::get<double>(row[4]),
                         .baseCost = std::get<double>(row[2]),
                         .Proceeds = std::get<double>(row[3]),
                         .ExclCOPSplit = word(row[5])});
    takeItemisedGains(m_gains, std::move(gains));
    m_work.record.changed.CGTChanged = 1;
    m_local->fill();
    m_foreign->fill();
    work();
}

// ---- the year

void frmCGTCalcIncome::buildSummary() {
    const auto code = [this](int index, const char* number) {
        auto* label = new QLabel(number);
        label->setObjectName(QString("numCode(%1)").arg(index));
        return label;
    };
    const auto shown = [this](const QString& name, double& figure, const QString& spoken) {
        auto* field = result(name, figure, money);
        field->setAccessibleName(spoken);
        m_resultFields.push_back(field);
        return field;
    };
    auto* localProfit = shown("num4250CapGain", m_results.num4250CapGain, tr("Local profit, code 4250"));
    auto* localLoss = shown("num4251CapGain", m_results.num4251CapGain, tr("Local loss, code 4251"));
    auto* foreignProfit =
        shown("num4252ForeignCapGain", m_results.num4252ForeignCapGain, tr("Foreign profit, code 4252"));
    auto* foreignLoss = shown("num4253ForeignCapGain", m_results.num4253ForeignCapGain, tr("Foreign loss, code 4253"));
    auto* added = shown("numWTCGTTotal", m_results.numWTCGTTotal, {});
    auto* carried = shown("numCarryOverCapGain", m_results.numCarryOverCapGain, {});
    auto* codes = matrix({"Profit", "Loss"},
                         {{"Local", {row({code(0, "4250"), localProfit}), row({code(1, "4251"), localLoss})}},
                          {"Foreign", {row({code(2, "4252"), foreignProfit}), row({code(3, "4253"), foreignLoss})}}});
    m_summaryOk = cancelButton("cmdOkSummary", "&OK", [this] { m_summary->close(); });
    m_summary =
        panel("fraSummary", "     CAPITAL GAIN / LOSS",
              column({codes, form({{"Capital Gain Added to Income", added}, {"Capital Loss Carried Forward", carried}}),
                      row({help(aboutSummary), spring()})}),
              {m_summaryOk});
}

// ---- print

void frmCGTCalcIncome::buildPrintPanel() {
    auto* itemised = check("Check1", "Include Itemised C.G. Calculator &Details", m_itemisedDetails);
    auto* schedule = check("Check2", "Include  IT12  &Schedule", m_schedule);
    auto* details = check("Check3", "Print C.G. Calculator Details", m_details);
    auto* others = check("Check4", "Include CGain/loss from shares, trust etc.", m_otherGains);
    for (CheckField* kept : {itemised, schedule, details})
        kept->setToolTip(tr("Changes nothing in the report of this version"));
    for (CheckField* choice : {itemised, schedule, details, others})
        untrackedField(choice);
    m_printPanel =
        printPanel({itemised, schedule, details, others}, [this](Destination to) { print(to); }, {.panel = "Frame4"});
}

void frmCGTCalcIncome::print(Destination destination) {
    const CapitalGainReportOptions wanted{m_results, m_list.CurrentAsset(), m_otherGains == 1};
    const auto printouts = feedCapitalGains(m_work.paths.PrintDbPath, m_work.record, wanted);
    if (printouts.empty()) return m_work.desk.tell(BoxStyle::warning, "No Data found to Print !", "Marlowbeck");
    for (const datastore::Printout& report : printouts)
        if (!m_work.reports.run(QString::fromStdString(report.definition), QString::fromStdString(report.title),
                                destination))
            return;
}

} // namespace tax
