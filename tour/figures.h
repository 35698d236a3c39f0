#pragma once

#include <QMap>
#include <QString>

#include "assessment/assessment.h"

class QAbstractItemModel;
namespace screenkit {
class Screen;
}

namespace tour {

/// Values by their names, to be held against one another.
using Figures = QMap<QString, QString>;

/// What a screen shows: the text of each field, the state of each option and check box.
Figures shownOn(const screenkit::Screen* screen);

/// The number in a cell of a table on screen; NAN if it holds none.
double cellOf(const QAbstractItemModel* table, int row, int column);

/// Each value of the record that is saved with the client, its policies and lists among them, to its last bit.
Figures storedOf(assessment::Assessment& record);

/// Ends the tour at the first value that differs; what: where they are from.
void checkSame(const Figures& before, const Figures& after, const QString& what);

} // namespace tour
