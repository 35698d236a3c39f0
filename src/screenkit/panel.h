#pragma once

#include <QFrame>
#include <QPointer>

class QLabel;
class QPushButton;

namespace screenkit {

/// A panel laid over its screen: what lies below can't be reached until it is gone. Escape presses its cancel button,
/// Enter its default button; Tab stays inside.
class Panel : public QFrame {
    Q_OBJECT
public:
    Panel(const QString& name, const QString& title, QWidget* over, QWidget* screen);

    /// Shows it in the middle of the screen, with the focus on `first`.
    void open(QWidget* first);
    /// Hides it and gives the focus back to where it was.
    void close();
    /// Puts the focus on its first control.
    void takeFocus() { focusNextPrevChild(true); }
    void setTitle(const QString& title);
    void setContent(QLayout* content);
    void setCancelButton(QPushButton* button) { m_cancel = button; }
    void setDefaultButton(QPushButton* button) { m_default = button; }

    void place();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// Lets the child window grow where the panel is larger than its screen.
    void makeRoom();

    QWidget* m_over;
    QLabel* m_title;
    QPointer<QWidget> m_focusBefore;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_default = nullptr;
};

} // namespace screenkit
