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

std::optional<double> readDate(const QString& text) {
    const auto day = base::parseDate(text.toStdString());
    return day && base::isShownOnScreen(*day) ? day : std::nullopt;
}

const QDate dayZero(1899, 12, 30);
constexpr int longestDate = 20; // with blanks around, as dates come from elsewhere

} // namespace

DateField::DateField(const QString& name, Bound<double> place, Desk& desk, QWidget* parent)
    : EntryLine(name, OnClick::selectsAll, parent), m_place(std::move(place)), m_desk(desk) {
    setMaxLength(longestDate);
    setPlaceholderText("dd/mm/yyyy");
    setToolTip(tr("T is today, + and - a day on and back, F4 the calendar"));
    QAction* calendar = addAction(icon("calendar"), TrailingPosition);
    calendar->setText(tr("Calendar"));
    connect(calendar, &QAction::triggered, this, &DateField::showCalendar);
    connect(this, &QLineEdit::textEdited, this, &DateField::typed);
}

void DateField::fill() {
    const double day = m_place.get();
    setText(base::isShownOnScreen(day) ? QString::fromStdString(base::formatDate(day)) : QString());
}

void DateField::typed(const QString& text) {
    m_place.set(readDate(text).value_or(base::NoDate));
    if (edited) edited();
}

void DateField::enter(double day) {
    const std::string text = base::formatDate(day);
    if (!base::isShownOnScreen(day) || text.empty()) return; // past the ends of the calendar
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
    if (readDate(text())) return {};
    if (text().trimmed().isEmpty()) {
        if (m_requiredTitle.isEmpty()) return {};
        return Complaint{tr("A date is needed here\nPlease enter it in the dd/mm/yyyy format."), m_requiredTitle};
    }
    clear();
    typed({});
    return Complaint{tr("The date entered is in the wrong format\nPlease use the dd/mm/yyyy format."), m_requiredTitle};
}

QSize DateField::sizeHint() const { return look::fieldSize(this, 14); }

void DateField::tidy() {
    if (readDate(text()) || text().trimmed().isEmpty()) fill(); // 1-3-26 is shown as 01/03/2026
}

void DateField::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (plain && event->key() == Qt::Key_T)
        enter(today());
    else if (event->text() == "+" && plain)
        step(1);
    else if (event->text() == "-" && plain && step(-1))
        event->accept(); // otherwise it parts day and month
    else if (event->key() == Qt::Key_F4 && plain)
        showCalendar();
    else
        QLineEdit::keyPressEvent(event);
}

void DateField::showCalendar() {
    QMenu menu(this);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setMinimumDate(dayZero.addDays(static_cast<qint64>(base::blankDate) + 1));
    calendar->setSelectedDate(dayZero.addDays(static_cast<qint64>(readDate(text()).value_or(today()))));
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
