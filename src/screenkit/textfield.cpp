#include "screenkit/textfield.h"

#include <QMimeData>
#include <QScopedValueRollback>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>

#include "base/text.h"
#include "screenkit/look.h"

namespace screenkit {

namespace {

/// Characters as the file counts them. QString counts some characters, such as emoji, as two.
std::size_t characters(const QString& text) { return base::characterCount(text.toStdString()); }

/// As much of the start of `before` as leaves room for `after`.
QString fitting(const QString& before, const QString& after, std::size_t room) {
    const std::size_t taken = characters(after);
    return QString::fromStdString(base::firstCharacters(before.toStdString(), room - std::min(room, taken)));
}

} // namespace

/// Cuts a text to the size of its place. Tabs and line breaks of a pasted cell become blanks, since the field is one
/// line.
class RoomValidator : public QValidator {
public:
    RoomValidator(std::size_t most, QObject* parent) : QValidator(parent), m_most(most) {}
    void setRoom(std::size_t most) { m_most = most; }
    State validate(QString& text, int& cursor) const override {
        for (QChar& c : text)
            if (c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = u' ';
        if (characters(text) <= m_most) return Acceptable;
        const QString after = text.mid(cursor);
        const QString before = fitting(text.left(cursor), after, m_most);
        text = before + after;
        cursor = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    std::size_t m_most;
};

TextField::TextField(const QString& name, Bound<QString> place, int size, int characters, QWidget* parent)
    : EntryLine(name, OnClick::setsCursor, parent), m_place(std::move(place)),
      m_room(new RoomValidator(static_cast<std::size_t>(size), this)), m_size(size), m_characters(characters) {
    setValidator(m_room);
    if (characters == 0) setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &TextField::typed);
}

void TextField::typed(const QString& text) {
    if (text == m_place.get()) return; // there was no room for the typed character
    m_place.set(text);
    if (edited) edited();
}

void TextField::enter(const QString& text) {
    setText(text);
    typed(this->text());
}

void TextField::fill() {
    const QString held = m_place.get();
    m_room->setRoom(std::max(static_cast<std::size_t>(m_size), characters(held)));
    setText(held);
    setCursorPosition(0);
}

QSize TextField::sizeHint() const {
    constexpr int readableLine = 30; // longer texts scroll in the field
    return look::fieldSize(this, m_characters > 0 ? m_characters : std::min(m_size, readableLine));
}

MemoField::MemoField(const QString& name, Bound<QString> place, int size, QWidget* parent)
    : QPlainTextEdit(parent), m_place(std::move(place)), m_size(static_cast<std::size_t>(size)), m_room(m_size) {
    setObjectName(name);
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MemoField::typed);
}

void MemoField::fill() {
    const QScopedValueRollback filling(m_filling, true);
    const QString held = m_place.get();
    m_room = std::max(m_size, characters(held));
    // Only if the text differs, since this moves the cursor.
    if (QString(held).replace("\r\n", "\n") != toPlainText()) setPlainText(held);
    m_before = toPlainText();
}

void MemoField::typed() {
    if (m_filling) return;
    cutToRoom();
    if (toPlainText() == m_before) return;
    m_before = toPlainText();
    m_place.set(m_before);
    if (edited) edited();
}

void MemoField::cutToRoom() {
    const QString text = toPlainText();
    if (characters(text) <= m_room) return;
    const QScopedValueRollback filling(m_filling, true);
    const int end = textCursor().position();
    QTextCursor cut = textCursor();
    cut.joinPreviousEditBlock(); // undo takes back the paste and the cut together
    cut.setPosition(static_cast<int>(fitting(text.left(end), text.mid(end), m_room).size()));
    cut.setPosition(end, QTextCursor::KeepAnchor);
    cut.removeSelectedText();
    cut.endEditBlock();
}

void MemoField::insertFromMimeData(const QMimeData* source) {
    // Qt reads the first of the formats, and there is none if the program copied from has closed.
    if (source != nullptr && source->hasText()) QPlainTextEdit::insertFromMimeData(source);
}

void MemoField::takeFocus() { setFocus(Qt::OtherFocusReason); }

QSize MemoField::sizeHint() const { return {QPlainTextEdit::sizeHint().width(), look::lineHeight(this) * 5}; }

void MemoField::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QPlainTextEdit::wheelEvent(event); // scrolls the notes, never changes them
    else
        event->ignore();
}

} // namespace screenkit
