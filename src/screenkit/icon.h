#pragma once

#include <QIcon>
#include <QString>

namespace screenkit {

/// An icon from resources/icons, by its file name, drawn in the colour of the text beside it: it suits light and dark
/// palettes, is greyed with its button, and is sharp at every scale.
QIcon icon(const QString& name);

} // namespace screenkit
