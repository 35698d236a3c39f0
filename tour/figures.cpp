#include "tour/figures.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "assessment/tables.h"
#include "screenkit/screen.h"
#include "tour/journal.h"

namespace tour {

namespace {

QString text(const store::Value& value) {
    if (const auto* words = std::get_if<std::string>(&value)) return '"' + QString::fromStdString(*words) + '"';
    if (const auto* number = std::get_if<double>(&value)) return QString::number(*number, 'g', 17);
    return "nothing";
}

/// How to print is no part of the client.
bool onPanel(const QWidget* widget) {
    while (widget != nullptr && qobject_cast<const screenkit::Panel*>(widget) == nullptr)
        widget = widget->parentWidget();
    return widget != nullptr;
}

} // namespace

Figures shownOn(const screenkit::Screen* screen) {
    Figures shown;
    for (const auto* line : screen->findChildren<QLineEdit*>())
        shown[line->objectName()] = line->text();
    for (const auto* memo : screen->findChildren<QPlainTextEdit*>())
        shown[memo->objectName()] = memo->toPlainText();
    for (const auto* button : screen->findChildren<QAbstractButton*>())
        if (button->isCheckable() && !onPanel(button)) shown[button->objectName()] = button->isChecked() ? "on" : "off";
    return shown;
}

Figures storedOf(assessment::Assessment& record) {
    Figures stored;
    for (const auto* table : {&assessment::dataTable(), &assessment::persDetailsTable()})
        for (const assessment::FieldLine& field : table->fields())
            if (field.at != nullptr && field.rule != assessment::Rule::writtenOnly)
                stored[QString::fromStdString(table->name() + "." + field.name)] =
                    text(assessment::valueAt(field.at(&record)));
    return stored;
}

void checkSame(const Figures& before, const Figures& after, const QString& what) {
    check(!before.isEmpty() && before.keys() == after.keys(), what + ": not the same fields as before");
    for (auto was = before.begin(); was != before.end(); ++was)
        check(after[was.key()] == was.value(),
              QString("%1: %2 was %3 and is now %4").arg(what, was.key(), was.value(), after[was.key()]));
    say(QString("  %1: all %2 values are as they were").arg(what).arg(before.size()));
}

} // namespace tour
