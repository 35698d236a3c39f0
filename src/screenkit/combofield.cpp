#include "screenkit/combofield.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QWheelEvent>

namespace screenkit {

ComboField::ComboField(const QString& name, const QString& spokenName, int characters, Bound<int> place,
                       const Complaint& notListed, QWidget* parent)
    : QComboBox(parent), m_place(std::move(place)), m_notListed(notListed) {
    setObjectName(name);
    setAccessibleName(spokenName);
    setModel(new QStringListModel(this));
    auto* lines = new QListView;
    lines->setUniformItemSizes(true); // a hundred thousand names drop down at once
    setView(lines);
    setMaxVisibleItems(16);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(characters);
    if (!notListed.text.isEmpty()) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        lineEdit()->setAccessibleName(spokenName);
        lineEdit()->setObjectName("qt_comboedit"); // a part of this control, which has the focus for it
        connect(this, &QComboBox::editTextChanged, this,
                [this](const QString& text) { choose(findText(text.trimmed(), Qt::MatchFixedString)); });
    }
    connect(this, &QComboBox::activated, this, &ComboField::choose);
}

void ComboField::setRows(const QStringList& rows) {
    m_filling = true;
    auto* list = qobject_cast<QStringListModel*>(model());
    list->setStringList(rows);
    m_filling = false;
    fill();
}

void ComboField::present(const QString& text) {
    m_presented = text;
    m_place.set(-1);
    fill();
}

void ComboField::fill() {
    m_filling = true;
    setCurrentIndex(m_place.get());
    if (isEditable()) {
        if (m_place.get() < 0) setEditText(m_presented);
        lineEdit()->setCursorPosition(0);
    }
    m_filling = false;
}

void ComboField::choose(int row) {
    if (m_filling || row == m_place.get()) return;
    m_place.set(row);
    if (edited) edited();
}

bool ComboField::isRefused() const {
    return isEditable() && m_place.get() < 0 && currentText() != m_presented && !currentText().trimmed().isEmpty();
}

std::optional<Complaint> ComboField::complaint() {
    if (!isRefused()) return {};
    return m_notListed;
}

void ComboField::takeFocus() {
    setFocus(Qt::OtherFocusReason);
    if (isEditable()) lineEdit()->selectAll();
}

void ComboField::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    if (isEditable() && event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MouseFocusReason)
        lineEdit()->selectAll();
}

void ComboField::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    const bool isLeft = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                        event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ShortcutFocusReason ||
                        event->reason() == Qt::OtherFocusReason;
    if (isLeft && left) left();
}

} // namespace screenkit
