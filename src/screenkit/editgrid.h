#pragma once

#include <QPointer>
#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "screenkit/editcells.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// A table that the user fills in place, by keyboard alone if he likes. It holds its rows itself.
///
/// Typing, F2, Enter or a double click edits a cell; on an empty one Enter walks on. Enter and Tab take the entry and
/// go to the next cell, from the last one to a new row; Up, Down and Escape take it as well, Down past the last row
/// adds one. A blank row at the end is not followed by another: from there Tab leaves the table, as Ctrl+Enter does to
/// the default button from anywhere. Ctrl+Delete deletes the row; one blank row always stays. A cell is checked
/// whenever it is left, by key, by mouse or by a button: what can't stand is told in a box, the cell gets back what it
/// held, and stays in edit. Numbers are typed as in a NumberField, refused as there, and keep every bit behind their
/// mask until they are typed over. Rows of a spreadsheet are pasted from the current cell on, all of them or none;
/// several cells are copied below their heads.
class EditGrid : public QTableView, public Field {
    Q_OBJECT
public:
    explicit EditGrid(const QString& name, QWidget* parent = nullptr);
    ~EditGrid() override;

    /// Shows these rows, or one blank one. visibleRows: as many as stand there before a scroll bar takes its room.
    void present(std::vector<EditColumn> columns, std::vector<EditRow> rows, int visibleRows);
    /// What the table holds, without a blank row that was only offered for a next entry.
    std::vector<EditRow> rows() const;
    /// True while a cell holds an entry that has not been taken yet.
    bool hasOpenEntry() const { return m_editor != nullptr && m_touched; }

    /// Goes to a blank row at the end, which is added if there is none.
    void addRow();
    /// Deletes the current row; those below move up.
    void deleteRow();

    QWidget* widget() override { return this; }
    QWidget* entry() override;
    void fill() override {} // its rows are given to it, not bound
    /// Takes the entry under way, or gives the cell back what it held and says what was wrong.
    std::optional<Complaint> complaint() override;
    void takeFocus() override;
    QSize sizeHint() const override;

    /// Shows what is wrong with the entry under way, if anything; false then. Set by the screen.
    std::function<bool()> check;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    class Delegate;

    QWidget* openEditor(QWidget* parent, const QModelIndex& cell);
    bool editorKey(const QKeyEvent& event);
    NumberField* numberInEdit() const;
    std::optional<Complaint> wrong() const;
    void paste();
    void pasteRows(std::vector<QStringList> rows);
    void copy() const;
    void takeEntry();
    void endEdit();
    bool leaveCell();
    /// Drops an entry that can't be read for what the cell held.
    void giveBack();
    void enterPressed(const QModelIndex& cell);
    void editorLeft(const EntryLine* editor);
    bool isHeldByMouse();
    bool walk(bool forward);
    void goTo(int row, int column);
    void editAfresh(const std::function<void(EntryLine&)>& begin);

    EditCells* m_cells;
    int m_visibleRows = 5;
    QPointer<EntryLine> m_editor;
    QPersistentModelIndex m_edited; ///< the cell in edit
    // What is typed, until it is taken.
    double m_number = 0;
    QString m_text;
    bool m_touched = false;
    std::optional<Complaint> m_pasteFault; ///< for the box that comes next
};

} // namespace screenkit
