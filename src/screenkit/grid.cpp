#include "screenkit/grid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "screenkit/look.h"
#include "screenkit/tabletext.h"

namespace screenkit {

Grid::Grid(const QString& name, QWidget* parent)
    : QTableView(parent), m_list(new ListModel(this)), m_empty(new QLabel(viewport())) {
    setObjectName(name);
    setModel(m_list);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    m_empty->setObjectName(name + "Empty");
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setAttribute(Qt::WA_TransparentForMouseEvents);
    (new QVBoxLayout(viewport()))->addWidget(m_empty);
    m_empty->hide();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &Grid::notePicks);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &Grid::headChosen);
    connect(m_list, &QAbstractItemModel::modelReset, this, &Grid::showWhetherEmpty);
}

void Grid::setPicking(Picking picking) {
    m_picking = picking;
    setSelectionMode(picking == Picking::stretch ? ExtendedSelection
                     : picking == Picking::one   ? SingleSelection
                                                 : MultiSelection);
}

void Grid::setSortable(bool sortable) {
    m_sortable = sortable;
    horizontalHeader()->setSectionsClickable(sortable);
    horizontalHeader()->setSortIndicatorShown(sortable);
    markHead(-1, Qt::AscendingOrder);
    horizontalHeader()->setToolTip(sortable ? tr("Click to sort by this column, again to reverse the order. By "
                                                 "keyboard: Ctrl+1 for the first column, and so on.")
                                            : QString());
}

void Grid::setVisibleLines(int lines) {
    m_visibleLines = lines;
    updateGeometry();
}

void Grid::setEmptyText(const QString& text) {
    m_empty->setText(text);
    showWhetherEmpty();
}

void Grid::showWhetherEmpty() {
    const bool empty = m_list->rowCount() == 0 && !m_empty->text().isEmpty();
    m_empty->setVisible(empty);
    setAccessibleDescription(empty ? m_empty->text() : QString());
}

void Grid::show(std::vector<GridColumn> columns, GridRows rows) {
    m_picked.assign(rows.count, false);
    m_list->set(std::move(columns), std::move(rows));
    verticalHeader()->setDefaultSectionSize(look::lineHeight(this) * 3 / 2);
    fitColumns();
    if (m_picking == Picking::stretch && m_list->shownRows() > 0) setCurrentIndex(m_list->index(0, 0));
}

void Grid::show(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows) {
    const std::size_t count = rows.size();
    show(std::move(columns), {count, [rows = std::move(rows)](std::size_t row, std::size_t column) {
                                  return GridCell(rows[row][column]);
                              }});
}

void Grid::clear() { show({}, GridRows()); }

