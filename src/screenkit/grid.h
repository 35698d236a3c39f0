#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "screenkit/listmodel.h"

class QLabel;

namespace screenkit {

/// A read-only table, in a panel or in the body of a screen, in which the arrow keys move.
///
/// Ctrl+C copies the picked lines with their column heads, see `tableText`. In a sortable table a click on a head, or
/// Ctrl and the column's number, sorts by that column; a second time reverses the order. Tab leaves the table; Enter
/// presses the screen's or panel's default button, unless lines can be opened.
class Grid : public QTableView {
    Q_OBJECT
public:
    /// What may be picked: a range of lines to copy, at first the first line; one line or none; or several, each
    /// toggled by a click or Space, which stay picked while a search hides them.
    enum class Picking { stretch, one, several };

    explicit Grid(const QString& name, QWidget* parent = nullptr);

    void setPicking(Picking picking);
    void setSortable(bool sortable);
    /// The number of lines shown without scrolling.
    void setVisibleLines(int lines);
    /// The text shown in the middle while there is no line.
    void setEmptyText(const QString& text);

    /// Trims the heads. Clears the picks and the narrowing.
    void show(std::vector<GridColumn> columns, GridRows rows);
    /// rows: one list of figures for each row, one figure for each column.
    void show(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows);
    void clear();
    /// Shows only these rows; nothing: all.
    void narrow(const std::optional<std::vector<std::size_t>>& rows);
    /// Sorts by this column; the same column again reverses the order.
    void sortByHead(int column);
    void sortBy(int column, Qt::SortOrder order);
    /// The rows are already in the order of this column; its head shows that.
    void setSortedBy(int column, Qt::SortOrder order = Qt::AscendingOrder) { markHead(column, order); }
    /// Sorts new rows as the user sorted last.
    void sortAsBefore();

    /// The picked rows, by their numbers in the rows shown last, in ascending order.
    std::vector<std::size_t> picked() const;
    /// Picks only these rows, and goes to the first of them.
    void pick(const std::vector<std::size_t>& rows);
    /// Picks the top line, if there is one.
    void pickFirst();
    /// The top row and the current row; nothing if there is none.
    std::optional<std::size_t> first() const { return m_list->rowAt(0); }
    std::optional<std::size_t> current() const { return m_list->rowAt(currentIndex().row()); }

    QSize sizeHint() const override;

    std::function<void()> pickChanged;    ///< by the user, by `pick` or because a search hides a picked line
    std::function<void()> opened;         ///< a double click or Enter on a picked line
    std::function<void(int)> headPressed; ///< instead of `sortByHead`

protected:
    /// Home and End go to the first and last line, as in any list, and skip the totals.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void copySelection() const;
    void fitColumns();
    void headChosen(int column);
    void markHead(int column, Qt::SortOrder order);
    void notePicks(const QItemSelection& added, const QItemSelection& dropped);
    /// After lines have moved, selects the picked lines and the current line in their new places.
    void restorePicks(std::optional<std::size_t> current, int column);
    void showWhetherEmpty();

    ListModel* m_list;
    QLabel* m_empty;
    Picking m_picking = Picking::stretch;
    std::vector<bool> m_picked; ///< one for each row
    bool m_restoring = false;
    bool m_sortable = false;
    int m_sortColumn = -1; ///< the column marked in the heads; -1: the rows' own order
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_sorted = false; ///< the user has sorted
    int m_visibleLines = 10;
};

} // namespace screenkit
