#include "screenkit/editcells.h"

#include <algorithm>
#include <utility>

#include "base/numberformat.h"

namespace screenkit {

namespace {

bool isBlank(const EditRow& row) {
    return std::all_of(row.begin(), row.end(), [](const EditCell& cell) {
        const auto* number = std::get_if<double>(&cell);
        return number != nullptr ? *number == 0 : std::get<QString>(cell).isEmpty();
    });
}

QString shownText(const EditCell& cell, const EditColumn& column) {
    const auto* number = std::get_if<double>(&cell);
    if (number == nullptr) return std::get<QString>(cell);
    return QString::fromStdString(base::formatNumber(*number, column.number->mask));
}

QVariant alignment(const EditColumn& column) {
    return QVariant((column.number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

void EditCells::set(std::vector<EditColumn> columns, std::vector<EditRow> rows) {
    beginResetModel();
    m_columns = std::move(columns);
    m_rows = std::move(rows);
    if (m_rows.empty()) m_rows.push_back(blankRow());
    m_lastIsOffered = false;
    endResetModel();
}

std::vector<EditRow> EditCells::rows() const {
    std::vector<EditRow> held = m_rows;
    if (m_lastIsOffered && isBlank(held.back())) held.pop_back();
    return held;
}

void EditCells::put(const QModelIndex& cell, EditCell content) {
    m_rows[place(cell.row())][place(cell.column())] = std::move(content);
    emit dataChanged(cell, cell);
}

bool EditCells::offer() {
    if (isBlank(m_rows.back())) return false;
    append();
    m_lastIsOffered = true;
    return true;
}

void EditCells::append() {
    const auto end = static_cast<int>(m_rows.size());
    beginInsertRows({}, end, end);
    m_rows.push_back(blankRow());
    endInsertRows();
}

void EditCells::erase(int row) {
    if (row == rowCount() - 1) m_lastIsOffered = false;
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
    if (m_rows.empty()) append();
}

EditRow EditCells::blankRow() const {
    EditRow row;
    for (const EditColumn& column : m_columns)
        row.push_back(column.number ? EditCell(0.0) : EditCell(QString()));
    return row;
}

QString EditCells::spokenName(const QModelIndex& cell) const {
    return tr("%1, row %2").arg(column(cell).head).arg(cell.row() + 1);
}

int EditCells::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EditCells::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

Qt::ItemFlags EditCells::flags(const QModelIndex& cell) const {
    return QAbstractTableModel::flags(cell) | Qt::ItemIsEditable;
}

QVariant EditCells::data(const QModelIndex& cell, int role) const {
    if (role == Qt::TextAlignmentRole) return alignment(column(cell));
    if (role == Qt::DisplayRole) return shownText(at(cell), column(cell));
    if (role == Qt::AccessibleTextRole) return QString(spokenName(cell) + ": " + shownText(at(cell), column(cell)));
    return {};
}

QVariant EditCells::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return alignment(m_columns[place(section)]);
    if (role == Qt::DisplayRole) return m_columns[place(section)].head;
    return {};
}

} // namespace screenkit
