#include "tour/figures.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <cmath>

#include "assessment/tables.h"
#include "base/amount.h"
#include "screenkit/screen.h"
#include "tour/journal.h"

namespace tour {

namespace {

QString text(const store::Value& value) {
    if (const auto* words = std::get_if<std::string>(&value)) return '"' + QString::fromStdString(*words) + '"';
    if (const auto* number = std::get_if<double>(&value)) return QString::number(*number, 'g', 17);
    return "nothing";
}

/// Print choices and the contents of an open list are no part of the client.
bool onPanel(const QWidget* widget) {
    while (widget != nullptr && qobject_cast<const screenkit::Panel*>(widget) == nullptr)
        widget = widget->parentWidget();
    return widget != nullptr;
}

template <class Row>
void keep(Figures& stored, const QString& place, const assessment::FieldTable<Row>& table, Row& row) {
    for (const assessment::FieldLine& field : table.fields())
        if (field.at != nullptr && field.rule != assessment::Rule::writtenOnly)
            stored[place + "." + QString::fromStdString(field.name)] = text(assessment::valueAt(field.at(&row)));
}

/// Like `keep`, for a table with several rows for one client.
template <class Row>
void keepRows(Figures& stored, const assessment::FieldTable<Row>& table, std::vector<Row>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        keep(stored, QString("%1(%2)").arg(QString::fromStdString(table.name())).arg(i + 1), table, rows[i]);
}

} // namespace

double cellOf(const QAbstractItemModel* table, int row, int column) {
    return base::readAmount(table->index(row, column).data().toString().toStdString(), 2).figure.value_or(NAN);
}

Figures shownOn(const screenkit::Screen* screen) {
    Figures shown;
    for (const auto* line : screen->findChildren<QLineEdit*>())
        if (!onPanel(line)) shown[line->objectName()] = line->text();
    for (const auto* memo : screen->findChildren<QPlainTextEdit*>())
        shown[memo->objectName()] = memo->toPlainText();
    for (const auto* button : screen->findChildren<QAbstractButton*>())
        if (button->isCheckable() && !onPanel(button)) shown[button->objectName()] = button->isChecked() ? "on" : "off";
    return shown;
}

Figures storedOf(assessment::Assessment& record) {
    Figures stored;
    for (const auto* table : {&assessment::dataTable(), &assessment::persDetailsTable()})
        keep(stored, QString::fromStdString(table->name()), *table, record);
    keepRows(stored, assessment::polsInvestsTable(), record.policies);
    for (const assessment::ItemTable& itemised : assessment::itemTables())
        if (itemised.list != nullptr) keepRows(stored, *itemised.table, itemised.list(record.itemised).rows);
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
