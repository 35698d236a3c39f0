#include "diary/frmMonthView.h"

#include <QAccessible>
#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QToolButton>
#include <algorithm>
#include <cmath>

#include "base/day.h"

namespace diary {

namespace {

/// How a kind is shown: its letter, its colour (mixed into the palette's own, so that it suits a dark theme too) and
/// its words.
struct Look {
    const char* letter;
    QColor colour;
    const char* words;
};

const Look& lookOf(DayKind kind) {
    static const Look looks[] = {
        {"", {}, ""},
        {"w", QColor(128, 128, 128), "week-end"},
        {"H", QColor(220, 40, 40), "public holiday"},
        {"h", QColor(230, 130, 30), "day after a Sunday holiday"},
        {"A", QColor(40, 110, 220), "appointment"},
        {"B", QColor(40, 160, 70), "birthday"},
    };
    return looks[static_cast<std::size_t>(kind)];
}

QColor mixed(const QColor& base, const QColor& colour, double share) {
    const auto part = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {part(base.red(), colour.red()), part(base.green(), colour.green()), part(base.blue(), colour.blue())};
}

QString monthName(Month month) {
    return QLocale(QLocale::English).standaloneMonthName(month.month) + " " + QString::number(month.year);
}

Month monthOf(double day) {
    const base::CalendarDate date = base::calendarDate(day).value_or(base::CalendarDate{1900, 1, 1});
    return {date.year, date.month};
}

QToolButton* pageButton(const QString& name, const QString& spoken, Qt::ArrowType arrow, QWidget* parent) {
    auto* push = new QToolButton(parent);
    push->setObjectName(name);
    push->setArrowType(arrow);
    push->setAutoRaise(true);
    push->setAccessibleName(spoken);
    push->setToolTip(spoken);
    push->setFocusPolicy(Qt::NoFocus); // Page Up and Page Down do the same
    return push;
}

} // namespace

QString legend(bool withEntries) {
    QStringList words;
    for (int kind = 1; kind <= (withEntries ? 5 : 3); ++kind) {
        const Look& look = lookOf(static_cast<DayKind>(kind));
        words << QString(look.letter) + " " + look.words;
    }
    return words.join(",  ");
}

MonthView::MonthView(const QString& name, QWidget* parent)
    : QWidget(parent), m_day(*base::dayNumber(2026, 1, 1)),
      m_back(pageButton("cmdPrevMonth", tr("Previous month"), Qt::LeftArrow, this)),
      m_on(pageButton("cmdNextMonth", tr("Next month"), Qt::RightArrow, this)) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    connect(m_back, &QToolButton::clicked, this, [this] { showFrom(later(m_shown.front().month, -1)); });
    connect(m_on, &QToolButton::clicked, this, [this] { showFrom(later(m_shown.front().month, 1)); });
    showFrom(monthOf(m_day));
}

void MonthView::setDay(double day) {
    m_day = day;
    const Month month = monthOf(day);
    const bool isSeen = std::ranges::any_of(m_shown, [&](const Shown& each) { return each.month == month; });
    if (!isSeen) showFrom(month);
    say();
    update();
}

void MonthView::setMonths(int months) {
    m_count = static_cast<std::size_t>(months);
    showFrom(monthOf(m_day));
    updateGeometry();
}

void MonthView::setFirstDay(int day) {
    m_firstDay = day;
    update();
}

void MonthView::refresh() { showFrom(m_shown.front().month); }

void MonthView::showFrom(Month first) {
    std::vector<Shown> shown;
    for (std::size_t i = 0; i < m_count; ++i) {
        const Month month = later(first, static_cast<int>(i));
        if (i > 0 && month == shown.back().month) break; // the calendar's end
        shown.push_back({month, daysOf(month), kindsOf(month)});
    }
    m_shown = std::move(shown);
    update();
}

DayKind MonthView::kindAt(double day) const {
    for (const Shown& each : m_shown)
        if (day >= each.days.first && day <= each.days.last)
            return each.kinds[static_cast<std::size_t>(day - each.days.first)];
    return DayKind::plain;
}

