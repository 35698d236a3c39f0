#pragma once

#include <QPointer>
#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "screenkit/editcells.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// A table that the user fills in place, also by keyboard alone. It holds its own rows.
///
/// Typing, F2, Enter or a double click edits a cell; on an empty cell Enter moves on. Enter and Tab accept the entry
/// and go to the next cell, from the last one to a new row. Up, Down and Escape accept it too; Down in the last row
/// adds a row. After a blank last row no further row is added: Tab then leaves the table. Ctrl+Enter goes to the
/// default button from anywhere. Ctrl+Delete deletes the row; one blank row always remains. A cell is checked whenever
/// it is left, by key, mouse or button: a refused entry brings a message, the cell gets its old content back and stays
/// in edit. Numbers are typed and refused as in a NumberField, and keep all their digits until they are retyped. Rows
/// of a spreadsheet are pasted from the current cell on, all or none; several cells are copied with their column heads.
class EditGrid : public QTableView, public Field {
    Q_OBJECT
public:
    explicit EditGrid(const QString& name, QWidget* parent = nullptr);
    ~EditGrid() override;

    /// Shows these rows, or one blank row. visibleRows: the number shown without scrolling.
    void present(std::vector<EditColumn> columns, std::vector<EditRow> rows, int visibleRows);
    /// The rows, without a blank last one that was only offered for the next entry.
    std::vector<EditRow> rows() const;
    /// True while a cell has an entry that is not accepted yet.
    bool hasOpenEntry() const { return m_editor != nullptr && m_touched; }

    /// Goes to a blank last row, which is added if there is none.
    void addRow();
    /// Deletes the current row; the rows below move up.
    void deleteRow();

    QWidget* widget() override { return this; }
    QWidget* entry() override;
    void fill() override {} // its rows are passed to it, not bound
    /// Accepts the current entry, or restores the cell and returns what was wrong.
    std::optional<Complaint> complaint() override;
    void takeFocus() override;
    QSize sizeHint() const override;

    /// Shows what is wrong with the current entry; false if something is. Set by the screen.
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
    /// Replaces an entry that can't be read by the cell's old content.
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
    QPersistentModelIndex m_edited; ///< the cell being edited
    // The typed content until it is accepted.
    double m_number = 0;
    QString m_text;
    bool m_touched = false;
    std::optional<Complaint> m_pasteFault; ///< for the next message
};

} // namespace screenkit
