#include "screenkit/panel.h"

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "screenkit/layout.h"
#include "screenkit/look.h"

namespace screenkit {

namespace {

/// As large as its content if there is room, at least a few lines.
class Content : public QScrollArea {
public:
    explicit Content(QWidget* parent) : QScrollArea(parent) {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
    }
    QSize sizeHint() const override { return widget() != nullptr ? widget()->sizeHint() : QSize(); }
    QSize minimumSizeHint() const override {
        return sizeHint().boundedTo(QSize(1, 1) * look::lineHeight(this) * fewestLines);
    }

protected:
    bool eventFilter(QObject* held, QEvent* event) override {
        if (held == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
        return QScrollArea::eventFilter(held, event);
    }

private:
    static constexpr int fewestLines = 4;
};

} // namespace

Panel::Panel(const QString& name, const QString& title, QWidget* over, QWidget* screen)
    : QFrame(screen), m_over(over), m_title(new QLabel(title, this)), m_area(new Content(this)) {
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
    layout->addWidget(m_area, 1);
    hide();
}

void Panel::setTitle(const QString& title) {
    m_title->setText(title);
    setAccessibleName(title.trimmed());
}

void Panel::setContent(const Item& content, std::initializer_list<QPushButton*> buttons) {
    auto* holder = new QWidget;
    auto* inside = new QVBoxLayout(holder);
    inside->setContentsMargins(0, 0, 0, 0);
    if (content.widget != nullptr) inside->addWidget(content.widget);
    if (content.layout != nullptr) inside->addLayout(content.layout);
    m_area->setWidget(holder);
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    for (QPushButton* push : buttons)
        foot->addWidget(push);
    static_cast<QVBoxLayout*>(layout())->addLayout(foot);
    if (buttons.size() == 0) return;
    m_default = *buttons.begin();
    m_cancel = *(buttons.end() - 1);
}

void Panel::open(QWidget* first) {
    if (!isVisible()) {
        m_focusBefore = QApplication::focusWidget();
        m_below = inFront();
    }
    makeRoom(parentWidget(), sizeHint() + QSize(1, 1) * look::lineHeight(this));
    place();
    show();
    raise();
    m_area->verticalScrollBar()->setValue(0);
    first != nullptr ? first->setFocus(Qt::OtherFocusReason) : takeFocus();
    m_below->setEnabled(false); // after the focus has gone, otherwise it would move through every field below
}

void Panel::close() {
    if (m_below != nullptr) m_below->setEnabled(true);
    hide();
    if (m_focusBefore != nullptr) m_focusBefore->setFocus(Qt::OtherFocusReason);
    m_focusBefore = nullptr;
}

QWidget* Panel::inFront() const {
    for (Panel* other : parentWidget()->findChildren<Panel*>(Qt::FindDirectChildrenOnly))
        if (other->isVisible() && other->isEnabled()) return other;
    return m_over;
}

void Panel::place() {
    const QSize room = parentWidget()->size();
    QSize size = sizeHint();
    if (size.height() > room.height()) size += {m_area->verticalScrollBar()->sizeHint().width(), 0};
    size = size.boundedTo(room);
    setGeometry((room.width() - size.width()) / 2, (room.height() - size.height()) / 2, size.width(), size.height());
}

void Panel::bringToView(const QWidget* control) {
    if (m_area->isAncestorOf(control)) reveal(m_area, control);
}

bool Panel::event(QEvent* event) {
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible()) { // a choice has shown or hidden another one
        makeRoom(parentWidget(), sizeHint() + QSize(1, 1) * look::lineHeight(this));
        place();
    }
    return handled;
}

void Panel::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
    QPushButton* pressed = nullptr;
    if (event->key() == Qt::Key_Escape) pressed = m_cancel;
    if (enter) pressed = focused != nullptr || m_enterWalks ? focused : m_default;
    if (enter && pressed == nullptr) focusNextPrevChild(true);
    if (pressed != nullptr && pressed->isEnabled()) pressed->click();
    event->accept(); // keeps all keys from the screen below
}

QList<QWidget*> Panel::stops() {
    QList<QWidget*> found;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain())
        if (isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            widget->isVisibleTo(this) && widget->isEnabled())
            found << widget;
    return found;
}

void Panel::takeFocus() {
    if (const auto found = stops(); !found.isEmpty()) found.front()->setFocus(Qt::TabFocusReason);
}

bool Panel::focusNextPrevChild(bool next) {
    const auto found = stops();
    if (found.isEmpty()) return true;
    const auto here = found.indexOf(QApplication::focusWidget());
    const auto count = found.size();
    found[(here + (next ? 1 : count - 1)) % count]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void reveal(QScrollArea* area, const QWidget* control) {
    const QRect place(control->mapTo(area->widget(), QPoint()), control->size());
    const QPoint middle = place.center();
    const int gap = look::lineHeight(area) / 4;
    area->ensureVisible(middle.x(), middle.y(), place.width() / 2 + gap, place.height() / 2 + gap);
}

} // namespace screenkit
