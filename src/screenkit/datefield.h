#pragma once

#include <vector>

#include "screenkit/bound.h"
#include "screenkit/desk.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// What a date must be. Kinds are values, as those of numbers are. Limits count for what the user enters; what the file
/// held is his to look at.
struct DateKind {
    QString requiredTitle = {}; ///< empty: the date may be left out
    Complaint noDate = {};      ///< for a text that is none; without words the usual ones
    std::vector<Limit> limits = {};

    /// An empty date is a bad entry too, and every complaint goes under this title.
    DateKind required(const QString& boxTitle) const;
    /// The box for a text that is no date.
    DateKind worded(const QString& text, const QString& boxTitle) const;
    DateKind where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const;
    /// An end that moves, a day number; where it is no date (of another field that is empty) there is no end.
    DateKind notBefore(std::function<double()> earliest, std::function<Complaint()> complaint) const;
    DateKind notAfter(std::function<double()> latest, std::function<Complaint()> complaint) const;
};

/// A date as a day number, typed freely as `base::parseDate` tells and shown as dd/mm/yyyy; empty is no date
/// (`base::NoDate`). Day and month alone are of this year.
///
/// T is today, + and - a day on and back, F4 or the button inside the field a calendar. A text that is no date, or one
/// outside the limits, is refused. Dates on or before 1 January 1800 are no dates here: that day marks an empty date in
/// the record.
class DateField : public EntryLine {
    Q_OBJECT
public:
    DateField(const QString& name, Bound<double> place, Desk& desk, DateKind kind = {}, QWidget* parent = nullptr);

    /// As if the user had typed it: a day number. One past the ends of the calendar changes nothing.
    void enter(double day);

    void giveBack() override;
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
    void put(double day);
    /// The day that the text means; what stood there before where it is refused.
    double read(const QString& text);
    /// Puts a day on or takes one off; false where the text is neither empty nor a date with its year.
    bool step(int days);
    std::optional<double> dateIn(const QString& text) const;
    double today() const;

    Bound<double> m_place;
    Desk& m_desk;
    DateKind m_kind;
    double m_stood = 0; ///< taken last: it holds while what is typed is refused
};

} // namespace screenkit
