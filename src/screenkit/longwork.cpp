#include "screenkit/longwork.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

#include "screenkit/trouble.h"

namespace screenkit {

namespace {

constexpr int whole = 1000;
constexpr int shownAfterMilliseconds = 400;
constexpr int milliseconds = 40; // between two paintings: more often would slow the work down

class WorkBox {
public:
    explicit WorkBox(const QString& what)
        : m_dialog(what, QObject::tr("Cancel"), 0, whole, QApplication::activeWindow()) {
        m_dialog.setObjectName("Animation1");
        m_dialog.setWindowTitle("Marlowbeck");
        m_dialog.setWindowModality(Qt::ApplicationModal);
        m_dialog.setMinimumDuration(shownAfterMilliseconds);
        m_dialog.setAutoClose(false);
        m_dialog.setAutoReset(false);
        m_dialog.setValue(0);
        m_last.start();
    }
    bool tell(double done) {
        if (m_last.elapsed() < milliseconds) return true;
        m_last.restart();
        // The box appears once its value changes; nothing else must be clicked before that.
        const int value = done < 0 ? std::max(1, m_dialog.value()) : static_cast<int>(done * whole);
        m_dialog.setValue(value);
        QApplication::processEvents(m_dialog.isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
        return !m_dialog.wasCanceled();
    }

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_last;
};

} // namespace

bool runLongWork(const QString& what, const std::function<void(const store::Progress&)>& work) {
    const BusyCursor busy;
    WorkBox box(what);
    try {
        work([&box](double done) { return box.tell(done); });
        return true;
    } catch (const store::Cancelled&) {
        return false;
    }
}

} // namespace screenkit
