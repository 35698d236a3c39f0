#include "shell/placing.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>
#include <algorithm>

namespace shell {

namespace {

constexpr QSize usualSize(947, 692);
// The frame's size is unknown before the window is shown: room for the widest one in use.
constexpr QMargins frameRoom(5, 38, 5, 5);

QSize roomOf(const QMdiArea* area) { return area->viewport()->size(); }

QSize naturalSize(const QMdiArea* area, const QMdiSubWindow* window) {
    const QSize frame = window->sizeHint() - window->widget()->sizeHint();
    return (window->widget()->sizeHint() + frame).boundedTo(roomOf(area));
}

} // namespace

QRect startGeometry(const QRect& available) {
    const QRect room = available.marginsRemoved(frameRoom);
    const QSize large(available.width() * 2 / 3, available.height() * 4 / 5);
    const QSize size = usualSize.expandedTo(large).boundedTo(room.size());
    const QSize free = available.size() - size, left = room.size() - size;
    const QPoint middle(std::min(free.width() / 2, left.width()), std::min(free.height() / 2, left.height()));
    return {available.topLeft() + middle, size};
}

void placeAtTopLeft(QMdiArea* area, QMdiSubWindow* window) {
    window->resize(naturalSize(area, window));
    window->move(0, 0);
}

void bringIntoView(QMdiArea* area, QMdiSubWindow* window) {
    if (window->isMaximized()) return;
    const QSize left = roomOf(area) - window->size();
    if (left.width() < 0 || left.height() < 0) return;
    window->move(std::clamp(window->x(), 0, left.width()), std::clamp(window->y(), 0, left.height()));
}

void cascade(QMdiArea* area) {
    QList<QMdiSubWindow*> open = area->subWindowList(QMdiArea::StackingOrder);
    open.removeIf([](const QMdiSubWindow* window) { return !window->isVisible() || window->isMinimized(); });
    const int step = area->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, area);
    const auto others = std::max<qsizetype>(1, open.size() - 1);
    for (qsizetype i = 0; i < open.size(); ++i) {
        if (open[i]->isMaximized()) open[i]->showNormal();
        open[i]->resize(naturalSize(area, open[i]));
        const QSize left = roomOf(area) - open[i]->size();
        const auto away = [&](int room) { return static_cast<int>(i * std::min<qsizetype>(step, room / others)); };
        open[i]->move(away(left.width()), away(left.height()));
    }
}

void arrangeIcons(QMdiArea* area) {
    int left = 0;
    for (QMdiSubWindow* window : area->subWindowList()) {
        if (!window->isMinimized() || !window->isVisible()) continue;
        if (left + window->width() > roomOf(area).width()) left = 0;
        window->move(left, roomOf(area).height() - window->height());
        left += window->width();
    }
}

} // namespace shell
