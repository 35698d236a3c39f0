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

/// A part of a screen: a control or a group of them. Blanks between parts come from the style.
struct Item {
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
    int stretch = 0;

    Item(QWidget* control, int share = 0) : widget(control), stretch(share) {} // NOLINT(google-explicit-constructor)
    Item(QLayout* group, int share = 0) : layout(group), stretch(share) {}     // NOLINT(google-explicit-constructor)
};

/// Room that gives way: what follows goes to the far end.
Item spring();

/// One line of a form: a label that is its field's buddy (with its access key), the field, and close behind it the
/// unit.
struct FormRow {
    QString label;
    Item field;
    QString unit;

    FormRow(QString text, Item control, QString unitText = {})
        : label(std::move(text)), field(control), unit(std::move(unitText)) {}
};

/// One line of a matrix: its head and a cell for each column. `spring()`, or no cell, leaves a place empty.
struct MatrixRow {
    QString head;
    std::vector<Item> cells;
};

QLayout* row(std::initializer_list<Item> items);
QLayout* column(std::initializer_list<Item> items);
/// Labels in one column, fields in the next. A field without a label of its own (a check box) has an empty label.
QLayout* form(const std::vector<FormRow>& rows);
/// Fields under heads of columns and beside heads of rows. What a cell holds is called by both ("Other, For Executor
/// fees") unless it has a name of its own; of a cell with several controls the further ones add their own caption. A
/// row's head leads by its access key to the row's first field, a column's to the column's.
QLayout* matrix(const QStringList& columnHeads, const std::vector<MatrixRow>& rows);
/// Shows or hides a line of a form: the field, its label and its unit.
void setRowVisible(QWidget* field, bool visible);
/// Gives a field another label.
void setRowLabel(QWidget* field, const QString& label);
/// A field with its label before it, for a line that holds several.
QLayout* labelled(const QString& label, QWidget* field);
/// A titled frame around a part, named `name`.
QWidget* group(const QString& name, const QString& title, Item content);
/// A note or heading; wraps.
QLabel* note(const QString& text);
/// Lets a screen's child window grow until the screen has a size, as far as the main window has room.
void makeRoom(QWidget* screen, const QSize& wanted);
/// A label's text without its access key and colon: what a screen reader says.
QString spokenLabel(const QString& label);

} // namespace screenkit
