#include "analyses/frmItemised.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "analyses/itemisereport.h"
#include "datastore/paths.h"
#include "reports/report.h"
#include "screenkit/look.h"

namespace analyses {

using namespace screenkit;
using assessment::ItemRow;

namespace {

EditColumn editColumn(const ItemColumn& column) {
    const QString complaint = QString::fromUtf8(column.complaint);
    if (column.figure == nullptr) return {column.head, {}, static_cast<int>(column.most), complaint};
    const int characters = column.figure == &ItemRow::Amount ? 14 : 9;
    const NumberKind shown{column.mask, false, characters};
    return {column.head, shown.between(0, column.most, complaint, {}), 0, {}};
}

std::vector<EditRow> editRows(const ItemLine& line, const std::vector<ItemRow>& rows) {
    std::vector<EditRow> shown;
    shown.reserve(rows.size());
    for (const ItemRow& row : rows) {
        EditRow& cells = shown.emplace_back();
        for (const ItemColumn& column : line.columns())
            cells.push_back(column.figure == nullptr ? EditCell(QString::fromStdString(row.IncomeSource))
                                                     : EditCell(row.*column.figure));
    }
    return shown;
}

QString buttonName(int index) { return QString("cmdItemise(%1)").arg(index); }

std::vector<ItemRow> itemRows(const ItemLine& line, const std::vector<EditRow>& shown) {
    std::vector<ItemRow> rows;
    rows.reserve(shown.size());
    for (const EditRow& cells : shown) {
        ItemRow& row = rows.emplace_back();
        auto cell = cells.begin();
        for (const ItemColumn& column : line.columns()) {
            if (column.figure == nullptr)
                row.IncomeSource = std::get<QString>(*cell++).toStdString();
            else
                row.*column.figure = std::get<double>(*cell++);
        }
    }
    return rows;
}

} // namespace

ItemisedScreen::ItemisedScreen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                               assessment::Analysis analysis)
    : ListScreen(workplace, name, caption, changed), m_changedFlag(changed), m_analysis(analysis) {}

const ItemLine& ItemisedScreen::line(int index) const {
    const auto& lines = itemLines(m_analysis);
    const auto found =
        std::find_if(lines.begin(), lines.end(), [index](const ItemLine& each) { return each.index == index; });
    assert(found != lines.end());
    return *found;
}

QPushButton* ItemisedScreen::itemiseButton(int index) {
    const ItemLine& itemised = line(index);
    const QString name = tr("Itemise %1").arg(QString::fromStdString(itemised.title));
    auto* push = small(button(buttonName(index), name, [this, &itemised] { open(itemised); }), name);
    m_shown[index].button = push;
    refresh(itemised);
    return push;
}

QPushButton* ItemisedScreen::policiesButton(int index) {
    const QString name = tr("Policies and investments");
    m_policies = small(opener(buttonName(index), name, "frmPolInvest"), name);
    refreshPolicies();
    return m_policies;
}

QPushButton* ItemisedScreen::small(QPushButton* push, const QString& name) const {
    push->setText({});
    push->setToolTip(name);
    const int side = look::lineHeight(push);
    push->setIconSize({side, side});
    push->setFixedWidth(side * 2);
    return push;
}

void ItemisedScreen::locks(int index, std::initializer_list<Field*> fields) { m_shown[index].fields = fields; }

void ItemisedScreen::refreshItemised() {
    for (const ItemLine& each : itemLines(m_analysis))
        refresh(each);
    refreshPolicies();
}

void ItemisedScreen::refreshPolicies() {
    if (m_policies == nullptr) return;
    for (const assessment::ItemTable& each : assessment::itemTables())
        if (each.analysis == m_analysis && each.list == nullptr)
            showInUse(m_policies, *std::get<std::int16_t*>(each.flag.at(&m_work.record)) != 0);
}

void ItemisedScreen::refresh(const ItemLine& itemised) {
    const auto shown = m_shown.find(itemised.index);
    if (shown == m_shown.end()) return;
    const bool on = itemised.list(m_work.record).flag != 0;
    for (Field* field : shown->second.fields)
        field->setLocked(on);
    if (shown->second.button != nullptr) showInUse(shown->second.button, on);
}

void ItemisedScreen::printItems(Destination destination) {
    if (!anyItemised(m_work.record, m_analysis)) return;
    feedItemised(m_work.paths.PrintDbPath, m_work.record, m_analysis);
    m_work.reports.run(itemisedDefinition, itemisedTitle, destination);
}

// ---- the panel

void ItemisedScreen::open(const ItemLine& itemised) {
    m_open = &itemised;
    std::vector<EditColumn> columns;
    for (const ItemColumn& each : itemised.columns())
        columns.push_back(editColumn(each));
    const int visibleRows = itemised.kind == ItemKind::timed ? 6 : 5; // a further row would bring a scroll bar
    const auto total = [this] {
        m_totalField = result("numItemiseTotal", m_total, wholeRand);
        return std::vector<Item>{labelled(tr("Total"), m_totalField)};
    };
    openList(QString::fromStdString(itemised.title), std::move(columns),
             editRows(itemised, itemised.list(m_work.record).rows), visibleRows, total);
    showTotal();
}

void ItemisedScreen::showTotal() {
    m_total = sumOfItems(itemRows(*m_open, listRows()));
    m_totalField->fill();
}

void ItemisedScreen::listTaken(const std::vector<EditRow>& rows) {
    const ItemLine& taken = *m_open;
    takeItems(m_work.record, taken, itemRows(taken, rows));
    markChanged();
    refresh(taken);
    for (Field* field : m_shown[taken.index].fields)
        field->fill();
    itemsTaken(taken);
    recalculate();
}

} // namespace analyses
