#include "screenkit/layout.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <algorithm>

namespace screenkit {

namespace {

void add(QBoxLayout* layout, const Item& item) {
    if (item.widget != nullptr)
        layout->addWidget(item.widget, item.stretch);
    else if (item.layout != nullptr)
        layout->addLayout(item.layout, item.stretch);
    else
        layout->addStretch(item.stretch);
}

QWidget* firstWidget(const Item& item) {
    if (item.layout == nullptr) return item.widget;
    const QLayoutItem* first = item.layout->itemAt(0);
    return first != nullptr ? first->widget() : nullptr;
}

/// Sets a caption and its spoken name, without padding blanks and without a bracket whose partner is in another label.
void setCaption(QLabel* label, const QString& text) {
    if (label->text() == text) return; // a name set again would be announced again
    label->setText(text);
    label->setAccessibleName(spokenLabel(text));
}

QLabel* buddyLabel(const QString& text, QWidget* field) {
    auto* label = new QLabel;
    setCaption(label, text);
    if (field == nullptr) return label;
    label->setBuddy(field);
    if (field->accessibleName().isEmpty()) field->setAccessibleName(spokenLabel(text));
    return label;
}

bool growsSideways(const QWidget* control) {
    return (control->sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) != 0;
}

/// Looks at the parts one by one: a layout that is asked itself keeps the sizes they have before the window is shown.
bool takesAllRoom(const Item& item) {
    if (item.layout == nullptr) return item.widget == nullptr || growsSideways(item.widget);
    for (int i = 0; i < item.layout->count(); ++i) {
        QLayoutItem* part = item.layout->itemAt(i);
        if (part->spacerItem() != nullptr || (part->widget() != nullptr && growsSideways(part->widget())) ||
            (part->layout() != nullptr && takesAllRoom(Item(part->layout()))))
            return true;
    }
    return false;
}

QLayout* withUnit(const FormRow& row) {
    auto* cell = new QHBoxLayout;
    add(cell, Item(row.field));
    if (!row.unit.isEmpty()) {
        auto* unit = new QLabel;
        setCaption(unit, row.unit);
        if (QWidget* field = firstWidget(row.field)) unit->setBuddy(field);
        cell->addWidget(unit);
    }
    if (!takesAllRoom(row.field)) cell->addStretch(1);
    return cell;
}

/// The controls of a cell, in order.
QList<QWidget*> controlsOf(const Item& cell) {
    if (cell.layout == nullptr) return cell.widget != nullptr ? QList{cell.widget} : QList<QWidget*>();
    QList<QWidget*> controls;
    for (int i = 0; i < cell.layout->count(); ++i) {
        QLayoutItem* part = cell.layout->itemAt(i);
        if (part->layout() != nullptr)
            controls += controlsOf(part->layout());
        else if (part->widget() != nullptr && qobject_cast<QLabel*>(part->widget()) == nullptr)
            controls << part->widget();
    }
    return controls;
}

void nameCell(const QList<QWidget*>& controls, const QString& rowHead, const QString& columnHead) {
    const QString name = QString("%1, %2").arg(spokenLabel(rowHead), spokenLabel(columnHead));
    for (QWidget* control : controls) {
        if (!control->accessibleName().isEmpty()) continue;
        auto* further = control == controls.front() ? nullptr : qobject_cast<QAbstractButton*>(control);
        control->setAccessibleName(further != nullptr ? name + ", " + spokenLabel(further->text()) : name);
    }
}

/// The labels whose buddy is this field, its caption first.
QList<QLabel*> labelsOf(const QWidget* field) {
    QList<QLabel*> labels;
    if (field->parentWidget() == nullptr) return labels;
    for (auto* label : field->parentWidget()->findChildren<QLabel*>())
        if (label->buddy() == field) labels << label;
    return labels;
}

} // namespace

Item spring() { return {static_cast<QWidget*>(nullptr), 1}; }

QLayout* row(const std::vector<Item>& items) {
    auto* layout = new QHBoxLayout;
    for (const Item& item : items)
        add(layout, item);
    return layout;
}

QLayout* column(std::initializer_list<Item> items) {
    auto* layout = new QVBoxLayout;
    for (const Item& item : items)
        add(layout, item);
    return layout;
}

QLayout* labelled(const QString& label, QWidget* field) {
    auto* layout = new QHBoxLayout;
    layout->addWidget(buddyLabel(label, field));
    layout->addWidget(field);
    return layout;
}

QLayout* form(const std::vector<FormRow>& rows) {
    auto* layout = new QGridLayout;
    layout->setColumnStretch(1, 1);
    int line = 0;
    bool grows = false;
    for (const FormRow& row : rows) {
        auto* label = buddyLabel(row.label, firstWidget(row.field));
        const bool tall = row.field.widget != nullptr &&
                          (row.field.widget->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
        layout->addWidget(label, line, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
        if (tall) layout->setRowStretch(line, 1);
        grows = grows || tall;
        layout->addLayout(withUnit(row), line++, 1);
    }
    if (!grows) layout->setRowStretch(line, 1);
    return layout;
}

QLayout* matrix(const QStringList& columnHeads, const std::vector<MatrixRow>& rows) {
    auto* layout = new QGridLayout;
    std::vector<QLabel*> heads;
    for (const QString& head : columnHeads) {
        setCaption(heads.emplace_back(new QLabel), head);
        layout->addWidget(heads.back(), 0, static_cast<int>(heads.size()), Qt::AlignHCenter | Qt::AlignBottom);
    }
    int line = 0;
    for (const MatrixRow& each : rows) {
        auto* rowHead = new QLabel;
        setCaption(rowHead, each.head);
        layout->addWidget(rowHead, ++line, 0);
        for (std::size_t i = 0; i < each.cells.size() && i < heads.size(); ++i) {
            const Item& cell = each.cells[i];
            const QList<QWidget*> controls = controlsOf(cell);
            if (controls.isEmpty()) continue;
            nameCell(controls, each.head, columnHeads[static_cast<int>(i)]);
            for (QLabel* head : {rowHead, heads[i]})
                if (head->buddy() == nullptr) head->setBuddy(controls.front());
            auto* place = new QHBoxLayout;
            add(place, cell);
            if (std::none_of(controls.begin(), controls.end(), growsSideways)) place->addStretch(1);
            layout->addLayout(place, line, static_cast<int>(i) + 1);
        }
    }
    layout->setColumnStretch(static_cast<int>(heads.size()) + 1, 1);
    layout->setRowStretch(line + 1, 1);
    return layout;
}

void setRowVisible(QWidget* field, bool visible) {
    field->setVisible(visible);
    for (QLabel* label : labelsOf(field))
        label->setVisible(visible);
}

void setRowLabel(QWidget* field, const QString& label) {
    const QList<QLabel*> labels = labelsOf(field);
    if (!labels.isEmpty()) setCaption(labels.front(), label); // the other one is the unit
    if (field->accessibleName() != spokenLabel(label)) field->setAccessibleName(spokenLabel(label));
}

QWidget* group(const QString& name, const QString& title, Item content) {
    auto* box = new QGroupBox(title);
    box->setObjectName(name);
    box->setAccessibleName(spokenLabel(title));
    auto* layout = new QVBoxLayout(box);
    add(layout, content);
    if (content.widget != nullptr && content.widget->accessibleName().isEmpty())
        content.widget->setAccessibleName(spokenLabel(title));
    return box;
}

QLabel* note(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

void makeRoom(QWidget* screen, const QSize& wanted) {
    auto* window = qobject_cast<QMdiSubWindow*>(screen->parentWidget());
    if (window == nullptr || window->isMaximized()) return;
    const QSize lacking = (wanted - screen->size()).expandedTo({0, 0});
    const QSize most = window->parentWidget()->size() - QSize(window->x(), window->y());
    window->resize((window->size() + lacking).boundedTo(most.expandedTo(window->size())));
}

QString spokenLabel(const QString& label) {
    QString spoken = label;
    spoken.replace("&&", QString(QChar(1))).remove('&').replace(QChar(1), "&");
    spoken = spoken.simplified().remove(QRegularExpression("[\\s:(]+$"));
    if (spoken.endsWith(')') && !spoken.contains('(')) spoken.chop(1);
    return spoken;
}

} // namespace screenkit
