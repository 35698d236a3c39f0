#pragma once

#include <optional>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"
#include "screenkit/numberkind.h"

namespace screenkit {

/// A number entry. The full double stays behind the display: what the user does not retype keeps every bit.
///
/// Typed and pasted as `base::readAmount` tells; the keypad's decimal key is always the decimal sign. The record has
/// the figure with each key that leaves a text to be read, and what the user leaves is shown grouped, as the record
/// keeps it. What can't be read, or is more than the place can hold, is refused.
class NumberField : public EntryLine {
    Q_OBJECT
public:
    NumberField(const QString& name, Bound<double> place, NumberKind kind, QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// As if the user had typed it: spin buttons use it.
    void enter(double value);

    void giveBack() override;

    /// Shows a figure without writing it to the record. What is not finite shows as an error and counts as 0.
    void present(double value);

    void fill() override;
    std::optional<Complaint> complaint() override;
    std::optional<Complaint> markFault() override;
    void disown() override;
    std::optional<double> figure() const override;
    void setResult(bool result) override;
    /// What is wrong with the content, whoever put it there.
    std::optional<Complaint> fault() const;
    QSize sizeHint() const override;

protected:
    void entered() override;
    void tidy() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void display(double value);
    void typed(const QString& text);
    void take(double value);
    /// True if the user made the figure what it is.
    bool isOwn() const { return m_taken.has_value() && *m_taken == m_place.get(); }
    /// A figure that the place can't hold: in the words of its limits, if it has any.
    std::optional<Complaint> tooWide(double value) const;
    void typeDecimalSign();

    Bound<double> m_place;
    NumberKind m_kind;
    double m_value = 0;
    double m_onEntry = 0; ///< what the user found when coming in
    bool m_ownOnEntry = false;
    std::optional<double> m_taken; ///< what the user entered last, as the record keeps it
    double m_stood = 0;            ///< checked last: it holds while what is typed is refused
};

} // namespace screenkit
