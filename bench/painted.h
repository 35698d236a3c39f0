#pragma once

#include <QApplication>
#include <QEvent>
#include <QMdiArea>

namespace bench {

/// Watches for the paint that fills the main window's area, the last of its parts to be painted.
class Painted : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }

    /// Lets the program run until the window stands painted.
    void wait() {
        while (!m_painted)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && qobject_cast<QMdiArea*>(watched->parent()) != nullptr) m_painted = true;
        return false;
    }

private:
    bool m_painted = false;
};

/// Writes the most memory that this process has held (VmHWM, KiB) as one line to the standard output, which tells the
/// bench that the window stands, and ends the process then and there.
[[noreturn]] void tellAndLeave();

} // namespace bench
