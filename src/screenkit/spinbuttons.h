#pragma once

#include <QWidget>
#include <functional>

namespace screenkit {

/// A pair of small up and down buttons that step a field. They take no focus; a held button repeats. The field beside
/// them steps by the Up and Down keys too (see Screen::spin).
class SpinButtons : public QWidget {
    Q_OBJECT
public:
    /// step: called with +1 or -1.
    SpinButtons(const QString& name, std::function<void(int)> step, QWidget* parent = nullptr);
    QSize sizeHint() const override;
};

} // namespace screenkit
