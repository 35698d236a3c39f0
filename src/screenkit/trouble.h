#pragma once

#include <QString>
#include <functional>

namespace store {
class Error;
}

namespace screenkit {

class Desk;

/// The box for a failure that no screen has words of its own for: what could not be done, with which file, why, what
/// the user can do about it, the number last in brackets.
void showTrouble(Desk& desk, const QString& what, const store::Error& error);

/// Runs what an action does. A failure shows the box above and gives false; the program goes on, with the record as it
/// stands. what: the action in words that follow "Marlowbeck could not", e.g. "save the client".
bool guarded(Desk& desk, const QString& what, const std::function<void()>& action);

/// The busy cursor for as long as it lives.
class BusyCursor {
public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

/// The normal cursor for as long as it lives, whatever is under way: for boxes.
class NormalCursor {
public:
    NormalCursor();
    ~NormalCursor();
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;
};

} // namespace screenkit
