#pragma once

#include "screenkit/bound.h"
#include "screenkit/desk.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// A date as a day number, typed freely as dd/mm/yyyy; empty is no date (`base::NoDate`).
///
/// T is today, + and - a day on and back, F4 or the button inside the field a calendar. A text that is no date stays
/// until the user leaves the field, the record holding no date for it; then the field is cleared and complains. Dates
/// on or before 1 January 1800 are no dates here: that day marks an empty date in the record.
class DateField : public EntryLine {
    Q_OBJECT
public:
    DateField(const QString& name, Bound<double> place, Desk& desk, QWidget* parent = nullptr);

    /// An empty date is a bad entry too, and every complaint goes under this title.
    void require(const QString& boxTitle) { m_requiredTitle = boxTitle; }

    /// As if the user had typed it: a day number. One past the ends of the calendar changes nothing.
    void enter(double day);

    void fill() override;
    std::optional<Complaint> complaint() override;
    std::optional<double> figure() const override { return m_place.get(); }
    QSize sizeHint() const override;
    void showCalendar();

protected:
    void tidy() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void typed(const QString& text);
    /// Puts a day on or takes one off; false where the text is neither empty nor a date.
    bool step(int days);
    double today() const;

    Bound<double> m_place;
    Desk& m_desk;
    QString m_requiredTitle; ///< empty: the date may be left out
};

} // namespace screenkit
