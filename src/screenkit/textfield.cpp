#include "screenkit/textfield.h"

#include <QFocusEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "screenkit/look.h"

namespace screenkit {

TextField::TextField(const QString& name, Bound<QString> place, int size, int characters, QWidget* parent)
    : QLineEdit(parent), m_place(std::move(place)), m_characters(characters) {
    setObjectName(name);
    setMaxLength(size);
    setSizePolicy(characters == 0 ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &TextField::typed);
}

void TextField::typed(const QString& text) {
    m_place.set(text);
    if (edited) edited();
}

void TextField::enter(const QString& text) {
    setText(text);
    typed(this->text());
}

void TextField::fill() {
    setText(m_place.get());
    setCursorPosition(0);
}

void TextField::setResult(bool result) { look::setResult(this, result); }

void TextField::takeFocus() {
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

QSize TextField::sizeHint() const {
    constexpr int readableLine = 30; // a longer text is seen by scrolling in the field
    return look::fieldSize(this, m_characters > 0 ? m_characters : std::min(maxLength(), readableLine));
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) selectAll();
}

MemoField::MemoField(const QString& name, Bound<QString> place, int size, QWidget* parent)
    : QPlainTextEdit(parent), m_place(std::move(place)), m_size(size) {
    setObjectName(name);
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MemoField::typed);
}

void MemoField::fill() {
    const QScopedValueRollback filling(m_filling, true);
    m_before = m_place.get();
    if (m_before != toPlainText()) setPlainText(m_before);
}

void MemoField::typed() {
    const QString text = toPlainText();
    if (m_filling || text == m_before) return;
    if (text.size() > m_size && text.size() > m_before.size()) {
        const QScopedValueRollback filling(m_filling, true);
        const int cursor = std::max(0, textCursor().position() - static_cast<int>(text.size() - m_before.size()));
        setPlainText(m_before); // the keystroke or paste that would not fit is not taken
        QTextCursor position = textCursor();
        position.setPosition(std::min(cursor, static_cast<int>(m_before.size())));
        setTextCursor(position);
        return;
    }
    m_before = text;
    m_place.set(text);
    if (edited) edited();
}

void MemoField::takeFocus() { setFocus(Qt::OtherFocusReason); }

QSize MemoField::sizeHint() const { return {QPlainTextEdit::sizeHint().width(), look::lineHeight(this) * 5}; }

void MemoField::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QPlainTextEdit::wheelEvent(event); // scrolls the notes; it never changes them
    else
        event->ignore();
}

} // namespace screenkit
