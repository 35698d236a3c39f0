#include "shell/menukeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace shell {

MenuKeys::MenuKeys(QMainWindow* window) : QObject(window), m_window(window) {
    connect(new QShortcut(Qt::Key_F10, window), &QShortcut::activated, this, &MenuKeys::openMenu);
    qApp->installEventFilter(this); // the focus may be anywhere in the window, and some controls consume these keys
}

bool MenuKeys::isInFront() const {
    return QApplication::activeWindow() == m_window && QApplication::activePopupWidget() == nullptr;
}

bool MenuKeys::eventFilter(QObject*, QEvent* event) {
    constexpr auto others = Qt::ControlModifier | Qt::ShiftModifier | Qt::MetaModifier;
    switch (event->type()) {
    case QEvent::ShortcutOverride: // a letter that opens a menu never arrives as a key press
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        m_altAlone = key->key() == Qt::Key_Alt && (key->modifiers() & others) == 0 && isInFront();
        if (event->type() == QEvent::KeyPress && choosesItem(key->key())) return true;
        break;
    }
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Alt || !std::exchange(m_altAlone, false)) break;
        openMenu();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate: m_altAlone = m_inMenu = false; break;
    default: break;
    }
    return false;
}

bool MenuKeys::choosesItem(int key) {
    const bool walks = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool chooses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (!isInFront()) { // a menu is open, and knows its keys
        if (!walks && chooses) m_inMenu = false;
        if (walks) m_inMenu = true;
        return false;
    }
    if (!walks && !std::exchange(m_inMenu, false)) return false;
    QMenuBar* bar = m_window->menuBar();
    QAction* item = bar->activeAction();
    if (!chooses || item == nullptr || item->menu() != nullptr) return false;
    bar->setActiveAction(nullptr);
    item->trigger();
    return true;
}

void MenuKeys::openMenu() {
    m_inMenu = true;
    const auto items = m_window->menuBar()->actions();
    const auto first = std::find_if(items.begin(), items.end(), [](auto* item) { return item->isEnabled(); });
    if (first != items.end()) m_window->menuBar()->setActiveAction(*first);
}

} // namespace shell
