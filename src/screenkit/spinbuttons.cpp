#include "screenkit/spinbuttons.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "screenkit/look.h"

namespace screenkit {

std::optional<Spun> spun(const SpinRule& rule, double value, int direction) {
    constexpr double grain = 1e-9; // steps of a tenth may end a hair beside the limit
    const double step = rule.step();
    if (step == 0 || (rule.idleAtZero && std::fabs(value) < grain)) return {};
    double next = value + direction * step;
    if (std::fabs(next) < grain) next = 0;
    const bool isDown = next < value;
    if (isDown && rule.floor && next < *rule.floor + (rule.holdsFloor ? -grain : grain))
        return rule.wrapsTo ? std::optional(Spun{*rule.wrapsTo, rule.rings}) : std::nullopt;
    if (!isDown && rule.ceiling && next > *rule.ceiling + grain)
        return rule.wrapsTo ? std::optional(Spun{step, false}) : std::nullopt;
    return Spun{next, false};
}

SpinButtons::SpinButtons(const QString& name, std::function<bool(int)> step, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto add = [&](Qt::ArrowType arrow, const QString& part, const QString& tip, int direction) {
        auto* button = new QToolButton(this);
        button->setObjectName(name + part);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        connect(button, &QToolButton::clicked, this, [button, step, direction] {
            if (!step(direction)) button->setDown(false); // a message box gets the mouse release instead
        });
        layout->addWidget(button);
    };
    add(Qt::UpArrow, "Up", tr("More"), 1);
    add(Qt::DownArrow, "Down", tr("Less"), -1);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SpinButtons::sizeHint() const {
    const int line = look::lineHeight(this);
    return {line, line * 3 / 2};
}

} // namespace screenkit
