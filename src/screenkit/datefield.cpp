#include "screenkit/datefield.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QWidgetAction>
#include <optional>

#include "base/day.h"
#include "screenkit/look.h"

namespace screenkit {

namespace {

std::optional<double> readDate(const QString& text) {
    const auto day = base::parseDate(text.toStdString());
    return day && base::isShownOnScreen(*day) ? day : std::nullopt;
}

const QDate dayZero(1899, 12, 30);

} // namespace

DateField::DateField(const QString& name, Bound<double> place, Desk& desk, QWidget* parent)
    : QLineEdit(parent), m_place(std::move(place)), m_desk(desk) {
    setObjectName(name);
    setMaxLength(10);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setPlaceholderText("dd/mm/yyyy");
    setToolTip(tr("T is today, + and - a day on and back, F4 the calendar"));
    QAction* calendar = addAction(QIcon(":/icons/calendar.svg"), TrailingPosition);
    calendar->setText(tr("Calendar"));
    connect(calendar, &QAction::triggered, this, &DateField::showCalendar);
    connect(this, &QLineEdit::textEdited, this, &DateField::typed);
}

void DateField::fill() {
    const double day = m_place.get();
    setText(base::isShownOnScreen(day) ? QString::fromStdString(base::formatDate(day)) : QString());
}

void DateField::typed(const QString& text) {
    if (const auto day = readDate(text))
        m_place.set(*day);
    else if (text.trimmed().isEmpty())
        m_place.set(base::NoDate);
    if (edited) edited();
}

void DateField::enter(double day) {
    setText(QString::fromStdString(base::formatDate(day)));
    typed(text());
}

std::optional<Complaint> DateField::complaint() {
    if (text().trimmed().isEmpty() || readDate(text())) return {};
    clear();
    typed({});
    return Complaint{tr("The date entered is in the wrong format\nPlease use the dd/mm/yyyy format."), {}};
}

void DateField::takeFocus() {
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

QSize DateField::sizeHint() const { return look::fieldSize(this, 14); }

void DateField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
}

void DateField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    if (readDate(text())) fill(); // 1-3-26 is shown as 01/03/2026
    if (left) left();
}

void DateField::keyPressEvent(QKeyEvent* event) {
    const auto today = static_cast<double>(dayZero.daysTo(m_desk.today()));
    const double shown = readDate(text()).value_or(today);
    if (event->key() == Qt::Key_T)
        enter(today);
    else if (event->text() == "+")
        enter(shown + 1);
    else if (event->text() == "-" && readDate(text())) // otherwise it parts day and month
        enter(shown - 1);
    else if (event->key() == Qt::Key_F4)
        showCalendar();
    else
        QLineEdit::keyPressEvent(event);
}

void DateField::showCalendar() {
    QMenu menu(this);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setSelectedDate(dayZero.addDays(
        static_cast<qint64>(readDate(text()).value_or(static_cast<double>(dayZero.daysTo(m_desk.today()))))));
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
