#pragma once

#include <QIcon>
#include <QString>

namespace screenkit {

/// An icon of the program's own set by the name of its file in resources/icons, drawn in the colour of the text beside
/// it: right in a light and a dark palette, greyed out with its button, sharp at every scale.
QIcon icon(const QString& name);

} // namespace screenkit
