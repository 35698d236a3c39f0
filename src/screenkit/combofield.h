#pragma once

#include <QComboBox>
#include <QWheelEvent>

#include "screenkit/bound.h"
#include "screenkit/field.h"

namespace screenkit {

/// A list of texts that drops down, one of which may be chosen. The record holds its row, -1 for none.
///
/// In a list that takes typing, a text that is a row in any case chooses it. Any other text is refused when the user
/// leaves, except a blank one and the one that was shown with `present`: the prompt, or what the file holds though it
/// is not offered.
/// The mouse wheel does nothing unless the list is open.
class ComboField : public QComboBox, public Field {
    Q_OBJECT
public:
    /// notListed: the message for a typed text that is no row; without one the list takes no typing.
    ComboField(const QString& name, const QString& spokenName, int characters, Bound<int> place,
               const Complaint& notListed = {}, QWidget* parent = nullptr);

    void setRows(const QStringList& rows);
    /// Shows a text that is no row, with none chosen in the record.
    void present(const QString& text);
    /// True if the user typed a text that is no row.
    bool isRefused() const;

    QWidget* widget() override { return this; }
    /// Shows the record's row; without one the text presented last.
    void fill() override;
    void takeFocus() override;
    std::optional<Complaint> complaint() override;
    std::optional<double> figure() const override { return m_place.get(); }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void choose(int row);

    Bound<int> m_place;
    Complaint m_notListed;
    QString m_presented;
    bool m_filling = false;
};

} // namespace screenkit
