#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"

namespace screenkit {

/// What a number must be, and the box for one that is not.
struct Limit {
    std::function<bool(double)> holds;
    Complaint complaint;
};

/// How a number is shown and what range it may take. Kinds are values: `whole.upTo(600, "...", "...")`; each limit adds
/// to those that stand, and the first that does not hold has its say.
struct NumberKind {
    const char* mask;     ///< see base::formatNumber; a literal, so that the kinds below stand before any code runs
    bool isWhole = false; ///< no decimal sign can be typed
    int characters = 16;  ///< width of the field
    std::vector<Limit> limits = {};

    NumberKind from(double minimum, const QString& text, const QString& title) const;
    NumberKind upTo(double maximum, const QString& text, const QString& title) const;
    NumberKind between(double minimum, double maximum, const QString& text, const QString& title) const;
    /// For an end that moves with another field.
    NumberKind where(std::function<bool(double)> holds, const QString& text, const QString& title) const;
    NumberKind shownAs(const char* otherMask) const;
};

extern const NumberKind money;     ///< rand, shown with cents and grouped by blanks
extern const NumberKind wholeRand; ///< rand, shown without cents
extern const NumberKind whole;     ///< a count: months, years, an age
extern const NumberKind percent;   ///< percent a year to three places

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

    /// Shows a figure without writing it to the record. What is not finite shows as an error and counts as 0.
    void present(double value);

    void fill() override;
    std::optional<Complaint> complaint() override;
    std::optional<Complaint> markFault() override;
    void disown() override;
    std::optional<double> figure() const override;
    void setResult(bool result) override;
    QSize sizeHint() const override;

protected:
    void entered() override;
    void tidy() override;

private:
    void show(double value);
    void typed(const QString& text);
    void take(double value);
    /// True if the user made the figure what it is.
    bool isOwn() const { return m_taken.has_value() && *m_taken == m_place.get(); }
    std::optional<Complaint> fault() const;

    Bound<double> m_place;
    NumberKind m_kind;
    double m_value = 0;
    double m_onEntry = 0; ///< what the user found when coming in
    bool m_ownOnEntry = false;
    std::optional<double> m_taken; ///< what the user entered last, as the record keeps it
};

} // namespace screenkit
