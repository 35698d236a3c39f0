#include "screenkit/datefield.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QWidgetAction>
#include <optional>

#include "base/day.h"
#include "screenkit/icon.h"
#include "screenkit/look.h"

namespace screenkit {

namespace {

std::optional<double> readDate(const QString& text, std::optional<int> thisYear = {}) {
    const auto day = base::parseDate(text.simplified().toStdString(), thisYear);
    return day && base::isShownOnScreen(*day) ? day : std::nullopt;
}

const QDate dayZero(1899, 12, 30);

} // namespace

DateKind DateKind::required(const QString& boxTitle) const {
    DateKind kind = *this;
    kind.requiredTitle = kind.noDate.title = boxTitle;
    return kind;
}

DateKind DateKind::worded(const QString& text, const QString& boxTitle) const {
    DateKind kind = *this;
    kind.noDate = {text, boxTitle};
    return kind;
}

DateKind DateKind::where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const {
    DateKind kind = *this;
    kind.limits.push_back({std::move(holds), std::move(complaint)});
    return kind;
}

DateKind DateKind::notBefore(std::function<double()> earliest, std::function<Complaint()> complaint) const {
    const auto holds = [end = std::move(earliest)](double day) {
        return !base::isShownOnScreen(end()) || day >= end();
    };
    return where(holds, std::move(complaint));
}

DateKind DateKind::notAfter(std::function<double()> latest, std::function<Complaint()> complaint) const {
    const auto holds = [end = std::move(latest)](double day) { return !base::isShownOnScreen(end()) || day <= end(); };
    return where(holds, std::move(complaint));
}

DateField::DateField(const QString& name, Bound<double> place, Desk& desk, DateKind kind, QWidget* parent)
    : EntryLine(name, OnClick::selectsAll, parent), m_place(std::move(place)), m_desk(desk), m_kind(std::move(kind)) {
    if (m_kind.noDate.text.isEmpty())
        m_kind.noDate.text = tr("The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.");
    m_kind.noDate.rings = true;
    setPlaceholderText("dd/mm/yyyy");
    setToolTip(tr("T enters today, + and - move by a day, F4 opens a calendar"));
    QAction* calendar = addAction(icon("calendar"), TrailingPosition);
    calendar->setText(tr("Calendar"));
    connect(calendar, &QAction::triggered, this, &DateField::showCalendar);
    connect(this, &QLineEdit::textEdited, this, &DateField::typed);
}

void DateField::fill() {
    const double day = m_place.get();
    if (keepsText() && day == m_stood) return;
    accept();
    setText(base::isShownOnScreen(day) ? QString::fromStdString(base::formatDate(day)) : QString());
    m_stood = day;
}

void DateField::typed(const QString& text) { put(read(text)); }

void DateField::put(double day) {
    m_place.set(day);
    if (edited) edited();
}

double DateField::read(const QString& text) {
    accept();
    if (text.trimmed().isEmpty()) return base::NoDate;
    const auto day = dateIn(text);
    if (!day) refuse(m_kind.noDate);
    for (const Limit& limit : m_kind.limits)
        if (day && !isRefused() && !limit.holds(*day)) refuse(limit.complaint());
    return isRefused() ? m_stood : *day;
}

std::optional<double> DateField::dateIn(const QString& text) const { return readDate(text, m_desk.today().year()); }

std::optional<Complaint> DateField::dropRefused() {
    const auto refused = why();
    if (!refused) return {};
    accept();
    m_stood = base::NoDate;
    clear();
    put(base::NoDate);
    return refused;
}

void DateField::giveBack() {
    put(m_stood);
    accept();
    fill();
    takeFocus();
}

void DateField::enter(double day) {
    const std::string text = base::formatDate(day);
    if (!base::isShownOnScreen(day) || text.empty()) return; // beyond the end of the calendar
    setText(QString::fromStdString(text));
    typed(this->text());
}

bool DateField::step(int days) {
    const auto day = readDate(text());
    if (!day && !text().trimmed().isEmpty()) return false;
    enter(day.value_or(today()) + days);
    return true;
}

double DateField::today() const { return static_cast<double>(dayZero.daysTo(m_desk.today())); }

std::optional<Complaint> DateField::complaint() {
    if (isRefused()) { // a limit may have moved since
        const double day = read(text());
        if (!isRefused()) put(day);
    }
    if (isRefused()) return refusal();
    m_stood = m_place.get();
    if (!text().trimmed().isEmpty() || m_kind.requiredTitle.isEmpty()) return {};
    return Complaint{tr("A date is needed here\nPlease enter it in the dd/mm/yyyy format."), m_kind.requiredTitle};
}

QSize DateField::sizeHint() const { return look::fieldSize(this, 14); }

void DateField::tidy() {
    if (!isRefused()) fill(); // shows 1-3-26 as 01/03/2026
}

void DateField::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (plain && event->key() == Qt::Key_T)
        enter(today());
    else if (event->text() == "+" && plain)
        step(1);
    else if (event->text() == "-" && plain && step(-1))
        event->accept(); // otherwise + and - are typed, as separators of day and month
    else if (event->key() == Qt::Key_F4 && plain)
        showCalendar();
    else
        EntryLine::keyPressEvent(event);
}

void DateField::showCalendar() {
    QMenu menu(this);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setMinimumDate(dayZero.addDays(static_cast<qint64>(base::blankDate) + 1));
    calendar->setSelectedDate(dayZero.addDays(static_cast<qint64>(dateIn(text()).value_or(today()))));
    auto* holder = new QWidgetAction(&menu);
    holder->setDefaultWidget(calendar);
    menu.addAction(holder);
    const auto choose = [this, &menu](QDate date) {
        enter(static_cast<double>(dayZero.daysTo(date)));
        menu.close();
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    calendar->setFocus();
    menu.exec(mapToGlobal(rect().bottomLeft()));
}

} // namespace screenkit
