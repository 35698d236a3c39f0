#pragma once

#include <QString>

namespace shell {

class MDIForm1;

/// What a menu item does that opens no screen. `run` is empty where the item's check mark alone does it.
struct MenuAction {
    const char* item;
    void (*run)(MDIForm1& window);
};

/// The action of a menu item; nothing for one that opens a screen, or whose action does not exist yet (it is greyed
/// out). The screen in front has passed its checks when it runs, and a failure that it throws is told.
const MenuAction* menuAction(const QString& item);

} // namespace shell
