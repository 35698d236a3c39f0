#include "reports/output/graphview.h"

#include <QChart>
#include <QGraphicsEllipseItem>
#include <QGraphicsTextItem>
#include <QKeyEvent>
#include <QLineSeries>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <limits>

namespace reports {

GraphView::GraphView(QWidget* parent) : QChartView(parent) {
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Graph");
    setMinimumSize(240, 160);
    redraw();
}

void GraphView::show(const Graph& graph) {
    m_graph = graph;
    setAccessibleName("Graph: " + QString::fromStdString(graph.title).trimmed());
    redraw();
}

void GraphView::redraw() {
    m_look = screenLook(palette(), font());
    const std::unique_ptr<QChart> old(chart());
    delete m_box; // with its label; both would stay in the scene when its chart is replaced
    delete m_ring;
    setChart(drawChart(m_graph, m_look).release());
    setBackgroundBrush(m_look.background);
    buildCallout();
    pointAt({});
}

void GraphView::buildCallout() {
    m_ring = scene()->addEllipse({}, QPen(m_look.text, m_look.font.pixelSize() * 0.14));
    m_box = scene()->addPath({}, QPen(m_look.grid.darker(120)), m_look.background);
    m_label = new QGraphicsTextItem(m_box);
    m_label->setFont(m_look.font);
    m_label->setDefaultTextColor(m_look.text);
    m_ring->setZValue(20);
    m_box->setZValue(21);
}

bool GraphView::hasValue(int point, int series) const {
    if (point < 1 || point > m_graph.points || series < 0) return false;
    if (series >= static_cast<int>(m_graph.series.size())) return false;
    return drawable(m_graph.series[static_cast<std::size_t>(series)].values[static_cast<std::size_t>(point) - 1]);
}

QPointF GraphView::positionOf(int point, int series) const {
    const auto lines = linesOf(*chart());
    const auto s = static_cast<std::size_t>(series);
    const double value = m_graph.series[s].values[static_cast<std::size_t>(point) - 1];
    return chart()->mapToScene(chart()->mapToPosition({static_cast<double>(point), value}, lines[s]));
}

GraphView::Cursor GraphView::nearestTo(QPointF position) const {
    const auto lines = linesOf(*chart());
    const QPointF inChart = chart()->mapFromScene(position);
    if (lines.empty() || m_graph.points == 0 || !chart()->plotArea().contains(inChart)) return {};
    const double x = chart()->mapToValue(inChart, lines.front()).x();
    Cursor nearest;
    double distance = std::numeric_limits<double>::max();
    const int point = std::clamp(static_cast<int>(std::lround(x)), 1, m_graph.points);
    for (int series = 0; series < static_cast<int>(lines.size()); ++series) {
        if (!hasValue(point, series)) continue;
        const double away = std::fabs(positionOf(point, series).y() - position.y());
        if (away < distance) nearest = {point, series};
        distance = std::min(distance, away);
    }
    return nearest;
}

void GraphView::pointAt(Cursor cursor) {
    m_cursor = cursor;
    const bool shown = cursor.point > 0;
    m_box->setVisible(shown);
    m_ring->setVisible(shown);
    m_calloutText.clear();
    if (shown) placeCallout();
    // A screen reader reads the description whenever it changes.
    setAccessibleDescription(shown ? m_calloutText : "Left and Right show the values, Up and Down change the line");
}

QString GraphView::calloutHtml() const {
    const QString unit = QString::fromLatin1(pointUnit(m_graph).data());
    QString html = QString("<b>%1 %2</b><table cellspacing='0'>").arg(unit).arg(m_cursor.point);
    for (int i = 0; i < static_cast<int>(m_graph.series.size()); ++i) {
        if (!hasValue(m_cursor.point, i)) continue;
        const GraphSeries& series = m_graph.series[static_cast<std::size_t>(i)];
        const double value = series.values[static_cast<std::size_t>(m_cursor.point) - 1];
        const QString weight = i == m_cursor.series ? "bold" : "normal";
        const QColor colour = m_look.series[static_cast<std::size_t>(i) % m_look.series.size()];
        html += QString("<tr style='font-weight:%1'><td><span style='color:%2'>\u25a0</span> %3&nbsp;&nbsp;</td>"
                        "<td align='right'>%4</td></tr>")
                    .arg(weight, colour.name(), QString::fromStdString(series.name).toHtmlEscaped(),
                         QString::fromStdString(amountText(value)).replace(' ', "&nbsp;"));
    }
    return html + "</table>";
}

// Beside the point if there is space, and always inside the window.
void GraphView::placeCallout() {
    const QPointF at = positionOf(m_cursor.point, m_cursor.series);
    const double unit = m_look.font.pixelSize();
    m_ring->setRect(QRectF(at.x() - unit * 0.6, at.y() - unit * 0.6, unit * 1.2, unit * 1.2));
    m_label->setHtml(calloutHtml());
    m_calloutText = m_label->toPlainText();
    const QSizeF size = m_label->boundingRect().size();
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(0, 0), size), unit * 0.3, unit * 0.3);
    m_box->setPath(outline);
    const QRectF room = chart()->geometry();
    double x = at.x() + unit * 1.2;
    if (x + size.width() > room.right()) x = at.x() - unit * 1.2 - size.width();
    const double y =
        std::clamp(at.y() - size.height() - unit, room.top(), std::max(room.top(), room.bottom() - size.height()));
    m_box->setPos(std::max(room.left(), x), y);
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
    QChartView::mouseMoveEvent(event);
    pointAt(nearestTo(mapToScene(event->pos())));
}

void GraphView::leaveEvent(QEvent* event) {
    QChartView::leaveEvent(event);
    pointAt({});
}

void GraphView::focusInEvent(QFocusEvent* event) {
    QChartView::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey) moveAlong(1); // shows where the keyboard is
}

void GraphView::focusOutEvent(QFocusEvent* event) {
    QChartView::focusOutEvent(event);
    pointAt({});
}

void GraphView::resizeEvent(QResizeEvent* event) {
    QChartView::resizeEvent(event);
    if (m_box != nullptr) pointAt({});
}

void GraphView::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    const bool looks = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (looks && m_box != nullptr) redraw();
}

void GraphView::moveAlong(int point) {
    const int wanted = std::clamp(point, 1, std::max(1, m_graph.points));
    for (int i = 0; i < static_cast<int>(m_graph.series.size()); ++i) {
        const int series = (m_cursor.series + i) % static_cast<int>(m_graph.series.size());
        if (hasValue(wanted, series)) return pointAt({wanted, series});
    }
}

void GraphView::moveAcross(int by) {
    const int count = static_cast<int>(m_graph.series.size());
    for (int i = 1; i <= count; ++i) {
        const int series = ((m_cursor.series + by * i) % count + count) % count;
        if (hasValue(std::max(1, m_cursor.point), series)) return pointAt({std::max(1, m_cursor.point), series});
    }
}

void GraphView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left: return moveAlong(m_cursor.point - 1);
    case Qt::Key_Right: return moveAlong(m_cursor.point + 1);
    case Qt::Key_Home: return moveAlong(1);
    case Qt::Key_End: return moveAlong(m_graph.points);
    case Qt::Key_Up: return moveAcross(-1);
    case Qt::Key_Down: return moveAcross(1);
    case Qt::Key_Escape:
        if (m_cursor.point > 0) return pointAt({});
        [[fallthrough]];
    default: QChartView::keyPressEvent(event);
    }
}

} // namespace reports
