#pragma once

#include <QColor>
#include <QPalette>

namespace screenkit {

/// Contrast of two colours by the accessibility guidelines' formula, from 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// Makes greyed text of a palette readable: it steps back as far as a contrast of 3 allows, on each of the grounds that
/// text stands on; the toolkit's own has less than 2. True if anything had to change.
bool makeGreyedReadable(QPalette& palette);

} // namespace screenkit
