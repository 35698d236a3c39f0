#pragma once

#include <optional>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"
#include "screenkit/numberkind.h"

namespace screenkit {

/// A number entry. The exact double is kept behind the display: a figure that is not retyped keeps all its bits.
///
/// Reads typed and pasted text with `base::readAmount`; the keypad's decimal key is the decimal sign. Each key that
/// leaves a readable text updates the record; on leaving, the field shows the record's figure grouped. A text that
/// can't be read, or is too large for its place, is refused.
class NumberField : public EntryLine {
    Q_OBJECT
public:
    NumberField(const QString& name, Bound<double> place, NumberKind kind, QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// Enters a figure as if the user had typed it, as spin buttons do.
    void enter(double value);

    void giveBack() override;

    /// Shows a figure without writing it to the record. One that is not finite shows as an error and counts as 0.
    void present(double value);

    void fill() override;
    std::optional<Complaint> complaint() override;
    std::optional<Complaint> markStoredFault() override;
    void forgetEntry() override;
    std::optional<double> figure() const override;
    void setResult(bool result) override;
    /// What is wrong with the content, whoever entered it.
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
    /// True if the user entered the current figure.
    bool isOwn() const { return m_taken.has_value() && *m_taken == m_place.get(); }
    /// The complaint about a figure too large for its place, worded like its limits, if it has any.
    std::optional<Complaint> tooWide(double value) const;
    void typeDecimalSign();

    Bound<double> m_place;
    NumberKind m_kind;
    double m_value = 0;
    double m_onEntry = 0; ///< the content when the user came in
    bool m_ownOnEntry = false;
    std::optional<double> m_taken; ///< the user's last entry, as the record holds it
    double m_stood = 0;            ///< checked last; stays valid while the typed text is refused
};

} // namespace screenkit
