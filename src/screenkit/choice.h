#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QWidget>
#include <functional>
#include <optional>

#include "screenkit/bound.h"
#include "screenkit/field.h"

namespace screenkit {

/// Options of which one is selected, named `name(0)`, `name(1)`, ... from the top (or from the left if horizontal).
///
/// The record holds the index; an index without an option selects none. Picking an option writes it, then calls
/// `picked`; picking the selected one again is no edit. Tab stops at the selected option, or at the first enabled one
/// if the selected one is disabled; the arrow keys go round the enabled options.
class OptionGroup : public QWidget, public Field {
    Q_OBJECT
public:
    /// Without an orientation the options are separate: each is placed where it belongs on the screen (`option(1)`),
    /// and the group widget itself is never shown.
    OptionGroup(const QString& name, const QStringList& captions, Bound<int> place,
                std::optional<Qt::Orientation> orientation, QWidget* parent = nullptr);

    QWidget* widget() override;
    bool holds(const QWidget* control) override;
    void fill() override;
    void takeFocus() override;
    int chosen() const { return m_group.checkedId(); }
    std::optional<double> figure() const override { return chosen(); }
    QRadioButton* option(int index) const { return qobject_cast<QRadioButton*>(m_group.button(index)); }

    /// True while `picked` runs for an option reached with the arrow keys.
    bool pickedByArrow() const { return m_byArrow; }

    std::function<void(int)> picked;

protected:
    bool eventFilter(QObject* option, QEvent* event) override;
    /// Called for its label's access key: moves on to the selected option.
    void focusInEvent(QFocusEvent*) override { takeFocus(); }

private:
    void choose(int index);
    void walk(int from, int step);
    /// Where Tab stops.
    QAbstractButton* stop() const;
    /// Until one option has had the focus, Qt would send Tab to the first one even if another is selected.
    void placeStop();
    /// The next enabled option, cyclically.
    int after(int index, int step) const;

    Bound<int> m_place;
    QButtonGroup m_group;
    bool m_apart;
    bool m_byArrow = false;
};

/// A tick box: 1 or 0 in the record.
class CheckField : public QCheckBox, public Field {
    Q_OBJECT
public:
    CheckField(const QString& name, const QString& caption, Bound<int> place, QWidget* parent = nullptr);

    QWidget* widget() override { return this; }
    void fill() override;
    void takeFocus() override { setFocus(Qt::OtherFocusReason); }
    std::optional<double> figure() const override { return isChecked() ? 1 : 0; }

    std::function<void(bool)> ticked;

private:
    Bound<int> m_place;
};

} // namespace screenkit
