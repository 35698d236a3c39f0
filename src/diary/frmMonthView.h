#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "diary/daykinds.h"

class QToolButton;

namespace diary {

/// A calendar of one to three months that shows each day's kind by colour and by a letter in its corner.
///
/// A click or the arrow keys choose a day; Page Up and Page Down go a month back or on, Home and End to the first and
/// last day of the month. The months shown follow the day chosen.
class MonthView : public QWidget {
    Q_OBJECT
public:
    explicit MonthView(const QString& name, QWidget* parent = nullptr);

    /// The kinds of a month's days; called whenever other months are shown, and by `refresh`.
    std::function<std::vector<DayKind>(Month)> kindsOf = [](Month month) { return dayKinds(month.year, month.month); };
    std::function<void(double)> dayPicked; ///< by the user

    void setDay(double day);
    double day() const { return m_day; }
    void setMonths(int months);
    /// The first day of the week, 0 for Sunday.
    void setFirstDay(int day);
    /// Asks for the kinds again.
    void refresh();
    /// The day's kind among the months shown.
    DayKind kindAt(double day) const;
    /// The day shown at a place; nothing beside the days.
    std::optional<double> dayAt(const QPoint& place) const;
    QRect placeOf(double day) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    struct Shown {
        Month month;
        MonthDays days;
        std::vector<DayKind> kinds;
    };
    void pick(double day);
    void turn(int months);
    void showFrom(Month first);
    void say();
    QSize cell() const;
    QRect monthRect(std::size_t index) const;
    QRect cellRect(std::size_t index, double day) const;

    double m_day;
    int m_firstDay = 0;
    std::size_t m_count = 1;
    std::vector<Shown> m_shown;
    QToolButton *m_back, *m_on;
};

/// The line that explains the letters and colours; without entries only those of holidays and week-ends.
QString legend(bool withEntries = true);

} // namespace diary
