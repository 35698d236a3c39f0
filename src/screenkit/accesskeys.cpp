#include "screenkit/accesskeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <functional>

#include "screenkit/pages.h"
#include "screenkit/panel.h"
#include "screenkit/screen.h"

namespace screenkit {

namespace {

struct Target {
    QWidget* focus; ///< has the focus or gets it; its position decides which target is next
    std::function<void()> act;
};

/// The panel with the focus, or else the screen with it: only its keys count.
QWidget* scopeOf(QWidget* focused) {
    for (QWidget* widget = focused; widget != nullptr; widget = widget->parentWidget())
        if (qobject_cast<Panel*>(widget) != nullptr || qobject_cast<Screen*>(widget) != nullptr) return widget;
    return nullptr;
}

bool means(const QString& caption, const QKeySequence& pressed) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return !key.isEmpty() && key == pressed;
}

bool reachable(const QWidget* widget) { return widget->isVisible() && widget->isEnabled(); }

/// Also selects the content of a field that has the focus already: its letter means that the user wants to retype it.
void enter(QWidget* field) {
    field->setFocus(Qt::ShortcutFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
}

void turnTo(QTabBar* bar, int tab) {
    auto* book = qobject_cast<QTabWidget*>(bar->parentWidget());
    if (book == nullptr) return bar->setCurrentIndex(tab);
    turnToPage(book, tab);
}

std::vector<Target> targets(QWidget* scope, const QKeySequence& pressed) {
    std::vector<Target> found;
    for (auto* widget : scope->findChildren<QWidget*>()) {
        if (!reachable(widget)) continue;
        auto* button = qobject_cast<QAbstractButton*>(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        auto* bar = qobject_cast<QTabBar*>(widget);
        if (button != nullptr && means(button->text(), pressed))
            found.push_back({button, [button] {
                                 button->setFocus(Qt::ShortcutFocusReason);
                                 button->click();
                             }});
        if (label != nullptr && label->buddy() != nullptr && reachable(label->buddy()) && means(label->text(), pressed))
            found.push_back({label->buddy(), [label] { enter(label->buddy()); }});
        for (int tab = 0; bar != nullptr && tab < bar->count(); ++tab)
            if (means(bar->tabText(tab), pressed)) found.push_back({bar, [bar, tab] { turnTo(bar, tab); }});
    }
    return found;
}

/// Of several targets with the same letter the next one after the focus, cyclically.
const Target& nextOf(const std::vector<Target>& found, const QWidget* focused) {
    for (std::size_t i = 0; i + 1 < found.size(); ++i)
        if (found[i].focus == focused) return found[i + 1];
    return found.front();
}

} // namespace

AccessKeys::AccessKeys(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool AccessKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    auto* focused = QApplication::focusWidget();
    if (key->modifiers() != Qt::AltModifier || watched != focused) return false;
    QWidget* scope = scopeOf(focused);
    if (scope == nullptr) return false;
    const auto found = targets(scope, QKeySequence(key->keyCombination()));
    // A letter without a target, here or in the menu, would be typed as text and could overwrite a selected field.
    if (found.empty()) return event->type() == QEvent::KeyPress && !key->text().isEmpty() && key->text()[0].isPrint();
    event->accept();
    if (event->type() == QEvent::KeyPress) nextOf(found, focused).act();
    return true;
}

} // namespace screenkit
