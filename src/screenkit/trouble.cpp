#include "screenkit/trouble.h"

#include <QGuiApplication>
#include <exception>

#include "screenkit/desk.h"
#include "store/error.h"

namespace screenkit {

void showTrouble(Desk& desk, const QString& what, const store::Error& error) {
    desk.tell(BoxStyle::critical,
              QObject::tr("Marlowbeck could not %1.\n%2").arg(what, QString::fromStdString(error.message())),
              "Marlowbeck");
}

bool guarded(Desk& desk, const QString& what, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const store::Error& error) {
        showTrouble(desk, what, error);
    } catch (const std::exception& error) { // out of memory and the like: the open work must not be lost
        showTrouble(desk, what, store::Error(store::Number::reserved, {}, error.what()));
    }
    return false;
}

BusyCursor::BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
BusyCursor::~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
NormalCursor::NormalCursor() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
NormalCursor::~NormalCursor() { QGuiApplication::restoreOverrideCursor(); }

} // namespace screenkit
