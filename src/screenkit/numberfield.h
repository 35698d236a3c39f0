#pragma once

#include <optional>
#include <string>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// How a number is shown and what range it may take. Kinds are values: `whole.upTo(600, "...", "...")`.
struct NumberKind {
    std::string mask;     ///< see base::formatNumber
    bool isWhole = false; ///< no decimal sign can be typed
    int characters = 16;  ///< width of the field
    std::optional<double> least, most;
    QString text, title; ///< the box for a value outside least and most

    NumberKind upTo(double maximum, const QString& boxText, const QString& boxTitle) const;
    NumberKind between(double minimum, double maximum, const QString& boxText, const QString& boxTitle) const;
    NumberKind shownAs(const std::string& otherMask) const;
};

// Inline, so that they are there before the kinds that a screen's file makes of them.
/// Rand, shown with cents and grouped by blanks.
inline const NumberKind money{"# ### ### ##0.00", false, 16, {}, {}, {}, {}};
/// A count: months, years, an age.
inline const NumberKind whole{"# ### ### ##0", true, 8, {}, {}, {}, {}};
/// Percent a year to three places.
inline const NumberKind percent{"0.000", false, 8, {}, {}, {}, {}};

/// A number entry. The full double stays behind the display: what the user does not retype keeps every bit.
///
/// `.`, `,` and the keypad's decimal key are all the decimal sign, whatever the system's locale. A text that means
/// nothing yet ("-", empty) counts as 0. What the user leaves is shown as the record keeps it.
class NumberField : public EntryLine {
    Q_OBJECT
public:
    NumberField(const QString& name, Bound<double> place, NumberKind kind, QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// As if the user had typed it: spin buttons use it.
    void enter(double value);

    /// Undoes what was entered since the user came into the field, and selects it.
    void giveBack();

    /// Shows a figure without writing it to the record.
    void present(double value);

    void fill() override;
    std::optional<Complaint> complaint() override;
    QSize sizeHint() const override;

protected:
    void entered() override { m_onEntry = m_value; }
    void tidy() override;

private:
    void show(double value);
    void typed(const QString& text);

    Bound<double> m_place;
    NumberKind m_kind;
    double m_value = 0;
    double m_onEntry = 0; ///< what the user found when coming in
};

} // namespace screenkit
