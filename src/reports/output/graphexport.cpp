#include "reports/output/graphexport.h"

#include <QBuffer>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "reports/output/graphchart.h"

namespace reports {

namespace {

constexpr double marginMillimetres = 12;
constexpr double pictureScale = 2.5; // 240 dots an inch on A4: sharp in a printed letter

// The chart's own unit is 1/96 inch, so that its text has the same size on every device.
QSizeF chartSize(QSizeF millimetres) {
    const QSizeF size = millimetres * 96 / 25.4;
    return {size.width(), std::min(size.height(), size.width() * 1.15)}; // on a tall page lines would look too steep
}

void paintGraph(const Graph& graph, QPainter& painter, QSizeF size, const QRectF& target) {
    QGraphicsScene scene;
    QChart* chart = drawChart(graph, paperLook()).release();
    scene.addItem(chart);
    chart->resize(size);
    chart->layout()->activate();
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, target, QRectF(QPointF(0, 0), size));
}

QSizeF pictureSize(QPageLayout::Orientation orientation) {
    const QPageLayout page(QPageSize(QPageSize::A4), orientation,
                           {marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres},
                           QPageLayout::Millimeter);
    return chartSize(page.paintRect().size());
}

void writePng(const Graph& graph, QSizeF size, QIODevice& out) {
    QImage image((size * pictureScale).toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(static_cast<int>(96 / 0.0254 * pictureScale));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    QPainter painter(&image);
    paintGraph(graph, painter, size, QRectF(QPointF(0, 0), QSizeF(image.size())));
    painter.end();
    image.save(&out, "PNG");
}

void writeSvg(const Graph& graph, QSizeF size, QIODevice& out) {
    QSvgGenerator svg;
    svg.setOutputDevice(&out);
    svg.setTitle(QString::fromStdString(graph.title));
    svg.setSize(size.toSize());
    svg.setViewBox(QRectF(QPointF(0, 0), size));
    svg.setResolution(96);
    QPainter painter(&svg);
    painter.fillRect(QRectF(QPointF(0, 0), size), Qt::white);
    paintGraph(graph, painter, size, QRectF(QPointF(0, 0), size));
}

void writePdf(const Graph& graph, QPageLayout::Orientation orientation, QIODevice& out) {
    QPdfWriter pdf(&out);
    pdf.setTitle(QString::fromStdString(graph.title).trimmed());
    pdf.setCreator("Marlowbeck");
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageOrientation(orientation);
    pdf.setPageMargins({marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres},
                       QPageLayout::Millimeter);
    printGraph(graph, pdf);
}

} // namespace

bool printGraph(const Graph& graph, QPagedPaintDevice& device) {
    const QSizeF size = chartSize(device.pageLayout().paintRect(QPageLayout::Millimeter).size());
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const double dots = static_cast<double>(device.width()) / size.width();
    paintGraph(graph, painter, size, QRectF(QPointF(0, 0), size * dots));
    return painter.end();
}

QByteArray exportedGraph(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation) {
    QByteArray bytes;
    QBuffer out(&bytes);
    out.open(QIODevice::WriteOnly);
    switch (format) {
    case GraphFormat::png: writePng(graph, pictureSize(orientation), out); break;
    case GraphFormat::svg: writeSvg(graph, pictureSize(orientation), out); break;
    case GraphFormat::pdf: writePdf(graph, orientation, out); break;
    }
    return bytes;
}

} // namespace reports
