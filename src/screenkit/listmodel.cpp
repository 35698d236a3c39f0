#include "screenkit/listmodel.h"

#include <QFont>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/day.h"
#include "base/fold.h"
#include "base/numberformat.h"

namespace screenkit {

namespace {

/// A cell in a form that can be compared. NaN counts as a blank, since it has no order.
struct CellKey {
    enum class Rank { blank, number, text };

    explicit CellKey(const GridCell& cell) {
        const auto* figure = std::get_if<double>(&cell);
        const auto* words = std::get_if<QString>(&cell);
        if (figure != nullptr && !std::isnan(*figure)) {
            rank = Rank::number;
            number = *figure;
        } else if (words != nullptr && !words->isEmpty()) {
            rank = Rank::text;
            text = base::SortKey(words->toStdString());
        }
    }
    bool operator<(const CellKey& other) const {
        if (rank != other.rank) return rank < other.rank;
        return rank == Rank::text ? text < other.text : number < other.number;
    }

    Rank rank = Rank::blank;
    double number = 0;
    base::SortKey text;
};

std::vector<std::size_t> ownOrder(std::size_t count) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

QVariant alignment(const GridColumn& column) {
    return QVariant((column.kind == GridColumn::Kind::figures ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QString shown(const GridCell& cell, const GridColumn& column) {
    if (const auto* words = std::get_if<QString>(&cell)) return *words;
    const auto* number = std::get_if<double>(&cell);
    if (number == nullptr) return {};
    return QString::fromStdString(column.kind == GridColumn::Kind::date ? base::formatDate(*number)
                                                                        : base::formatNumber(*number, column.mask));
}

} // namespace

void ListModel::set(std::vector<GridColumn> columns, GridRows rows) {
    beginResetModel();
    m_columns = std::move(columns);
    m_rows = std::move(rows);
    m_order = ownOrder(m_rows.count);
    m_narrowed.reset();
    showNarrowed();
    endResetModel();
}

void ListModel::narrow(const std::optional<std::vector<std::size_t>>& rows) {
    beginResetModel();
    m_narrowed.reset();
    if (rows) {
        m_narrowed.emplace(m_rows.count, false);
        for (const std::size_t row : *rows)
            (*m_narrowed)[row] = true;
    }
    showNarrowed();
    endResetModel();
}

void ListModel::sort(int column, Qt::SortOrder order) {
    beginResetModel();
    m_order = ownOrder(m_rows.count);
    if (column >= 0 && column < columnCount()) {
        std::vector<CellKey> keys;
        keys.reserve(m_rows.count);
        for (std::size_t row = 0; row < m_rows.count; ++row)
            keys.emplace_back(m_rows.cell(row, static_cast<std::size_t>(column)));
        const bool rises = order == Qt::AscendingOrder;
        std::stable_sort(m_order.begin(), m_order.end(),
                         [&](std::size_t a, std::size_t b) { return rises ? keys[a] < keys[b] : keys[b] < keys[a]; });
    }
    showNarrowed();
    endResetModel();
}

void ListModel::showNarrowed() {
    m_shown.clear();
    for (const std::size_t row : m_order)
        if (!m_narrowed || (*m_narrowed)[row]) m_shown.push_back(row);
}

std::optional<std::size_t> ListModel::rowAt(int line) const {
    if (line < 0 || line >= shownRows()) return {};
    return m_shown[static_cast<std::size_t>(line)];
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownRows() + (m_rows.totals.empty() ? 0 : 1);
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    if (!has(index)) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return rowAt(index.row()) ? flags : flags & ~Qt::ItemIsSelectable;
}

GridCell ListModel::cellAt(const QModelIndex& index) const {
    const auto column = static_cast<std::size_t>(index.column());
    if (const auto row = rowAt(index.row())) return m_rows.cell(*row, column);
    return column < m_rows.totals.size() ? m_rows.totals[column] : GridCell();
}

QString ListModel::textAt(const QModelIndex& index) const {
    return shown(cellAt(index), m_columns[static_cast<std::size_t>(index.column())]);
}

QString ListModel::spokenAt(const QModelIndex& index) const {
    const auto row = rowAt(index.row());
    if (row && index.column() == 0 && m_rows.spoken) return m_rows.spoken(*row);
    return m_columns[static_cast<std::size_t>(index.column())].head.trimmed() + ": " + textAt(index);
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!has(index)) return {};
    const GridColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole: return textAt(index);
    case Qt::ToolTipRole: return column.kind == GridColumn::Kind::text ? QVariant(textAt(index)) : QVariant();
    case Qt::AccessibleTextRole: return spokenAt(index);
    case Qt::TextAlignmentRole: return alignment(column);
    case Qt::FontRole: break;
    default: return {};
    }
    if (rowAt(index.row())) return {};
    QFont bold;
    bold.setBold(true);
    return bold;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const GridColumn& column = m_columns[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole) return alignment(column);
    if (role == Qt::DisplayRole) return column.head.trimmed();
    return {};
}

} // namespace screenkit
