#include "screenkit/editcells.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace screenkit {

namespace {

bool isBlankCell(const EditCell& cell, const EditColumn& column) {
    if (const auto* number = std::get_if<double>(&cell)) return *number == 0;
    const auto& text = std::get<QString>(cell);
    return text.isEmpty() || text == column.blank;
}

QString shownText(const EditCell& cell, const EditColumn& column) {
    const auto* number = std::get_if<double>(&cell);
    if (number == nullptr) return std::get<QString>(cell);
    return column.number->format(*number);
}

QVariant alignment(const EditColumn& column) {
    return QVariant((column.number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

EditColumn::Reading EditColumn::read(const QString& typed) const {
    if (number) {
        const NumberKind::Reading reading = number->read(typed);
        const Limit* limit = reading.refusal ? nullptr : number->brokenBy(reading.value);
        return {reading.value, limit != nullptr ? limit->complaint() : reading.refusal};
    }
    const auto kept = keptAs ? keptAs(typed) : std::optional(typed);
    if (kept && base::characterCount(kept->toStdString()) <= static_cast<std::size_t>(characters)) return {*kept, {}};
    return {{}, Complaint{complaint}};
}

EditColumn yesNoColumn(const QString& head) {
    const auto keptAs = [](const QString& typed) -> std::optional<QString> {
        const QString word = typed.trimmed().toLower();
        if (word == "y" || word == "yes") return "Yes";
        if (word.isEmpty() || word == "n" || word == "no") return "No";
        return {};
    };
    constexpr int longestWord = 3;
    return {head, {}, longestWord, QObject::tr("Please enter Yes or No."), keptAs, "No"};
}

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

std::optional<Complaint> EditCells::read(const QStringList& texts, int row, int firstColumn, EditRow& into) const {
    auto column = m_columns.begin() + firstColumn;
    for (const QString& text : texts) {
        if (column == m_columns.end()) {
            if (text.isEmpty()) continue;
            return Complaint{tr("Row %1 has more cells than there are columns.\nNothing was pasted.").arg(row)};
        }
        QString line = text;
        std::replace_if(
            line.begin(), line.end(), [](QChar c) { return c < u' '; }, QChar(u' '));
        EditColumn::Reading reading = column->read(line);
        if (reading.refusal)
            return Complaint{
                tr("Row %1, %2: %3\nNothing was pasted.").arg(row).arg(column->head, reading.refusal->text)};
        into[static_cast<std::size_t>(column++ - m_columns.begin())] = std::move(reading.cell);
    }
    return {};
}

std::optional<Complaint> EditCells::paste(const QModelIndex& from, const std::vector<QStringList>& texts) {
    std::vector<EditRow> rows(m_rows.begin() + from.row(), m_rows.end());
    rows.resize(std::max(rows.size(), texts.size()), blankRow());
    for (std::size_t row = 0; row < texts.size(); ++row)
        if (auto complaint = read(texts[row], static_cast<int>(row) + 1, from.column(), rows[row])) return complaint;
    const std::size_t end = place(from.row()) + rows.size();
    if (end > m_rows.size()) {
        append(end - m_rows.size());
        m_lastIsOffered = false;
    }
    std::move(rows.begin(), rows.end(), m_rows.begin() + from.row());
    emit dataChanged(from, index(rowCount() - 1, columnCount() - 1));
    return {};
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

void EditCells::append(std::size_t count) {
    const auto end = static_cast<int>(m_rows.size());
    beginInsertRows({}, end, end + static_cast<int>(count) - 1);
    m_rows.resize(m_rows.size() + count, blankRow());
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
        row.push_back(column.number ? EditCell(0.0) : EditCell(column.blank));
    return row;
}

bool EditCells::isBlank(const QModelIndex& cell) const { return isBlankCell(at(cell), column(cell)); }

bool EditCells::isBlank(const EditRow& row) const {
    return std::equal(row.begin(), row.end(), m_columns.begin(), isBlankCell);
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
    if (!has(cell)) return Qt::NoItemFlags;
    return QAbstractTableModel::flags(cell) | Qt::ItemIsEditable;
}

QVariant EditCells::data(const QModelIndex& cell, int role) const {
    if (!has(cell)) return {};
    if (role == Qt::TextAlignmentRole) return alignment(column(cell));
    if (role == Qt::DisplayRole) return shownText(at(cell), column(cell));
    if (role == Qt::AccessibleTextRole) return QString(spokenName(cell) + ": " + shownText(at(cell), column(cell)));
    return {};
}

QVariant EditCells::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::TextAlignmentRole) return alignment(m_columns[place(section)]);
    if (role == Qt::DisplayRole) return m_columns[place(section)].head;
    return {};
}

} // namespace screenkit
