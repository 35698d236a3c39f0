#include "screenkit/pages.h"

#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <utility>

namespace screenkit {

namespace {

QWidget* firstStop(const QWidget* page, Qt::FocusPolicy policy) {
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain())
        if (page->isAncestorOf(next) && (next->focusPolicy() & policy) == policy && next->isEnabled() &&
            next->isVisibleTo(page))
            return next;
    return nullptr;
}

} // namespace

Page pageOf(const QWidget* control) {
    for (; control != nullptr && control->parentWidget() != nullptr; control = control->parentWidget()) {
        auto* book = qobject_cast<QTabWidget*>(control->parentWidget()->parentWidget());
        const int index = book != nullptr ? book->indexOf(control) : -1;
        if (index >= 0) return {book, index};
    }
    return {};
}

void turnToPage(QTabWidget* book, int page) {
    book->setCurrentIndex(page);
    QWidget* stop = firstStop(book->widget(page), Qt::TabFocus);
    if (stop == nullptr) stop = firstStop(book->widget(page), Qt::ClickFocus);
    if (stop == nullptr) stop = book->tabBar();
    stop->setFocus(Qt::ShortcutFocusReason);
}

void turnPagesByKey(QTabWidget* book, QWidget* area) {
    for (const auto& [key, step] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
        auto* shortcut = new QShortcut(Qt::CTRL | key, area, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, book, [book, way = step] {
            turnToPage(book, (book->currentIndex() + way + book->count()) % book->count());
        });
    }
}

} // namespace screenkit
