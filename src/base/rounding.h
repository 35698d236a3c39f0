#pragma once

namespace base {

/// x rounded to a whole number, ties to even: 0.5 gives 0, 1.5 gives 2, -2.5 gives -2. NaN and infinities are returned.
double roundHalfEven(double x);

/// x rounded to `decimals` places (0 to 15), ties to even, by scaling with a power of ten.
///
/// A tie is decided on the scaled double, as on paper: 2.675 to 2 places scales to 267.5 and gives 2.68.
/// An x whose scaled value has no fraction or would overflow is returned unchanged.
double roundHalfEven(double x, int decimals);

/// A single-precision figure as its shortest decimal: 11.35, where the plain double would be 11.3500003815. NaN and
/// infinities are returned.
double shortestDecimal(float x);

} // namespace base