void MonthView::say() {
    const auto date = base::calendarDate(m_day);
    if (!date) return;
    const QDate shown(date->year, date->month, date->day);
    const QString kind = lookOf(kindAt(m_day)).words;
    setAccessibleName(QLocale(QLocale::English).toString(shown, "dddd d MMMM yyyy") +
                      (kind.isEmpty() ? QString() : ", " + kind));
    QAccessibleEvent told(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}

void MonthView::pick(double day) {
    if (!base::isShownOnScreen(day) || !base::calendarDate(day)) return; // the calendar's ends
    setDay(day);
    if (dayPicked) dayPicked(day);
}

/// The same day of another month, or its last day.
void MonthView::turn(int months) {
    const base::CalendarDate date = *base::calendarDate(m_day);
    const MonthDays days = daysOf(later({date.year, date.month}, months));
    pick(std::min(days.first + date.day - 1, days.last));
}

void MonthView::keyPressEvent(QKeyEvent* event) {
    const MonthDays days = daysOf(monthOf(m_day));
    switch (event->key()) {
    case Qt::Key_Left: return pick(m_day - 1);
    case Qt::Key_Right: return pick(m_day + 1);
    case Qt::Key_Up: return pick(m_day - 7);
    case Qt::Key_Down: return pick(m_day + 7);
    case Qt::Key_PageUp: return turn(-1);
    case Qt::Key_PageDown: return turn(1);
    case Qt::Key_Home: return pick(days.first);
    case Qt::Key_End: return pick(days.last);
    default: QWidget::keyPressEvent(event);
    }
}

void MonthView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (const auto day = dayAt(event->position().toPoint())) pick(*day);
}

void MonthView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

// ---- places

QSize MonthView::cell() const {
    return {fontMetrics().horizontalAdvance("00") * 21 / 10, fontMetrics().height() * 17 / 10};
}

QRect MonthView::monthRect(std::size_t index) const {
    const QSize size(cell().width() * 7, cell().height() * 8);
    const int gap = cell().width() / 2;
    return {QPoint(static_cast<int>(index) * (size.width() + gap) + 2, 2), size};
}

QRect MonthView::cellRect(std::size_t index, double day) const {
    const MonthDays& days = m_shown[index].days;
    const int lead = (weekDay(days.first) - m_firstDay + 7) % 7;
    const int at = lead + static_cast<int>(day - days.first);
    const QPoint corner = monthRect(index).topLeft();
    return {QPoint(corner.x() + at % 7 * cell().width(), corner.y() + (at / 7 + 2) * cell().height()), cell()};
}

QRect MonthView::placeOf(double day) const {
    for (std::size_t i = 0; i < m_shown.size(); ++i)
        if (day >= m_shown[i].days.first && day <= m_shown[i].days.last) return cellRect(i, day);
    return {};
}

std::optional<double> MonthView::dayAt(const QPoint& place) const {
    for (std::size_t i = 0; i < m_shown.size(); ++i)
        for (double day = m_shown[i].days.first; day <= m_shown[i].days.last; ++day)
            if (cellRect(i, day).contains(place)) return day;
    return {};
}

QSize MonthView::sizeHint() const {
    const QRect last = monthRect(m_count - 1);
    return {last.right() + 3, last.bottom() + 3};
}

void MonthView::resizeEvent(QResizeEvent*) {
    const QSize size(cell().height(), cell().height());
    m_back->setGeometry(QRect(monthRect(0).topLeft(), size));
    m_on->setGeometry(QRect(monthRect(m_count - 1).topRight() - QPoint(size.width() - 1, 0), size));
}

// ---- painting

void MonthView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette& colours = palette();
    const QLocale english(QLocale::English);
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.62);
    QFont bold = font();
    bold.setBold(true);
    for (std::size_t i = 0; i < m_shown.size(); ++i) {
        const QRect whole = monthRect(i);
        painter.setPen(colours.color(QPalette::Text));
        painter.fillRect(whole, colours.color(QPalette::Base));
        painter.setFont(bold);
        painter.drawText(QRect(whole.topLeft(), QSize(whole.width(), cell().height())), Qt::AlignCenter,
                         monthName(m_shown[i].month));
        painter.setFont(font());
        for (int column = 0; column < 7; ++column) {
            const int qtDay = (m_firstDay + column + 6) % 7 + 1; // Monday is 1, Sunday 7
            const QRect head(QPoint(whole.left() + column * cell().width(), whole.top() + cell().height()), cell());
            painter.drawText(head, Qt::AlignCenter, english.dayName(qtDay, QLocale::ShortFormat).left(2));
        }
        for (double day = m_shown[i].days.first; day <= m_shown[i].days.last; ++day) {
            const QRect place = cellRect(i, day);
            const Look& look = lookOf(kindAt(day));
            if (look.colour.isValid()) painter.fillRect(place, mixed(colours.color(QPalette::Base), look.colour, 0.28));
            if (day == m_day) {
                painter.setPen(QPen(colours.color(QPalette::Highlight), hasFocus() ? 3 : 2));
                painter.drawRect(place.adjusted(1, 1, -2, -2));
            }
            painter.setPen(colours.color(QPalette::Text));
            painter.setFont(day == m_day ? bold : font());
            painter.drawText(place.adjusted(0, 2, 0, 0), Qt::AlignCenter,
                             QString::number(static_cast<int>(day - m_shown[i].days.first) + 1));
            painter.setFont(small);
            painter.drawText(place.adjusted(0, 2, -4, 0), Qt::AlignRight | Qt::AlignTop, look.letter);
            painter.setFont(font());
        }
    }
}

} // namespace diary
