#pragma once

#include "screenkit/numberfield.h"

/// Limits that the screens of several needs analyses share, with their boxes.
namespace analyses {

/// A period of whole years, 0 to `most`.
screenkit::NumberKind periodUpTo(int most);

extern const screenkit::NumberKind coverPeriod; ///< years that an income is wanted for, 0 to 50
extern const screenkit::NumberKind inflation;   ///< percent a year, -5 to 30
extern const screenkit::NumberKind bankRate;    ///< percent a year, 0 to 50

} // namespace analyses
