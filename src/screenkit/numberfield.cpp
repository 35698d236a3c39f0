#include "screenkit/numberfield.h"

#include <QKeyEvent>
#include <cmath>

#include "screenkit/look.h"

namespace screenkit {

namespace {
constexpr const char* noFigure = "   Error";
} // namespace

NumberField::NumberField(const QString& name, Bound<double> place, NumberKind kind, QWidget* parent)
    : EntryLine(name, OnClick::selectsAll, parent), m_place(std::move(place)), m_kind(std::move(kind)) {
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textEdited, this, &NumberField::typed);
}

void NumberField::fill() {
    present(m_place.get());
    m_onEntry = m_value;
}

void NumberField::present(double value) {
    if (keepsText() && value == m_value) return;
    m_value = std::isfinite(value) ? value : 0;
    display(value);
    markStoredFault();
}

void NumberField::display(double value) {
    accept();
    m_stood = m_value;
    setText(std::isfinite(value) ? m_kind.format(value) : noFigure);
    setCursorPosition(0); // if the figure is too wide, its start says more than its end
}

void NumberField::typed(const QString& text) {
    const NumberKind::Reading reading = m_kind.read(text);
    const auto refused = reading.refusal ? reading.refusal : tooWide(reading.value);
    if (!refused) {
        accept();
        return take(reading.value);
    }
    refuse(*refused);
    m_value = m_stood;
    m_place.set(m_value);
    if (edited) edited();
}

void NumberField::take(double value) {
    m_value = value;
    m_place.set(value);
    m_taken = m_place.get();
    markStoredFault();
    if (edited) edited();
}

std::optional<Complaint> NumberField::tooWide(double value) const {
    if (value >= m_place.lowest && value <= m_place.highest) return {};
    if (const Limit* limit = m_kind.brokenBy(value)) return limit->complaint();
    return Complaint{.text = tr("Please enter a number from %1 to %2.")
                                 .arg(m_kind.format(m_place.lowest), m_kind.format(m_place.highest)),
                     .rings = true};
}

void NumberField::enter(double value) {
    m_value = value;
    display(value);
    take(value);
}

void NumberField::entered() {
    m_onEntry = m_value;
    m_ownOnEntry = isOwn();
}

void NumberField::giveBack() {
    if (!isRefused() && m_value != m_onEntry)
        enter(m_onEntry);
    else
        display(m_value);
    if (!m_ownOnEntry) forgetEntry();
    takeFocus();
}

void NumberField::forgetEntry() {
    m_taken.reset();
    markStoredFault();
}

std::optional<Complaint> NumberField::fault() const {
    if (isReadOnly()) return {};
    if (why()) return why();
    const Limit* limit = m_kind.brokenBy(m_value);
    return limit != nullptr ? std::optional(limit->complaint()) : std::nullopt;
}

std::optional<Complaint> NumberField::complaint() {
    if (isReadOnly()) return {};
    if (isRefused()) return refusal();
    const Limit* limit = isOwn() ? m_kind.brokenBy(m_value) : nullptr;
    if (limit == nullptr) {
        m_stood = m_value;
        return {};
    }
    const Complaint complaint = limit->complaint();
    if (limit->instead) enter(limit->instead());
    return complaint;
}

std::optional<Complaint> NumberField::markStoredFault() {
    if (isRefused()) return {}; // it has its own mark and message
    auto found = isOwn() ? std::nullopt : fault();
    if (found && found->text.isEmpty()) found->text = tr("The figure is outside its limits."); // the limit has no words
    look::setMarked(this, found ? found->text : QString());
    return found;
}

std::optional<double> NumberField::figure() const { return isReadOnly() ? std::nullopt : std::optional(m_value); }

void NumberField::setResult(bool result) {
    EntryLine::setResult(result);
    markStoredFault();
}

QSize NumberField::sizeHint() const { return look::fieldSize(this, m_kind.characters); }

void NumberField::tidy() {
    if (isModified() && !isRefused()) present(m_place.get());
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    const bool isDecimalKey = event->text() == "," || event->text() == ".";
    if (event->modifiers() == Qt::KeypadModifier && isDecimalKey && !isReadOnly())
        typeDecimalSign();
    else
        EntryLine::keyPressEvent(event);
}

/// Types a point; but if points separate thousands already, a comma.
void NumberField::typeDecimalSign() {
    QString rest = text();
    if (hasSelectedText()) rest.remove(selectionStart(), selectionLength());
    const bool isSum = rest.trimmed().startsWith('=');
    insert(rest.contains('.') && !isSum ? "," : ".");
}

} // namespace screenkit
