#pragma once

#include <QString>

namespace shell {

class MDIForm1;

/// The action of a menu item that opens no screen. `run` is empty if the item only toggles its check mark.
struct MenuAction {
    const char* item;
    void (*run)(MDIForm1& window);
};

/// The action of a menu item; nothing if it opens a screen or if its action does not exist yet (it is disabled). The
/// front screen has passed its checks before it runs, and a failure that it throws is shown to the user.
const MenuAction* menuAction(const QString& item);

} // namespace shell
