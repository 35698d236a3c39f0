#pragma once

#include <QObject>

class QMainWindow;

namespace shell {

/// Opens the menu bar by F10, and by Alt pressed and released alone, wherever in its window the focus is. It opens the
/// first menu with its items, so that the user sees how to go on; Escape returns the focus. Enter and Space choose an
/// item of the bar that has no menu, once the arrow keys have come to it.
class MenuKeys : public QObject {
    Q_OBJECT
public:
    explicit MenuKeys(QMainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openMenu();
    /// True if the key chose an item of the bar.
    bool choosesItem(int key);
    bool isInFront() const;

    QMainWindow* m_window;
    bool m_altAlone = false; ///< Alt is down and nothing else has happened since
    bool m_inMenu = false;   ///< the user walks through the menus by key; a mouse over the bar does not count
};

} // namespace shell
