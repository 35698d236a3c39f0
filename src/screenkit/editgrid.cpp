#include "screenkit/editgrid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "screenkit/look.h"
#include "screenkit/tabletext.h"
#include "screenkit/textfield.h"

namespace screenkit {

namespace {

bool isOneCell(const std::vector<QStringList>& rows) { return rows.size() == 1 && rows.front().size() == 1; }

} // namespace

/// Edits the cells with the kit's own fields, and lets the table decide when an entry is accepted: Qt's delegate would
/// accept or drop it unchecked.
class EditGrid::Delegate : public QStyledItemDelegate {
public:
    explicit Delegate(EditGrid* grid) : QStyledItemDelegate(grid), m_grid(grid) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& cell) const override {
        return m_grid->openEditor(parent, cell);
    }
    void setEditorData(QWidget*, const QModelIndex&) const override {}
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const override {
        editor->setGeometry(option.rect);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress && m_grid->editorKey(*static_cast<QKeyEvent*>(event));
    }

private:
    EditGrid* m_grid;
};

EditGrid::EditGrid(const QString& name, QWidget* parent) : QTableView(parent), m_cells(new EditCells(this)) {
    setObjectName(name);
    setModel(m_cells);
    setItemDelegate(new Delegate(this));
    setAlternatingRowColors(true);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false); // our own code handles Tab, since it adds rows and leaves the table at the end
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

EditGrid::~EditGrid() {
    if (m_editor != nullptr) m_editor->left = {}; // it may lose the focus after this table's members are gone
}

void EditGrid::present(std::vector<EditColumn> columns, std::vector<EditRow> rows, int visibleRows) {
    endEdit();
    m_visibleRows = visibleRows;
    m_cells->set(std::move(columns), std::move(rows));
    verticalHeader()->setDefaultSectionSize(look::lineHeight(this) * 3 / 2);
    for (int column = 0; column < m_cells->columnCount(); ++column) {
        const EditColumn& kind = m_cells->column(m_cells->index(0, column));
        horizontalHeader()->setSectionResizeMode(column, kind.number ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (kind.number) setColumnWidth(column, fontMetrics().horizontalAdvance('0') * (kind.number->characters + 2));
    }
    goTo(0, 0);
    updateGeometry();
}

std::vector<EditRow> EditGrid::rows() const { return m_cells->rows(); }

QSize EditGrid::sizeHint() const {
    constexpr int readableLine = 92; // characters: the text beside four columns of figures
    const int rows = verticalHeader()->defaultSectionSize() * m_visibleRows;
    return {fontMetrics().averageCharWidth() * readableLine,
            rows + horizontalHeader()->sizeHint().height() + 2 * frameWidth()};
}

// ---- moving about

void EditGrid::goTo(int row, int column) { setCurrentIndex(m_cells->index(row, column)); }

bool EditGrid::walk(bool forward) {
    const int columns = m_cells->columnCount();
    const QModelIndex here = currentIndex();
    if (columns == 0 || !here.isValid()) return false;
    const int next = here.row() * columns + here.column() + (forward ? 1 : -1);
    if (next < 0 || (next == m_cells->rowCount() * columns && !m_cells->offer())) return false;
    goTo(next / columns, next % columns);
    return true;
}

bool EditGrid::focusNextPrevChild(bool next) {
    if (!leaveCell()) return true;
    return walk(next) || QTableView::focusNextPrevChild(next);
}

void EditGrid::addRow() {
    if (!leaveCell()) return;
    m_cells->offer();
    goTo(m_cells->rowCount() - 1, 0);
    takeFocus();
}

void EditGrid::deleteRow() {
    const QModelIndex here = currentIndex();
    endEdit();
    takeFocus();
    if (!here.isValid()) return;
    const int row = here.row();
    const int column = here.column();
    m_cells->erase(row);
    goTo(std::min(row, m_cells->rowCount() - 1), column);
    if (edited) edited();
}

void EditGrid::keyPressEvent(QKeyEvent* event) {
    if (m_editor != nullptr) return event->ignore(); // comes from the cell editor, which had no use for it
    const QModelIndex here = currentIndex();
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key();
    if (event->matches(QKeySequence::Paste))
        paste();
    else if (key == Qt::Key_Escape || !here.isValid())
        event->ignore();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        control ? event->ignore() : enterPressed(here);
    else if (key == Qt::Key_Delete && control)
        deleteRow();
    else if (key == Qt::Key_Delete)
        editAfresh([](EntryLine& cell) { cell.del(); });
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (key == Qt::Key_Down && here.row() == m_cells->rowCount() - 1 && m_cells->offer())
        goTo(here.row() + 1, here.column());
    else
        QTableView::keyPressEvent(event);
}

void EditGrid::enterPressed(const QModelIndex& cell) {
    if (m_cells->isBlank(cell))
        focusNextPrevChild(true);
    else
        edit(cell);
}

// ---- to and from other programs

void EditGrid::copy() const {
    const QModelIndexList cells = selectedIndexes();
    QGuiApplication::clipboard()->setText(cells.size() > 1 ? tableText(cells) : currentIndex().data().toString());
}

void EditGrid::paste() {
    if (!currentIndex().isValid()) goTo(0, 0); // a click below the rows leaves no current cell
    auto rows = tableRows(QGuiApplication::clipboard()->text());
    if (isOneCell(rows))
        editAfresh([](EntryLine& cell) { cell.paste(); });
    else
        pasteRows(std::move(rows));
}

void EditGrid::pasteRows(std::vector<QStringList> rows) {
    if (!leaveCell()) return;
    const QModelIndex from = currentIndex();
    QStringList heads;
    for (int column = from.column(); column < m_cells->columnCount(); ++column)
        heads << m_cells->column(from.siblingAtColumn(column)).head;
    if (rows.front() == heads) rows.erase(rows.begin()); // copied from a table like this one
    m_pasteFault = m_cells->paste(from, rows);
    if (!m_pasteFault) {
        if (edited) edited();
    } else if (check) {
        check();
    }
    m_pasteFault.reset();
}

// ---- the cell in edit

QWidget* EditGrid::openEditor(QWidget* parent, const QModelIndex& cell) {
    const EditColumn& column = m_cells->column(cell);
    EntryLine* made = nullptr;
    if (column.number) {
        m_number = std::get<double>(m_cells->at(cell));
        made = new NumberField(objectName() + "Cell", m_number, *column.number, parent);
    } else {
        // The editor takes more than the column does, so that a text that is too long gets a message instead of being
        // cut.
        constexpr int room = 32767;
        m_text = std::get<QString>(m_cells->at(cell));
        made = new TextField(objectName() + "Cell",
                             {[this] { return m_text; }, [this](const QString& text) { m_text = text; }}, room,
                             column.characters, parent);
    }
    made->fill();
    made->setAccessibleName(m_cells->spokenName(cell));
    made->edited = [this] { m_touched = true; };
    made->left = [this, made] { editorLeft(made); };
    m_editor = made;
    m_edited = cell;
    m_touched = false;
    return made;
}

void EditGrid::editAfresh(const std::function<void(EntryLine&)>& begin) {
    edit(currentIndex());
    if (m_editor == nullptr) return;
    m_editor->selectAll();
    begin(*m_editor);
}

bool EditGrid::editorKey(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste)) {
        auto rows = tableRows(QGuiApplication::clipboard()->text());
        if (isOneCell(rows)) return false;
        pasteRows(std::move(rows));
        return true;
    }
    if (event.modifiers().testFlag(Qt::ControlModifier)) return false;
    const int row = currentIndex().row();
    switch (event.key()) {
    case Qt::Key_Escape: m_editor->isRefused() ? giveBack() : void(leaveCell()); return true;
    case Qt::Key_Tab:
    case Qt::Key_Return:
    case Qt::Key_Enter: focusNextPrevChild(true); return true;
    case Qt::Key_Backtab: focusNextPrevChild(false); return true;
    case Qt::Key_Up:
        if (leaveCell() && row > 0) goTo(row - 1, currentIndex().column());
        return true;
    case Qt::Key_Down:
        if (leaveCell() && (row + 1 < m_cells->rowCount() || m_cells->offer())) goTo(row + 1, currentIndex().column());
        return true;
    default: return false;
    }
}

