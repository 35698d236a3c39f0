#pragma once

#include <QFrame>
#include <QPointer>
#include <QPushButton>

#include "screenkit/layout.h"

class QLabel;
class QScrollArea;

namespace screenkit {

/// A panel over its screen, or over another panel of it: the controls below can't be reached until it is closed. Escape
/// presses its cancel button, Enter its default button; Tab stays inside. If the screen is too small for it, its
/// content scrolls between title and buttons and follows the focus.
class Panel : public QFrame {
    Q_OBJECT
public:
    Panel(const QString& name, const QString& title, QWidget* over, QWidget* screen);

    /// Shows it in the middle of the screen, with the focus on `first`, or on its first control.
    void open(QWidget* first = nullptr);
    /// Hides it and returns the focus to where it was.
    void close();
    /// Puts the focus on its first control.
    void takeFocus();
    /// Its title label. A panel used for several things sets its text.
    QLabel* title() const { return m_title; }
    void setTitle(const QString& title);
    /// Its content, and the buttons at the bottom: the first is the default, the last the one that Escape presses.
    void setContent(const Item& content, std::initializer_list<QPushButton*> buttons);
    /// Enter in a field or table moves on to the next control instead of pressing the first button.
    void setEnterWalks() { m_enterWalks = true; }
    /// Scrolls to the control with the focus.
    void bringToView(const QWidget* control);

    void place();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// The controls at which Tab stops, in order.
    QList<QWidget*> stops();

    /// The panel that is open in front of the others; without any the screen's body.
    QWidget* inFront() const;

    QWidget* m_over;
    QPointer<QWidget> m_below; ///< out of reach while this panel is open
    QLabel* m_title;
    QScrollArea* m_area;
    QPointer<QWidget> m_focusBefore;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_default = nullptr;
    bool m_enterWalks = false;
};

/// The panel that asks how to print.
class PrintPanel : public Panel {
public:
    using Panel::Panel;
    /// Enables or disables both ways to print; disabled while nothing is chosen to print.
    void setPrintable(bool printable) {
        view->setEnabled(printable);
        direct->setEnabled(printable);
    }

    QPushButton* view = nullptr;
    QPushButton* direct = nullptr;
    QLabel* processing = nullptr; ///< shown while the report is made
};

/// Scrolls an area until a control in it is fully visible, including its focus frame.
void reveal(QScrollArea* area, const QWidget* control);

} // namespace screenkit