void Grid::fitColumns() {
    int section = 0;
    for (const GridColumn& column : m_list->columns()) {
        const bool shares = column.characters == 0;
        horizontalHeader()->setSectionResizeMode(section, shares ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (!shares) setColumnWidth(section, fontMetrics().averageCharWidth() * (column.characters + 2));
        ++section;
    }
}

void Grid::narrow(const std::optional<std::vector<std::size_t>>& rows) {
    const auto row = current();
    const int column = currentIndex().column();
    m_list->narrow(rows);
    restorePicks(row, column);
}

void Grid::sortBy(int column, Qt::SortOrder order) {
    const auto row = current();
    const int gone = currentIndex().column();
    m_list->sort(column, order);
    m_sorted = true;
    markHead(column, order);
    restorePicks(row, gone);
}

void Grid::sortAsBefore() {
    if (m_sorted) sortBy(m_sortColumn, m_sortOrder);
}

void Grid::sortByHead(int column) {
    const bool again = m_sortColumn == column && m_sortOrder == Qt::AscendingOrder;
    sortBy(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void Grid::markHead(int column, Qt::SortOrder order) {
    m_sortColumn = column;
    m_sortOrder = order;
    horizontalHeader()->setSortIndicator(column, order);
}

void Grid::headChosen(int column) {
    if (!m_sortable || column >= m_list->columnCount()) return;
    if (headPressed)
        headPressed(column);
    else
        sortByHead(column);
    markHead(m_sortColumn, m_sortOrder); // Qt has already reversed its own arrow
}

// ---- what is picked

void Grid::notePicks(const QItemSelection& added, const QItemSelection& dropped) {
    if (m_restoring) return;
    for (const auto& [ranges, on] : {std::pair{&dropped, false}, std::pair{&added, true}})
        for (const QItemSelectionRange& range : *ranges)
            for (int line = range.top(); line <= range.bottom(); ++line)
                if (const auto row = m_list->rowAt(line)) m_picked[*row] = on;
    if (pickChanged) pickChanged();
}

void Grid::restorePicks(std::optional<std::size_t> current, int column) {
    std::vector<bool> seen(m_picked.size(), false);
    QItemSelection selection;
    QModelIndex place;
    for (int line = 0; line < m_list->shownRows(); ++line) {
        const std::size_t row = *m_list->rowAt(line);
        if (row == current) place = m_list->index(line, column);
        if (!m_picked[row]) continue;
        seen[row] = true;
        const bool follows = !selection.isEmpty() && selection.back().bottom() == line - 1;
        const QModelIndex first = m_list->index(follows ? selection.back().top() : line, 0);
        if (follows) selection.removeLast();
        selection.append({first, m_list->index(line, m_list->columnCount() - 1)});
    }
    {
        const QScopedValueRollback restoring(m_restoring, true);
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        if (place.isValid()) selectionModel()->setCurrentIndex(place, QItemSelectionModel::NoUpdate);
    }
    if (place.isValid()) scrollTo(place);
    if (m_picking == Picking::several || seen == m_picked) return;
    m_picked = std::move(seen); // hidden lines are not picked
    if (pickChanged) pickChanged();
}

std::vector<std::size_t> Grid::picked() const {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < m_picked.size(); ++row)
        if (m_picked[row]) rows.push_back(row);
    return rows;
}

void Grid::pick(const std::vector<std::size_t>& rows) {
    m_picked.assign(m_list->rows(), false);
    for (const std::size_t row : rows)
        m_picked[row] = true;
    restorePicks(rows.empty() ? current() : rows.front(), 0);
    if (pickChanged) pickChanged();
}

void Grid::pickFirst() {
    if (first()) pick({*first()});
}

// ---- keys

QSize Grid::sizeHint() const {
    constexpr int readable = 26; // characters of a column without a fixed width
    const int lines = look::lineHeight(this) * 3 / 2 * (m_visibleLines + 1); // and the head
    int characters = 0;
    for (const GridColumn& column : m_list->columns())
        characters += column.characters == 0 ? readable : column.characters + 2;
    // Beside the columns: the scroll bar, the frame, and what the style leaves between them.
    const int around = verticalScrollBar()->sizeHint().width() + 2 * frameWidth() + look::lineHeight(this) / 2;
    return {fontMetrics().averageCharWidth() * std::clamp(characters, 80, 130) + around, lines};
}

QModelIndex Grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd) modifiers |= Qt::ControlModifier;
    const QModelIndex to = QTableView::moveCursor(action, modifiers);
    return to.row() < m_list->shownRows() ? to : m_list->index(m_list->shownRows() - 1, to.column());
}

void Grid::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else if (m_sortable && event->modifiers() == Qt::ControlModifier && key >= Qt::Key_1 && key <= Qt::Key_9)
        headChosen(key - Qt::Key_1);
    else if (enter && opened && selectionModel()->hasSelection())
        opened();
    else if (enter)
        event->ignore(); // left to the default button
    else if (key == Qt::Key_Down && m_picking == Picking::one && !selectionModel()->hasSelection())
        pickFirst(); // the first, since none was picked yet
    else
        QTableView::keyPressEvent(event);
}

void Grid::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (opened && m_list->rowAt(indexAt(event->position().toPoint()).row())) opened();
}

void Grid::copySelection() const {
    QModelIndexList cells = selectedIndexes();
    if (cells.isEmpty()) return; // keeps the clipboard, since column heads alone are worth nothing
    const bool isWhole = cells.size() == m_list->shownRows() * m_list->columnCount();
    if (isWhole && m_list->rowCount() > m_list->shownRows())
        for (int column = 0; column < m_list->columnCount(); ++column)
            cells << m_list->index(m_list->shownRows(), column); // a copy of the whole table includes the totals
    QGuiApplication::clipboard()->setText(tableText(cells));
}

} // namespace screenkit
