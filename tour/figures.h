#pragma once

#include <QMap>
#include <QString>

#include "assessment/assessment.h"

namespace screenkit {
class Screen;
}

namespace tour {

/// Values by their names, to be held against one another.
using Figures = QMap<QString, QString>;

/// What a screen shows: the text of each field, the state of each option and check box.
Figures shownOn(const screenkit::Screen* screen);

/// Each value of the record that is saved with the client, to its last bit.
Figures storedOf(assessment::Assessment& record);

/// Ends the tour at the first value that differs; what: where they are from.
void checkSame(const Figures& before, const Figures& after, const QString& what);

} // namespace tour
