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
    int characters = 0; ///< its width; 0: an equal share of the room that the others leave

    static GridColumn text(const QString& head, int characters = 0) { return {head, {}, Kind::text, characters}; }
    static GridColumn date(const QString& head) { return {head, {}, Kind::date, 12}; }
};

/// What stands in a cell: nothing, a figure or day number, or a text.
using GridCell = std::variant<std::monostate, double, QString>;

/// The rows of a table, known by their numbers from 0. Cells are asked for as they are painted or sorted, so that a
/// hundred thousand rows cost nothing before they are seen.
struct GridRows {
    std::size_t count = 0;
    std::function<GridCell(std::size_t row, std::size_t column)> cell;
    std::function<QString(std::size_t row)> spoken =
        {}; ///< a whole row as a screen reader says it; by default cell by cell
    std::vector<GridCell> totals =
        {}; ///< a last line in bold, never sorted, narrowed away or picked; empty: there is none
};

/// The one model behind every table that is looked at and picked from: sorted by any column, narrowed to some rows.
/// An index or section that is not there gives nothing.
class ListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// All rows, in their own order.
    void set(std::vector<GridColumn> columns, GridRows rows);
    /// Shows these rows only, in the order of the sort; nothing: all.
    void narrow(const std::optional<std::vector<std::size_t>>& rows);
    /// By the cells of a column: blanks below all others, texts without regard to case and accents, equal cells in
    /// their rows' own order both ways. A column that is not there brings back the rows' own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    const std::vector<GridColumn>& columns() const { return m_columns; }
    std::size_t rows() const { return m_rows.count; } ///< with those narrowed away
    int shownRows() const { return static_cast<int>(m_shown.size()); }
    /// The row that a line shows; nothing for the line of totals.
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
    std::vector<std::size_t> m_order; ///< all rows as they are sorted
    std::vector<std::size_t> m_shown; ///< those of them that are not narrowed away
    std::optional<std::vector<bool>> m_narrowed;
};

} // namespace screenkit
