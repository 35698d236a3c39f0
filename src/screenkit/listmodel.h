#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace screenkit {

/// A column of a table: its head, and how its cells are shown and sorted. Figures have a mask; dates are day numbers.
struct GridColumn {
    enum class Kind { figures, text, date };

    QString head;
    std::string mask;
    Kind kind = Kind::figures;
    int characters = 0; ///< its width; 0: an equal share of the remaining width

    static GridColumn text(const QString& head, int characters = 0) { return {head, {}, Kind::text, characters}; }
    static GridColumn date(const QString& head) { return {head, {}, Kind::date, 12}; }
};

/// The content of a cell: nothing, a figure or day number, or a text.
using GridCell = std::variant<std::monostate, double, QString>;

/// The rows of a table, numbered from 0. Cells are requested only when they are painted or sorted, so a hundred
/// thousand rows cost nothing until they are shown.
struct GridRows {
    std::size_t count = 0;
    std::function<GridCell(std::size_t row, std::size_t column)> cell;
    std::function<QString(std::size_t row)> spoken =
        {}; ///< a whole row as a screen reader says it; by default cell by cell
    std::vector<GridCell> totals =
        {}; ///< a last line in bold, never sorted, narrowed away or picked; empty: there is none
};

/// The model of every read-only table: sorted by any column, narrowed to some rows. An index or section that does not
/// exist returns nothing.
class ListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// All rows, in their own order.
    void set(std::vector<GridColumn> columns, GridRows rows);
    /// Shows only these rows, in sorted order; nothing: all.
    void narrow(const std::optional<std::vector<std::size_t>>& rows);
    /// Sorts by the cells of a column: blanks last, texts without case and accents, equal cells in the rows' own order
    /// in both directions. A column that does not exist restores the rows' own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    const std::vector<GridColumn>& columns() const { return m_columns; }
    std::size_t rows() const { return m_rows.count; } ///< including hidden ones
    int shownRows() const { return static_cast<int>(m_shown.size()); }
    /// The row shown in a line; nothing for the line of totals.
    std::optional<std::size_t> rowAt(int line) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool has(const QModelIndex& index) const {
        return index.isValid() && index.row() < rowCount() && index.column() < columnCount();
    }
    GridCell cellAt(const QModelIndex& index) const;
    QString textAt(const QModelIndex& index) const;
    QString spokenAt(const QModelIndex& index) const;
    void showNarrowed();

    std::vector<GridColumn> m_columns;
    GridRows m_rows;
    std::vector<std::size_t> m_order; ///< all rows, sorted
    std::vector<std::size_t> m_shown; ///< the sorted rows that are not hidden
    std::optional<std::vector<bool>> m_narrowed;
};

} // namespace screenkit
