#pragma once

#include <QMap>
#include <QString>

#include "assessment/assessment.h"

class QAbstractItemModel;
namespace screenkit {
class Screen;
}

namespace tour {

/// Values by name, for comparison.
using Figures = QMap<QString, QString>;

/// The content of a screen: the text of each field, the state of each option and check box.
Figures shownOn(const screenkit::Screen* screen);

/// The number in a cell of a table; NAN if it contains none.
double cellOf(const QAbstractItemModel* table, int row, int column);

/// All values of the record that are saved with the client, including policies and lists, with all their bits.
Figures storedOf(assessment::Assessment& record);

/// Ends the tour at the first value that differs; what: where the values come from.
void checkSame(const Figures& before, const Figures& after, const QString& what);

} // namespace tour
