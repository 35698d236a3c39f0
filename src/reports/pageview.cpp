#include "reports/pageview.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "reports/face.h"
#include "reports/layout.h"

namespace reports {

PageView::PageView(std::shared_ptr<const Layout> layout, QWidget* parent)
    : QAbstractScrollArea(parent), m_layout(std::move(layout)) {
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Dark);
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setCursor(Qt::OpenHandCursor);
    viewport()->setMouseTracking(true); // a link shows itself by its cursor
    setFocusPolicy(Qt::StrongFocus);
    m_scale = 1;
}

int PageView::pageCount() const { return m_layout->count(); }

double PageView::gap() const { return fontMetrics().height() * 1.2; }

QSizeF PageView::pageSize(double scale) const { return Layout::pageSize() * (scale * logicalDpiX() / unitsPerInch); }

/// A page's rectangle in the viewport at the current scroll position.
QRectF PageView::pageArea(int page) const {
    const QSizeF size = pageSize(m_scale);
    const double contentWidth = size.width() + 2 * gap();
    const double left = contentWidth <= viewport()->width() ? (viewport()->width() - size.width()) / 2
                                                            : gap() - horizontalScrollBar()->value();
    const double top = gap() + page * (size.height() + gap()) - verticalScrollBar()->value();
    // Whole pixels keep the paper's edges sharp.
    return {std::round(left), std::round(top), std::round(size.width()), std::round(size.height())};
}

int PageView::currentPage() const {
    const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const int page = static_cast<int>(middle / (pageSize(m_scale).height() + gap()));
    return std::clamp(page, 0, pageCount() - 1);
}

void PageView::showPage(int page) {
    const int wanted = std::clamp(page, 0, pageCount() - 1);
    verticalScrollBar()->setValue(static_cast<int>(wanted * (pageSize(m_scale).height() + gap())));
}

double PageView::fittingScale() const {
    const QSizeF natural = pageSize(1);
    // Space for the scroll bar is reserved before it appears; otherwise the width would change when it does.
    const int bar = verticalScrollBar()->isVisible() ? 0 : verticalScrollBar()->sizeHint().width();
    const double width = (viewport()->width() - bar - 2 * gap()) / natural.width();
    if (m_zoom == Zoom::pageWidth) return width;
    return std::min(width, (viewport()->height() - 2 * gap()) / natural.height());
}

void PageView::setZoom(Zoom zoom) {
    m_zoom = zoom;
    if (zoom != Zoom::fixed) rescale(fittingScale());
}

void PageView::setScale(double scale) {
    m_zoom = Zoom::fixed;
    rescale(scale);
}

/// Changes the scale; the place in the middle of the view stays there.
void PageView::rescale(double scale) {
    const double pitch = pageSize(m_scale).height() + gap();
    const bool atTop = verticalScrollBar()->value() == 0;
    const double place = (verticalScrollBar()->value() + viewport()->height() / 2.0) / pitch;
    m_scale = std::clamp(scale, 0.1, 8.0);
    updateScrollBars();
    const double newPitch = pageSize(m_scale).height() + gap();
    if (!atTop) verticalScrollBar()->setValue(static_cast<int>(place * newPitch - viewport()->height() / 2.0));
    viewport()->update();
    emit scaleChanged(m_scale);
    notePage();
}

void PageView::updateScrollBars() {
    const QSizeF size = pageSize(m_scale);
    const double height = gap() + pageCount() * (size.height() + gap());
    const double width = size.width() + 2 * gap();
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(height) - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(fontMetrics().height() * 3);
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().height() * 3);
}

void PageView::notePage() {
    if (currentPage() == m_noted) return;
    m_noted = currentPage();
    setAccessibleName(tr("Page %1 of %2").arg(m_noted + 1).arg(pageCount()));
    setAccessibleDescription(m_layout->textOf(m_noted));
    emit pageChanged(m_noted);
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Dark));
    painter.setRenderHint(QPainter::Antialiasing);
    for (int page = 0; page < pageCount(); ++page) {
        const QRectF area = pageArea(page);
        if (area.top() > event->rect().bottom()) break;
        const QRectF shadow = area.adjusted(1, 2, 2, 3);
        if (!shadow.intersects(event->rect())) continue;
        painter.fillRect(shadow, QColor(0, 0, 0, 70));
        painter.fillRect(area, Qt::white); // paper is white even in a dark theme
        const double scale = area.width() / Layout::pageSize().width();
        const QRectF visible = area.intersected(event->rect()).translated(-area.topLeft());
        painter.save();
        painter.setClipRect(area.intersected(event->rect()));
        painter.translate(area.topLeft());
        painter.scale(scale, scale);
        m_layout->paint(painter, page, {visible.topLeft() / scale, visible.size() / scale});
        painter.restore();
    }
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    if (m_zoom == Zoom::fixed)
        updateScrollBars();
    else
        rescale(fittingScale());
    notePage();
}

void PageView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy); // repaints only the strip that comes into view
    notePage();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    setScale(m_scale * std::pow(1.1, event->angleDelta().y() / 120.0));
    event->accept();
}

int PageView::targetAt(const QPointF& place) const {
    for (int page = 0; page < pageCount(); ++page) {
        const QRectF area = pageArea(page);
        if (!area.contains(place)) continue;
        const QPointF onPage = (place - area.topLeft()) * (Layout::pageSize().width() / area.width());
        for (const PlacedLink& link : m_layout->pages[static_cast<std::size_t>(page)].links)
            if (link.area.contains(onPage)) return m_layout->firstPages[static_cast<std::size_t>(link.section)];
    }
    return -1;
}

void PageView::mousePressEvent(QMouseEvent* event) {
    m_dragFrom = m_pressedAt = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        viewport()->setCursor(targetAt(event->position()) < 0 ? Qt::OpenHandCursor : Qt::PointingHandCursor);
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QPoint moved = event->pos() - m_dragFrom;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
    m_dragFrom = event->pos();
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
    viewport()->setCursor(Qt::OpenHandCursor);
    const bool dragged = (event->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    const int target = dragged || event->button() != Qt::LeftButton ? -1 : targetAt(event->position());
    if (target >= 0) showPage(target);
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) // forward by a screenful, as in other readers
        verticalScrollBar()->triggerAction(event->modifiers().testFlag(Qt::ShiftModifier)
                                               ? QAbstractSlider::SliderPageStepSub
                                               : QAbstractSlider::SliderPageStepAdd);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

} // namespace reports
