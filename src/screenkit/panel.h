#pragma once

#include <QFrame>
#include <QPointer>
#include <QPushButton>

#include "screenkit/layout.h"

class QLabel;
class QScrollArea;

namespace screenkit {

/// A panel laid over its screen: what lies below can't be reached until it is gone. Escape presses its cancel button,
/// Enter its default button; Tab stays inside. Where the screen is too small for it, its content scrolls between its
/// title and its buttons, and follows the focus.
class Panel : public QFrame {
    Q_OBJECT
public:
    Panel(const QString& name, const QString& title, QWidget* over, QWidget* screen);

    /// Shows it in the middle of the screen, with the focus on `first`, or on its first control.
    void open(QWidget* first = nullptr);
    /// Hides it and gives the focus back to where it was.
    void close();
    /// Puts the focus on its first control.
    void takeFocus();
    /// The title under the name of its label, which one that is shown for several things needs.
    QLabel* title() const { return m_title; }
    void setTitle(const QString& title);
    /// What it holds, and the buttons at its foot: the first is its default, the last the one that Escape presses.
    void setContent(const Item& content, std::initializer_list<QPushButton*> buttons);
    /// Scrolls to what has the focus.
    void bringToView(const QWidget* control);

    void place();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// Where Tab stops, in its order.
    QList<QWidget*> stops();

    QWidget* m_over;
    QLabel* m_title;
    QScrollArea* m_area;
    QPointer<QWidget> m_focusBefore;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_default = nullptr;
};

/// The panel that asks how to print.
class PrintPanel : public Panel {
public:
    using Panel::Panel;
    /// Both ways to print on or off: where nothing to be printed is chosen there is none.
    void setPrintable(bool printable) {
        view->setEnabled(printable);
        direct->setEnabled(printable);
    }

    QPushButton* view = nullptr;
    QPushButton* direct = nullptr;
    QLabel* processing = nullptr; ///< shown while the report is made
};

/// Scrolls an area so that a control in it is seen whole, with the frame that the focus draws.
void reveal(QScrollArea* area, const QWidget* control);

} // namespace screenkit
