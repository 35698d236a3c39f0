#pragma once

#include <QColor>
#include <QPalette>

namespace screenkit {

/// Contrast of two colours by the formula of the accessibility guidelines (WCAG), from 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// Makes a palette's disabled text readable on every background that text is shown on: as pale as a contrast of 3
/// allows, while Qt's own has less than 2. True if anything was changed.
bool makeGreyedReadable(QPalette& palette);

} // namespace screenkit
