#pragma once

#include <cmath>

namespace base {

/// Puts a result in its place in the record; one that is not finite leaves the place as it was, since no file takes it
/// and every later save of the client would fail on it.
inline void keepFinite(double& place, double result) {
    if (std::isfinite(result)) place = result;
}

} // namespace base
