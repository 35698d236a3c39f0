#pragma once

#include <QString>
#include <functional>

namespace store {
class Error;
}

namespace screenkit {

class Desk;

/// The box for a failure without a message of its own: what failed, with which file, why, what the user can do, and the
/// number in brackets at the end.
void showTrouble(Desk& desk, const QString& what, const store::Error& error);

/// Runs an action. A failure shows the box above and returns false; the program goes on, with the record as it is.
/// what: the action in words that follow "Marlowbeck could not", e.g. "save the client".
bool guarded(Desk& desk, const QString& what, const std::function<void()>& action);

/// Shows the busy cursor during its lifetime.
class BusyCursor {
public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

/// Shows the normal cursor during its lifetime, for boxes.
class NormalCursor {
public:
    NormalCursor();
    ~NormalCursor();
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;
};

} // namespace screenkit
