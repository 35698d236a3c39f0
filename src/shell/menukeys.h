#pragma once

#include <QObject>

class QMainWindow;

namespace shell {

/// Opens the menu bar by F10, and by Alt pressed and released alone, wherever in its window the focus is. It opens the
/// first menu with its items, so that the user sees how to go on; Escape returns the focus.
class MenuKeys : public QObject {
    Q_OBJECT
public:
    explicit MenuKeys(QMainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openMenu();
    bool isInFront() const;

    QMainWindow* m_window;
    bool m_altAlone = false; ///< Alt is down and nothing else has happened since
};

} // namespace shell
