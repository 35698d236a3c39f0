#include "screenkit/entryline.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWheelEvent>
#include <utility>

#include "screenkit/look.h"

namespace screenkit {

namespace {

/// The focus will come back: it went to another program, a menu or the calendar.
bool isLent(const QFocusEvent* event) {
    return event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
           event->reason() == Qt::MenuBarFocusReason;
}

} // namespace

EntryLine::EntryLine(const QString& name, OnClick onClick, QWidget* parent) : QLineEdit(parent), m_onClick(onClick) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void EntryLine::setResult(bool result) { look::setResult(this, result); }
void EntryLine::setLocked(bool locked) { look::setLocked(this, locked); }

void EntryLine::takeFocus() {
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void EntryLine::confirm() {
    tidy();
    selectAll();
}

void EntryLine::accept() {
    m_refusal.reset();
    if (std::exchange(m_marked, false)) look::setMarked(this, {});
}

std::optional<Complaint> EntryLine::refusal() {
    if (m_refusal && !std::exchange(m_marked, true)) look::setMarked(this, m_refusal->text);
    return m_refusal;
}

bool EntryLine::keepsText() const { return isRefused() && window()->focusWidget() == this; }

void EntryLine::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (isLent(event)) return;
    entered();
    if (event->reason() == Qt::MouseFocusReason)
        m_selectOnRelease = m_onClick == OnClick::selectsAll; // only then, since the press sets the cursor
    else
        selectAll();
}

void EntryLine::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (isLent(event)) return;
    refusal();
    tidy();
    if (left) left();
}

void EntryLine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isRefused())
        giveBack();
    else
        QLineEdit::keyPressEvent(event);
}

void EntryLine::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_selectOnRelease, false) && !hasSelectedText()) selectAll();
}

void EntryLine::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) look::followTheme(this);
}

void EntryLine::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace screenkit
