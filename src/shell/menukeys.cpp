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
        break;
    }
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Alt || !std::exchange(m_altAlone, false)) break;
        openMenu();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate: m_altAlone = false; break;
    default: break;
    }
    return false;
}

void MenuKeys::openMenu() {
    const auto items = m_window->menuBar()->actions();
    const auto first = std::find_if(items.begin(), items.end(), [](auto* item) { return item->isEnabled(); });
    if (first != items.end()) m_window->menuBar()->setActiveAction(*first);
}

} // namespace shell
