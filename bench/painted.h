#pragma once

#include <QApplication>
#include <QEvent>
#include <QMdiArea>

namespace bench {

/// Watches for the paint event of the main window's central area, which is painted last.
class Painted : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }

    /// Runs the event loop until the window is painted.
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

/// Writes the peak memory of this process (VmHWM, KiB) as one line to the standard output, which tells the bench that
/// the window is painted, and ends the process at once.
[[noreturn]] void reportMemoryAndExit();

} // namespace bench
