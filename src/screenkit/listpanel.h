#pragma once

#include "screenkit/screen.h"

namespace screenkit {

/// Shows on a button that opens a list whether the list is in use.
void showInUse(QPushButton* opener, bool on);

/// A screen with a list that the user fills in a panel over it (`fraItemise`).
///
/// The panel holds a copy of the list. OK calls `listTaken`; Cancel, the close button and a save discard the copy,
/// after a question if it was changed. Another client closes the panel.
template <class Base>
class ListScreen : public Base {
public:
    bool commitPendingEdits() override {
        return (!isListOpen() || !hasListChanges() || leaveList()) && Base::commitPendingEdits();
    }
    void clientReplaced() override {
        if (isListOpen()) closeList(); // it belonged to the previous client
        Base::clientReplaced();
    }

protected:
    using Base::Base;

    /// The user confirmed the list, and the panel is closed.
    virtual void listTaken(const std::vector<EditRow>& rows) = 0;
    /// The user edited it.
    virtual void listEdited() {}

    /// beside: what stands in the line of the panel's own buttons, such as the total.
    void openList(const QString& title, std::vector<EditColumn> columns, std::vector<EditRow> rows, int visibleRows,
                  const std::function<std::vector<Item>()>& beside = {}) {
        if (m_panel == nullptr) build(beside);
        m_isOpen = true;
        m_panel->setTitle(title);
        m_grid->setAccessibleName(title);
        m_grid->present(std::move(columns), std::move(rows), visibleRows);
        m_before = m_grid->rows();
        m_panel->open(m_grid);
    }
    bool isListOpen() const { return m_isOpen; }
    std::vector<EditRow> listRows() const { return m_grid->rows(); }

    bool mayClose() override { return leaveList(); }

private:
    void build(const std::function<std::vector<Item>()>& beside) {
        m_grid = this->editGrid("grdItemise");
        this->untrackedField(m_grid); // the grid edits a copy; OK writes it to the record
        m_grid->edited = [this] {
            if (m_isOpen) listEdited();
        };
        std::vector<Item> line{
            this->button("cmdAddRow", QObject::tr("Add &row"), [this] { m_grid->addRow(); }),
            this->button("cmdDeleteRow", QObject::tr("&Delete row"), [this] { m_grid->deleteRow(); }), spring()};
        if (beside)
            for (const Item& item : beside())
                line.push_back(item);
        auto* ok = this->button("cmdOKItemise", "&OK", [this] { takeList(); });
        auto* cancel = this->cancelButton("cmdGridClose", "&Cancel", [this] { leaveList(); });
        m_panel = this->panel("fraItemise", {}, column({{m_grid, 1}, row(line)}), {ok, cancel});
    }

    void takeList() {
        const std::vector<EditRow> rows = m_grid->rows();
        closeList();
        listTaken(rows);
    }

    void closeList() {
        m_isOpen = false;
        m_panel->close();
        m_grid->present({}, {}, 0);
        m_before.clear();
    }

    bool hasListChanges() const { return m_grid->hasOpenEntry() || m_grid->rows() != m_before; }

    /// Closes the panel; false if the user chooses to go on editing.
    bool leaveList() {
        if (!m_isOpen) return true;
        if (hasListChanges()) {
            switch (this->m_work.desk.box(BoxStyle::question,
                                          QObject::tr("The list has been changed. Do you want to keep the changes?"),
                                          "Marlowbeck", Buttons::yesNoCancel)) {
            case Answer::yes:
                if (!this->checkFields()) return false;
                takeList();
                return true;
            case Answer::no: break;
            default: m_grid->takeFocus(); return false;
            }
        }
        closeList();
        return true;
    }

    Panel* m_panel = nullptr;
    EditGrid* m_grid = nullptr;
    std::vector<EditRow> m_before;
    bool m_isOpen = false;
};

} // namespace screenkit
