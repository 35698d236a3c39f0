#pragma once

#include <vector>

#include "screenkit/bound.h"
#include "screenkit/desk.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// The rules for a date. Kinds are values, like number kinds. Limits apply to what the user enters; a date from the
/// file is only marked.
struct DateKind {
    QString requiredTitle = {}; ///< empty: no date is required
    Complaint noDate = {};      ///< for a text that is no date; without a text the standard message
    std::vector<Limit> limits = {};

    /// A date is required: an empty field is an error, and every message gets this title.
    DateKind required(const QString& boxTitle) const;
    /// The message for a text that is no date.
    DateKind worded(const QString& text, const QString& boxTitle) const;
    DateKind where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const;
    /// A limit that may move, a day number. If it is no date (its field is empty), there is no limit.
    DateKind notBefore(std::function<double()> earliest, std::function<Complaint()> complaint) const;
    DateKind notAfter(std::function<double()> latest, std::function<Complaint()> complaint) const;
};

/// A date as a day number, typed in any form that `base::parseDate` accepts and shown as dd/mm/yyyy; empty is no date
/// (`base::NoDate`). A day and month alone are taken in this year.
///
/// T enters today, + and - move by a day, F4 or the button in the field opens a calendar. A text that is no date, or
/// one outside the limits, is refused. Dates on or before 1 January 1800 are refused too: in the record that day stands
/// for an empty date.
class DateField : public EntryLine {
    Q_OBJECT
public:
    DateField(const QString& name, Bound<double> place, Desk& desk, DateKind kind = {}, QWidget* parent = nullptr);

    /// Enters a day number as if the user had typed it. A day beyond the calendar's ends changes nothing.
    void enter(double day);

    /// Empties the field, also in the record, if its text is refused; returns why it was.
    std::optional<Complaint> dropRefused();

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
    /// The day that the text means; if it is refused, the day that was accepted last.
    double read(const QString& text);
    /// Adds or subtracts a day; false if the text is neither empty nor a full date.
    bool step(int days);
    std::optional<double> dateIn(const QString& text) const;
    double today() const;

    Bound<double> m_place;
    Desk& m_desk;
    DateKind m_kind;
    double m_stood = 0; ///< accepted last; stays valid while the typed text is refused
};

} // namespace screenkit
