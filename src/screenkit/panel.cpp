#include "screenkit/panel.h"

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "screenkit/look.h"

namespace screenkit {

Panel::Panel(const QString& name, const QString& title, QWidget* over, QWidget* screen)
    : QFrame(screen), m_over(over), m_title(new QLabel(title, this)) {
    setObjectName(name);
    setAccessibleName(title);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    auto* shadow = new QGraphicsDropShadowEffect(this);
    shadow->setBlurRadius(look::lineHeight(this));
    shadow->setOffset(0, look::lineHeight(this) / 6.0);
    setGraphicsEffect(shadow);
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    hide();
}

void Panel::setTitle(const QString& title) {
    m_title->setText(title);
    setAccessibleName(title);
}

void Panel::setContent(QLayout* content) { static_cast<QVBoxLayout*>(layout())->addLayout(content, 1); }

void Panel::open(QWidget* first) {
    if (!isVisible()) m_focusBefore = QApplication::focusWidget();
    makeRoom();
    place();
    show();
    raise();
    if (first != nullptr) first->setFocus(Qt::OtherFocusReason);
    m_over->setEnabled(false); // after the focus has gone: otherwise it would wander through every field below
}

void Panel::close() {
    m_over->setEnabled(true);
    hide();
    if (m_focusBefore != nullptr) m_focusBefore->setFocus(Qt::OtherFocusReason);
    m_focusBefore = nullptr;
}

void Panel::makeRoom() {
    QWidget* screen = parentWidget();
    auto* window = qobject_cast<QMdiSubWindow*>(screen->parentWidget());
    if (window == nullptr || window->isMaximized()) return;
    const QSize lacking = (sizeHint() + QSize(1, 1) * look::lineHeight(this) - screen->size()).expandedTo({0, 0});
    const QSize most = window->parentWidget()->size() - QSize(window->x(), window->y());
    window->resize((window->size() + lacking).boundedTo(most.expandedTo(window->size())));
}

void Panel::place() {
    const QSize room = parentWidget()->size();
    const QSize size = sizeHint().boundedTo(room);
    setGeometry((room.width() - size.width()) / 2, (room.height() - size.height()) / 2, size.width(), size.height());
}

bool Panel::event(QEvent* event) {
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible()) { // a choice has shown or hidden another
        makeRoom();
        place();
    }
    return handled;
}

void Panel::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
    QPushButton* pressed = nullptr;
    if (event->key() == Qt::Key_Escape) pressed = m_cancel;
    if (enter) pressed = focused != nullptr ? focused : m_default;
    if (pressed != nullptr && pressed->isEnabled()) pressed->click();
    event->accept(); // no key reaches the screen below
}

bool Panel::focusNextPrevChild(bool next) {
    QList<QWidget*> stops;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain())
        if (isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            widget->isVisibleTo(this) && widget->isEnabled())
            stops << widget;
    if (stops.isEmpty()) return true;
    const auto here = stops.indexOf(QApplication::focusWidget());
    const auto count = stops.size();
    stops[(here + (next ? 1 : count - 1)) % count]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace screenkit
