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

/// Options of which one holds, named `name(0)`, `name(1)`, ... from the top (or the left, if it lies flat).
///
/// The record holds the index; an index that names no option leaves all of them off. Picking one writes it, then calls
/// `picked`; picking the one that holds already is no edit. Tab stops at the option that holds, or at the first that
/// can be picked if that one can't; the arrow keys go round those that can be picked.
class OptionGroup : public QWidget, public Field {
    Q_OBJECT
public:
    /// Without an orientation the options stand apart: each is put beside what it belongs to (`option(1)`), wherever
    /// that is on the screen, and the group itself is never shown.
    OptionGroup(const QString& name, const QStringList& captions, Bound<int> place,
                std::optional<Qt::Orientation> orientation, QWidget* parent = nullptr);

    QWidget* widget() override;
    bool holds(const QWidget* control) override;
    void fill() override;
    void takeFocus() override;
    int chosen() const { return m_group.checkedId(); }
    std::optional<double> figure() const override { return chosen(); }
    QRadioButton* option(int index) const { return qobject_cast<QRadioButton*>(m_group.button(index)); }

    /// True while `picked` runs for an option that the arrow keys moved to.
    bool pickedByArrow() const { return m_byArrow; }

    std::function<void(int)> picked;

protected:
    bool eventFilter(QObject* option, QEvent* event) override;
    /// By its label's access key: on to the option that holds.
    void focusInEvent(QFocusEvent*) override { takeFocus(); }

private:
    void choose(int index);
    void walk(int from, int step);
    /// Where Tab stops.
    QAbstractButton* stop() const;
    /// The toolkit would send Tab to the first option even where another holds, until one has had the focus.
    void placeStop();
    /// The next option that can be picked, round and round.
    int after(int index, int step) const;

    Bound<int> m_place;
    QButtonGroup m_group;
    bool m_apart;
    bool m_byArrow = false;
};

/// A yes or no, 1 or 0 in the record.
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
