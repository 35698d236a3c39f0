#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "screenkit/listmodel.h"

class QLabel;

namespace screenkit {

/// A read-only table, in a panel or in the body of a screen, walked by the arrow keys.
///
/// Ctrl+C copies the picked lines below their heads, as `tableText` tells. Where it is sortable a click on a head,
/// or Ctrl and the column's number, sorts by it, a second one the other way. Tab leaves it; Enter is the screen's or
/// the panel's unless lines can be opened.
class Grid : public QTableView {
    Q_OBJECT
public:
    /// What may be picked: a stretch of lines for copying, with the first one picked at the start; one line or none; or
    /// several, each click or Space adding or dropping one, which stay picked when a search hides them.
    enum class Picking { stretch, one, several };

    explicit Grid(const QString& name, QWidget* parent = nullptr);

    void setPicking(Picking picking);
    void setSortable(bool sortable);
    /// As many lines as stand there before it scrolls.
    void setVisibleLines(int lines);
    /// What stands in the middle while there is no line.
    void setEmptyText(const QString& text);

    /// Blanks at the ends of the heads are not shown. Nothing stays picked or narrowed away.
    void show(std::vector<GridColumn> columns, GridRows rows);
    /// rows: one list of figures a row, as many as there are columns.
    void show(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows);
    void clear();
    /// Shows these rows only; nothing: all.
    void narrow(const std::optional<std::vector<std::size_t>>& rows);
    /// The same column again turns the order round.
    void sortByHead(int column);
    void sortBy(int column, Qt::SortOrder order);
    /// The rows come in the rising order of this column, and its head says so.
    void setSortedBy(int column) { markHead(column, Qt::AscendingOrder); }
    /// Rows shown anew go by the head that the user sorted by last.
    void sortAsBefore();

    /// The rows picked, by their numbers in what was shown last, the lowest first.
    std::vector<std::size_t> picked() const;
    /// Picks these rows and no others, and goes to the first of them.
    void pick(const std::vector<std::size_t>& rows);
    /// Picks the line at the top, if there is one.
    void pickFirst();
    /// The row at the top, and the one gone to last; nothing if there is none.
    std::optional<std::size_t> first() const { return m_list->rowAt(0); }
    std::optional<std::size_t> current() const { return m_list->rowAt(currentIndex().row()); }

    QSize sizeHint() const override;

    std::function<void()> pickChanged;    ///< by the user, by `pick` or because a search has hidden what was picked
    std::function<void()> opened;         ///< a double click or Enter on a picked line
    std::function<void(int)> headPressed; ///< instead of `sortByHead`

protected:
    /// Home and End go to the first and last line, as in any list; the totals are gone past.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void copySelection() const;
    void fitColumns();
    void headChosen(int column);
    void markHead(int column, Qt::SortOrder order);
    void notePicks(const QItemSelection& added, const QItemSelection& dropped);
    /// Lines have moved: what is picked is marked, and the current line found, where they are now.
    void restorePicks(std::optional<std::size_t> current, int column);
    void showWhetherEmpty();

    ListModel* m_list;
    QLabel* m_empty;
    Picking m_picking = Picking::stretch;
    std::vector<bool> m_picked; ///< of each row
    bool m_restoring = false;
    bool m_sortable = false;
    int m_sortColumn = -1; ///< what the heads show; none: the rows' own order
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_sorted = false; ///< by the user
    int m_visibleLines = 10;
};

} // namespace screenkit
