#pragma once

#include <QWidget>
#include <functional>

namespace screenkit {

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
