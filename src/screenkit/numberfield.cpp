#include "screenkit/numberfield.h"

#include <QValidator>
#include <algorithm>
#include <cmath>

#include "base/numberformat.h"
#include "screenkit/look.h"

namespace screenkit {

namespace {

/// Lets through what can become a number, so that a stray letter is simply not taken. A comma becomes the point, for
/// figures that can be compared at a glance; the tabs and line ends of a pasted cell become blanks.
class NumberValidator : public QValidator {
public:
    NumberValidator(bool whole, QObject* parent) : QValidator(parent), m_whole(whole) {}
    State validate(QString& text, int&) const override {
        for (QChar& c : text)
            c = c == ',' ? '.' : c.isSpace() ? ' ' : c;
        if (m_whole && text.contains('.')) return Invalid;
        const QString bare = text.trimmed();
        if (bare.isEmpty() || bare == "-" || bare == "+" || bare == "." || bare == "-.") return Acceptable;
        return base::parseNumber(text.toStdString()) ? Acceptable : Invalid;
    }

private:
    bool m_whole;
};

constexpr int longestNumber = 24; // more digits than a double can tell apart
constexpr const char* noFigure = "   Error";

} // namespace

// Screens in other files make their own kinds of these while the program is being loaded.
constinit const NumberKind money{"# ### ### ##0.00", false, 16};
constinit const NumberKind wholeRand{"# ### ### ##0", false, 16};
constinit const NumberKind whole{"# ### ### ##0", true, 8};
constinit const NumberKind percent{"0.000", false, 8};

NumberKind NumberKind::from(double minimum, const QString& text, const QString& title) const {
    return where([minimum](double value) { return !(value < minimum); }, text, title);
}

NumberKind NumberKind::upTo(double maximum, const QString& text, const QString& title) const {
    return where([maximum](double value) { return !(value > maximum); }, text, title);
}

NumberKind NumberKind::between(double minimum, double maximum, const QString& text, const QString& title) const {
    return from(minimum, text, title).upTo(maximum, text, title);
}

NumberKind NumberKind::where(std::function<bool(double)> holds, const QString& text, const QString& title) const {
    NumberKind kind = *this;
    kind.limits.push_back({std::move(holds), {text, title}});
    return kind;
}

NumberKind NumberKind::shownAs(const char* otherMask) const {
    NumberKind kind = *this;
    kind.mask = otherMask;
    return kind;
}

NumberField::NumberField(const QString& name, Bound<double> place, NumberKind kind, QWidget* parent)
    : EntryLine(name, OnClick::selectsAll, parent), m_place(std::move(place)), m_kind(std::move(kind)) {
    setAlignment(Qt::AlignRight);
    setMaxLength(longestNumber);
    setValidator(new NumberValidator(m_kind.isWhole, this));
    connect(this, &QLineEdit::textEdited, this, &NumberField::typed);
}

void NumberField::fill() {
    present(m_place.get());
    m_onEntry = m_value;
}

void NumberField::present(double value) {
    m_value = std::isfinite(value) ? value : 0;
    show(value);
    markFault();
}

void NumberField::show(double value) {
    const QString text =
        std::isfinite(value) ? QString::fromStdString(base::formatNumber(value, m_kind.mask)) : noFigure;
    setMaxLength(std::max(longestNumber, static_cast<int>(text.size()))); // a figure cut short is another figure
    setText(text);
    setCursorPosition(0); // of one too wide for the field the thousands tell more than the cents
}

void NumberField::typed(const QString& text) { take(base::parseNumber(text.toStdString()).value_or(0)); }

void NumberField::take(double value) {
    m_value = value;
    m_place.set(value);
    m_taken = m_place.get();
    markFault();
    if (edited) edited();
}

void NumberField::enter(double value) {
    show(value);
    take(value);
}

void NumberField::entered() {
    m_onEntry = m_value;
    m_ownOnEntry = isOwn();
}

void NumberField::giveBack() {
    if (m_value != m_onEntry)
        enter(m_onEntry);
    else
        show(m_value);
    if (!m_ownOnEntry) disown();
    takeFocus();
}

void NumberField::disown() {
    m_taken.reset();
    markFault();
}

std::optional<Complaint> NumberField::fault() const {
    if (isReadOnly()) return {};
    for (const Limit& limit : m_kind.limits)
        if (!limit.holds(m_value)) return limit.complaint;
    return {};
}

std::optional<Complaint> NumberField::complaint() { return isOwn() ? fault() : std::nullopt; }

std::optional<Complaint> NumberField::markFault() {
    const auto found = isOwn() ? std::nullopt : fault();
    look::setMarked(this, found ? found->text : QString());
    return found;
}

std::optional<double> NumberField::figure() const { return isReadOnly() ? std::nullopt : std::optional(m_value); }

void NumberField::setResult(bool result) {
    EntryLine::setResult(result);
    markFault();
}

QSize NumberField::sizeHint() const { return look::fieldSize(this, m_kind.characters); }

void NumberField::tidy() {
    if (isModified()) present(m_place.get());
}

} // namespace screenkit
