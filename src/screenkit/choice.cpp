#include "screenkit/choice.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace screenkit {

OptionGroup::OptionGroup(const QString& name, const QStringList& captions, Bound<int> place,
                         Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent), m_place(std::move(place)) {
    setObjectName(name);
    auto* layout =
        new QBoxLayout(orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new QRadioButton(captions[i], this);
        option->setObjectName(QString("%1(%2)").arg(name).arg(i));
        m_group.addButton(option, i);
        option->installEventFilter(this);
        layout->addWidget(option);
    }
    layout->addStretch(1);
    connect(&m_group, &QButtonGroup::idClicked, this, &OptionGroup::choose);
}

void OptionGroup::choose(int index) {
    if (m_place.get() != index) {
        m_place.set(index);
        if (edited) edited();
    }
    if (picked) picked(index);
}

bool OptionGroup::eventFilter(QObject* option, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int step = key == Qt::Key_Down || key == Qt::Key_Right ? 1
                         : key == Qt::Key_Up || key == Qt::Key_Left  ? -1
                                                                     : 0;
        if (step != 0) {
            const int next = after(m_group.id(qobject_cast<QAbstractButton*>(option)), step);
            const QScopedValueRollback byArrow(m_byArrow, true);
            m_group.button(next)->setFocus(Qt::TabFocusReason);
            m_group.button(next)->setChecked(true);
            choose(next);
            return true;
        }
    }
    return QWidget::eventFilter(option, event);
}

int OptionGroup::after(int index, int step) const {
    const int count = static_cast<int>(m_group.buttons().size());
    int next = (index + step + count) % count;
    while (next != index && (!option(next)->isEnabled() || option(next)->isHidden()))
        next = (next + step + count) % count;
    return next;
}

void OptionGroup::fill() {
    auto* wanted = m_group.button(m_place.get());
    m_group.setExclusive(false);
    for (auto* option : m_group.buttons())
        option->setChecked(option == wanted);
    m_group.setExclusive(true);
    takeTabAt(wanted != nullptr ? wanted : m_group.button(0));
}

void OptionGroup::takeTabAt(const QAbstractButton* stop) {
    for (auto* option : m_group.buttons())
        option->setFocusPolicy(option == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionGroup::takeFocus() {
    auto* option = m_group.checkedButton() != nullptr ? m_group.checkedButton() : m_group.button(0);
    if (option != nullptr) option->setFocus(Qt::OtherFocusReason);
}

CheckField::CheckField(const QString& name, const QString& caption, Bound<int> place, QWidget* parent)
    : QCheckBox(caption, parent), m_place(std::move(place)) {
    setObjectName(name);
    connect(this, &QCheckBox::clicked, this, [this](bool on) {
        m_place.set(on ? 1 : 0);
        if (edited) edited();
        if (ticked) ticked(on);
    });
}

void CheckField::fill() {
    setChecked(m_place.get() != 0);
    if (ticked) ticked(isChecked());
}

} // namespace screenkit
