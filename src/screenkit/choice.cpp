#include "screenkit/choice.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "screenkit/layout.h"

namespace screenkit {

namespace {

bool canBePicked(const QAbstractButton* option) { return option->isEnabled() && !option->isHidden(); }

/// A screen reader would read out blanks and a colon at a caption's end.
void nameInWords(QAbstractButton* choice) {
    const QString plain = QString(choice->text()).remove('&');
    if (spokenLabel(plain) != plain) choice->setAccessibleName(spokenLabel(choice->text()));
}

int stepOf(int key) {
    if (key == Qt::Key_Down || key == Qt::Key_Right) return 1;
    return key == Qt::Key_Up || key == Qt::Key_Left ? -1 : 0;
}

bool changesReach(QEvent::Type type) {
    return type == QEvent::EnabledChange || type == QEvent::ShowToParent || type == QEvent::HideToParent;
}

} // namespace

OptionGroup::OptionGroup(const QString& name, const QStringList& captions, Bound<int> place,
                         std::optional<Qt::Orientation> orientation, QWidget* parent)
    : QWidget(parent), m_place(std::move(place)), m_apart(!orientation) {
    setObjectName(name);
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new QRadioButton(captions[i], this);
        option->setObjectName(QString("%1(%2)").arg(name).arg(i));
        m_group.addButton(option, i);
        option->installEventFilter(this);
        nameInWords(option);
    }
    connect(&m_group, &QButtonGroup::idClicked, this, &OptionGroup::choose);
    if (m_apart) {
        hide();
        return;
    }
    auto* layout =
        new QBoxLayout(*orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAbstractButton* option : m_group.buttons())
        layout->addWidget(option);
    layout->addStretch(1);
}

QWidget* OptionGroup::widget() { return m_apart ? static_cast<QWidget*>(stop()) : this; }

bool OptionGroup::holds(const QWidget* control) {
    return control == this || m_group.id(qobject_cast<QAbstractButton*>(const_cast<QWidget*>(control))) >= 0;
}

void OptionGroup::choose(int index) {
    if (m_place.get() != index) {
        m_place.set(index);
        if (edited) edited();
    }
    if (picked) picked(index);
}

bool OptionGroup::eventFilter(QObject* option, QEvent* event) {
    if (changesReach(event->type())) placeStop();
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(option, event);
    const int step = stepOf(static_cast<QKeyEvent*>(event)->key());
    if (step == 0) return QWidget::eventFilter(option, event);
    walk(m_group.id(qobject_cast<QAbstractButton*>(option)), step);
    return true;
}

void OptionGroup::walk(int from, int step) {
    const int next = after(from, step);
    const QScopedValueRollback byArrow(m_byArrow, true);
    m_group.button(next)->setFocus(Qt::TabFocusReason);
    m_group.button(next)->setChecked(true);
    choose(next);
}

int OptionGroup::after(int index, int step) const {
    const int count = static_cast<int>(m_group.buttons().size());
    int next = (index + step + count) % count;
    while (next != index && !canBePicked(option(next)))
        next = (next + step + count) % count;
    return next;
}

void OptionGroup::fill() {
    auto* wanted = m_group.button(m_place.get());
    m_group.setExclusive(false);
    for (auto* option : m_group.buttons())
        option->setChecked(option == wanted);
    m_group.setExclusive(true);
    placeStop();
}

QAbstractButton* OptionGroup::stop() const {
    QAbstractButton* held = m_group.checkedButton();
    if (held != nullptr && canBePicked(held)) return held;
    const auto options = m_group.buttons();
    const auto first = std::find_if(options.begin(), options.end(), canBePicked);
    if (first != options.end()) return *first;
    return held != nullptr ? held : options.value(0);
}

void OptionGroup::placeStop() {
    const QAbstractButton* stopping = stop();
    for (auto* option : m_group.buttons())
        option->setFocusPolicy(option == stopping ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionGroup::takeFocus() {
    if (QAbstractButton* option = stop()) option->setFocus(Qt::OtherFocusReason);
}

CheckField::CheckField(const QString& name, const QString& caption, Bound<int> place, QWidget* parent)
    : QCheckBox(caption, parent), m_place(std::move(place)) {
    setObjectName(name);
    nameInWords(this);
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