NumberField* EditGrid::numberInEdit() const { return qobject_cast<NumberField*>(m_editor.data()); }

/// An entry that the user has not changed is never refused, whatever the file held.
std::optional<Complaint> EditGrid::wrong() const {
    if (!hasOpenEntry()) return {};
    if (const NumberField* number = numberInEdit()) return number->fault();
    return m_cells->column(m_edited).read(m_text).refusal;
}

void EditGrid::giveBack() {
    m_editor->giveBack();
    m_touched = false;
}

void EditGrid::takeEntry() {
    if (!hasOpenEntry() || !m_edited.isValid()) return;
    m_touched = false;
    m_cells->put(m_edited,
                 numberInEdit() != nullptr ? EditCell(m_number) : m_cells->column(m_edited).read(m_text).cell);
    if (edited) edited();
}

void EditGrid::endEdit() {
    if (m_editor != nullptr) closeEditor(m_editor, QAbstractItemDelegate::NoHint);
}

bool EditGrid::leaveCell() {
    if (wrong()) {
        if (check) check();
        return false;
    }
    takeEntry();
    endEdit();
    return true;
}

void EditGrid::editorLeft(const EntryLine* editor) {
    if (editor != m_editor) return; // it is closed and is only losing the focus
    if (wrong()) {
        if (left) left();
        return;
    }
    takeEntry();
    endEdit();
}

std::optional<Complaint> EditGrid::complaint() {
    if (m_pasteFault) return std::exchange(m_pasteFault, {});
    if (m_editor != nullptr && m_editor->isRefused()) return m_editor->complaint();
    auto complaint = wrong();
    if (!complaint) {
        takeEntry();
        return {};
    }
    const EditCell& held = m_cells->at(m_edited);
    if (const auto* number = std::get_if<double>(&held)) m_number = *number;
    if (const auto* text = std::get_if<QString>(&held)) m_text = *text;
    m_editor->fill();
    m_touched = false;
    return complaint;
}

QWidget* EditGrid::entry() { return m_editor != nullptr ? static_cast<QWidget*>(m_editor) : this; }

void EditGrid::takeFocus() {
    if (m_editor != nullptr)
        m_editor->takeFocus();
    else
        setFocus(Qt::OtherFocusReason);
}

void EditGrid::commitData(QWidget* editor) {
    if (editor == m_editor && !wrong()) takeEntry();
}

void EditGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (editor == m_editor) m_editor = nullptr;
    QTableView::closeEditor(editor, hint);
}

/// While a cell has an entry that may be refused, the mouse stays with it: the message comes when its button is
/// released.
bool EditGrid::isHeldByMouse() { return m_editor != nullptr; }

void EditGrid::mousePressEvent(QMouseEvent* event) {
    if (!isHeldByMouse()) QTableView::mousePressEvent(event);
}

void EditGrid::mouseMoveEvent(QMouseEvent* event) {
    if (!isHeldByMouse()) QTableView::mouseMoveEvent(event);
}

void EditGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!isHeldByMouse()) QTableView::mouseDoubleClickEvent(event);
}

} // namespace screenkit
