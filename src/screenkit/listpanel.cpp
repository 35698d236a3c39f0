#include "screenkit/listpanel.h"

#include "screenkit/icon.h"

namespace screenkit {

void showInUse(QPushButton* opener, bool on) {
    opener->setIcon(icon(on ? "itemised" : "itemise"));
    opener->setAccessibleDescription(on ? QObject::tr("In use") : QString());
}

} // namespace screenkit
