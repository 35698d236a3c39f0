#pragma once

#include <QWidget>
#include <functional>
#include <optional>

namespace screenkit {

/// How spin buttons step a number, and what happens at the ends.
struct SpinRule {
    std::function<double()> step = [] { return 1.0; }; ///< asked at each step; with 0 the buttons do nothing
    bool idleAtZero = false;                           ///< a field that is 0 is not stepped
    std::optional<double> floor = {};
    bool holdsFloor = true; ///< the floor itself can be stepped to; otherwise meeting it counts as passing it
    std::optional<double> ceiling = {};
    /// Where a step down past the floor leads, and then one up past the ceiling leads to one step; without it both
    /// stop.
    std::optional<double> wrapsTo = {};
    bool rings = false;                   ///< the bell on the way from the floor to `wrapsTo`
    std::function<QWidget*()> focus = {}; ///< where a click puts the focus; by default it stays where it is
};

struct Spun {
    double value;
    bool rings;
};

/// Where a step up (1) or down (-1) leads; nothing if the rule has none there. What comes within 1e-9 of 0 is 0.
std::optional<Spun> spun(const SpinRule& rule, double value, int direction);

/// A pair of small up and down buttons that step a field. They take no focus; a held button repeats until a step is
/// refused. The field beside them steps by the Up and Down keys too (see Screen::spin).
class SpinButtons : public QWidget {
    Q_OBJECT
public:
    /// step: called with +1 or -1; false if it was refused.
    SpinButtons(const QString& name, std::function<bool(int)> step, QWidget* parent = nullptr);
    QSize sizeHint() const override;
};

} // namespace screenkit
