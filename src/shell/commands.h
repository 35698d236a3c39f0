#pragma once

#include <span>

namespace shell {

/// One item of the menu: its name, its caption as it stands, the item that it hangs under ("" for the bar itself) the
/// screen that it opens and its shortcut key. What it does besides opening a screen stands in menuactions.cpp, under
/// its name; an item under which others hang is a drop-down.
struct MenuItem {
    const char* name;
    const char* caption;
    const char* parent;
    const char* screen = "";
    const char* shortcut = "";
};

/// The whole menu, each item behind its parent. Parents without a caption are the toolbar's pop-ups and stand in no
/// bar.
std::span<const MenuItem> menuItems();

/// One button of the toolbar: its icon, its tip, and the menu item that it stands for (a drop-down: it pops up).
struct ToolButton {
    const char* icon;
    const char* tip;
    const char* item;
};

std::span<const ToolButton> toolButtons();

} // namespace shell
