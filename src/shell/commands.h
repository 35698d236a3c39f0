#pragma once

#include <span>

namespace shell {

/// One item of the menu: its name, its caption, its parent item ("" for the menu bar), the screen that it opens and its
/// shortcut key. If it does something other than opening a screen, menuactions.cpp has its action under its name. An
/// item with children is a drop-down.
struct MenuItem {
    const char* name;
    const char* caption;
    const char* parent;
    const char* screen = "";
    const char* shortcut = "";
};

/// The whole menu; each item comes after its parent. Parents without a caption are pop-up menus of the toolbar and do
/// not appear in the menu bar.
std::span<const MenuItem> menuItems();

/// One toolbar button: its icon, its tip, and its menu item (a drop-down pops up).
struct ToolButton {
    const char* icon;
    const char* tip;
    const char* item;
};

std::span<const ToolButton> toolButtons();

} // namespace shell
