#pragma once

#include <QLineEdit>

#include "screenkit/bound.h"
#include "screenkit/desk.h"
#include "screenkit/field.h"

namespace screenkit {

/// A date as a day number, typed freely as dd/mm/yyyy; empty is no date (`base::NoDate`).
///
/// T is today, + and - a day on and back, F4 or the button inside the field a calendar. A text that is no date stays
/// until the user leaves the field; then the field is cleared and complains. Dates on or before 1 January 1800 are no
/// dates here: that day marks an empty date in the record.
class DateField : public QLineEdit, public Field {
    Q_OBJECT
public:
    DateField(const QString& name, Bound<double> place, Desk& desk, QWidget* parent = nullptr);

    QWidget* widget() override { return this; }
    void fill() override;
    std::optional<Complaint> complaint() override;
    void takeFocus() override;
    QSize sizeHint() const override;
    void showCalendar();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void typed(const QString& text);
    void enter(double day);

    Bound<double> m_place;
    Desk& m_desk;
};

} // namespace screenkit
