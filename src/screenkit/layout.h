#pragma once

#include <QSize>
#include <QString>
#include <initializer_list>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLayout;
class QVBoxLayout;
class QWidget;

namespace screenkit {

/// A part of a screen: a control or a group of them. The style sets the spaces between parts.
struct Item {
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
    int stretch = 0;

    Item(QWidget* control, int share = 0) : widget(control), stretch(share) {} // NOLINT(google-explicit-constructor)
    Item(QLayout* group, int share = 0) : layout(group), stretch(share) {}     // NOLINT(google-explicit-constructor)
};

/// Space that stretches: what follows moves to the far end.
Item spring();

/// One line of a form: a label that is its field's buddy (with its access key), the field, and directly after it the
/// unit.
struct FormRow {
    QString label;
    Item field;
    QString unit;

    FormRow(QString text, Item control, QString unitText = {})
        : label(std::move(text)), field(control), unit(std::move(unitText)) {}
};

/// One line of a matrix: its head and a cell for each column. `spring()`, or a missing cell, leaves a place empty.
struct MatrixRow {
    QString head;
    std::vector<Item> cells;
};

QLayout* row(const std::vector<Item>& items);
QLayout* column(std::initializer_list<Item> items);
/// Labels in one column, fields in the next. A field without a label of its own (a check box) has an empty label.
QLayout* form(const std::vector<FormRow>& rows);
/// Fields in rows and columns with heads. A cell is named after both heads ("Other, For Executor fees") unless it has a
/// name of its own; in a cell of several controls the second and later ones add their captions. The access key of a
/// row's or column's head goes to its first field.
QLayout* matrix(const QStringList& columnHeads, const std::vector<MatrixRow>& rows);
/// Shows or hides a line of a form: the field, its label and its unit.
void setRowVisible(QWidget* field, bool visible);
/// Gives a field another label.
void setRowLabel(QWidget* field, const QString& label);
/// A field with its label before it, for a line with several fields.
QLayout* labelled(const QString& label, QWidget* field);
/// A titled frame around a part, named `name`.
QWidget* group(const QString& name, const QString& title, Item content);
/// A note or heading; its text wraps.
QLabel* note(const QString& text);
/// Enlarges a screen's window until the screen has this size, within the main window.
void makeRoom(QWidget* screen, const QSize& wanted);
/// A label's text without its access key and colon: what a screen reader says.
QString spokenLabel(const QString& label);

} // namespace screenkit
