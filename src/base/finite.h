#pragma once

#include <cmath>

namespace base {

/// Stores a result in the record. A result that is not finite leaves the old value: no file can hold it, so every later
/// save of the client would fail.
inline void keepFinite(double& place, double result) {
    if (std::isfinite(result)) place = result;
}

} // namespace base
