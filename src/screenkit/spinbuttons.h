#pragma once

#include <QWidget>
#include <functional>
#include <optional>

namespace screenkit {

/// How spin buttons step a number, and what happens at the ends.
struct SpinRule {
    std::function<double()> step = [] { return 1.0; }; ///< called at each step; if it returns 0 the buttons do nothing
    bool idleAtZero = false;                           ///< a field that is 0 is not stepped
    std::optional<double> floor = {};
    bool holdsFloor = true; ///< the floor itself can be reached; otherwise reaching it counts as passing it
    std::optional<double> ceiling = {};
    /// A step down past the floor leads to this value, and a step up past the ceiling then leads to one step; without
    /// it both stop.
    std::optional<double> wrapsTo = {};
    bool rings = false;                   ///< rings the bell when going from the floor to `wrapsTo`
    std::function<QWidget*()> focus = {}; ///< where a click moves the focus; by default it stays
};

struct Spun {
    double value;
    bool rings;
};

/// The result of a step up (1) or down (-1); nothing if the rule allows none. A result within 1e-9 of 0 is 0.
std::optional<Spun> spun(const SpinRule& rule, double value, int direction);

/// Two small buttons that step a field up and down. They take no focus; holding one repeats until a step is refused.
/// The Up and Down keys of the field do the same (see Screen::spin).
class SpinButtons : public QWidget {
    Q_OBJECT
public:
    /// step: called with +1 or -1; false if it was refused.
    SpinButtons(const QString& name, std::function<bool(int)> step, QWidget* parent = nullptr);
    QSize sizeHint() const override;
};

} // namespace screenkit
