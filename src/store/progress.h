#pragma once

#include <exception>
#include <functional>

namespace store {

/// Told several times a second, during long work, which part of it is done: from 0 to 1, or below 0 while that can't be
/// said. False cancels the work. It must not throw.
using Progress = std::function<bool(double done)>;

/// Thrown by work that was cancelled, after it has left everything as it was.
class Cancelled : public std::exception {
public:
    const char* what() const noexcept override { return "The work was cancelled."; }
};

/// Tells the progress; throws Cancelled if that cancels the work.
inline void tell(const Progress& progress, double done) {
    if (progress && !progress(done)) throw Cancelled();
}

} // namespace store
