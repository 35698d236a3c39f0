#include "reports/output/graphchart.h"

#include <QCategoryAxis>
#include <QChart>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPen>
#include <QScatterSeries>
#include <algorithm>
#include <cmath>

namespace reports {

namespace {

struct LineStyle {
    Qt::PenStyle pen;
    QScatterSeries::MarkerShape marker;
};

const char* const ruleName = "rule";

constexpr LineStyle lineStyles[] = {
    {Qt::SolidLine, QScatterSeries::MarkerShapeCircle},
    {Qt::DashLine, QScatterSeries::MarkerShapeRectangle},
    {Qt::DashDotLine, QScatterSeries::MarkerShapeTriangle},
    {Qt::DotLine, QScatterSeries::MarkerShapeRotatedRectangle},
};

QColor mixed(const QColor& a, const QColor& b, float share) {
    const auto mix = [share](float x, float y) { return x + (y - x) * share; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

std::vector<QColor> seriesColours(bool dark) {
    if (dark) return {QColor(0x56b4e9), QColor(0xe69f00), QColor(0x1fc49a), QColor(0xf0e442)};
    return {QColor(0x0072b2), QColor(0xd55e00), QColor(0x00875f), QColor(0xb0558a)};
}

QFont scaled(const QFont& font, double factor) {
    QFont other = font;
    other.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * factor))));
    return other;
}

QCategoryAxis* newAxis(const ChartLook& look, const std::string& title) {
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setLabelsFont(look.font);
    axis->setLabelsBrush(look.text);
    axis->setLinePen(QPen(mixed(look.grid, look.text, 0.35F), 1));
    axis->setGridLineVisible(false);
    axis->setTitleText(QString::fromStdString(title));
    axis->setTitleVisible(!title.empty());
    axis->setTitleFont(scaled(look.font, 0.95));
    axis->setTitleBrush(look.text);
    axis->setTruncateLabels(false);
    return axis;
}

QCategoryAxis* pointAxis(const Graph& graph, const ChartLook& look) {
    QCategoryAxis* axis = newAxis(look, graph.xTitle);
    axis->setRange(0.5, std::max(graph.points, 1) + 0.5);
    for (const int point : labelledPoints(graph.points))
        axis->append(QString::number(point), point);
    if (axis->count() == 0) axis->append(" ", 1); // without any label an axis would misplace its title
    axis->setLineVisible(false);                  // the base line is the zero line, which may be higher up
    return axis;
}

QCategoryAxis* valueAxis(const Graph& graph, const ChartLook& look) {
    QCategoryAxis* axis = newAxis(look, graph.yTitle);
    const AxisScale scale = valueScale(graph);
    const double room = (scale.maximum() - scale.minimum()) * 0.015; // so that markers at the edge are not cut off
    axis->setStartValue(scale.minimum());
    for (const double tick : scale.ticks)
        axis->append(QString::fromStdString(scale.label(tick)), tick);
    axis->setRange(scale.minimum() - room, scale.maximum() + room);
    return axis;
}

void addToChart(QChart& chart, QXYSeries* series) {
    chart.addSeries(series);
    for (QAbstractAxis* axis : chart.axes())
        series->attachAxis(axis);
}

void hideInLegend(const QChart& chart, QAbstractSeries* series) {
    for (QLegendMarker* marker : chart.legend()->markers(series))
        marker->setVisible(false);
}

void addRule(QChart& chart, double value, double right, const QPen& pen) {
    auto* rule = new QLineSeries;
    rule->setObjectName(ruleName);
    rule->append(0.5, value);
    rule->append(right, value);
    rule->setPen(pen);
    addToChart(chart, rule);
    hideInLegend(chart, rule);
}

// The axis would also rule the two ends of its range, which are no round figures; and the zero line must stand out.
void addRules(QChart& chart, const Graph& graph, const ChartLook& look) {
    const QPen faint(look.grid, 1);
    const QPen zero(mixed(look.grid, look.text, 0.5F), look.font.pixelSize() * 0.09);
    for (const double tick : valueScale(graph).ticks)
        addRule(chart, tick, std::max(graph.points, 1) + 0.5, tick == 0 ? zero : faint);
}

// A line and its markers are two series. The legend shows the marker, which distinguishes the lines even in grey.
void addSeries(QChart& chart, const GraphSeries& data, std::size_t index, const ChartLook& look) {
    const LineStyle& style = lineStyles[index % std::size(lineStyles)];
    const QColor colour = look.series[index % look.series.size()];
    const double unit = look.font.pixelSize();
    auto* line = new QLineSeries;
    auto* markers = new QScatterSeries;
    for (std::size_t i = 0; i < data.values.size(); ++i)
        if (drawable(data.values[i])) line->append(static_cast<double>(i) + 1, data.values[i]);
    markers->replace(line->points());
    line->setPen(QPen(colour, unit * 0.16, style.pen, Qt::RoundCap, Qt::RoundJoin));
    markers->setName(QString::fromStdString(data.name));
    markers->setMarkerShape(style.marker);
    markers->setMarkerSize(unit * (data.values.size() > 20 ? 0.5 : 0.62));
    markers->setColor(colour);
    markers->setBorderColor(colour);
    addToChart(chart, line);
    addToChart(chart, markers);
    hideInLegend(chart, line);
}

// Every label must be readable, so all numbers shrink together when the narrowest gap becomes too small.
void fitPointLabels(QChart& chart, const QFont& wanted) {
    auto* axis = qobject_cast<QCategoryAxis*>(chart.axes(Qt::Horizontal).constFirst());
    if (axis == nullptr || axis->categoriesLabels().isEmpty()) return;
    const double gap = chart.plotArea().width() / (axis->max() - axis->min()) * (axis->count() > 10 ? 1 : 2);
    const double width = QFontMetricsF(wanted).horizontalAdvance("00") + wanted.pixelSize() * 0.35;
    const QFont fitting = scaled(wanted, std::clamp(gap / width, 0.4, 1.0));
    if (fitting != axis->labelsFont()) axis->setLabelsFont(fitting);
}

} // namespace

ChartLook screenLook(const QPalette& palette, const QFont& font) {
    ChartLook look;
    look.font = font;
    look.font.setPixelSize(std::max(1, QFontInfo(font).pixelSize()));
    look.background = palette.color(QPalette::Base);
    look.text = palette.color(QPalette::Text);
    look.grid = mixed(look.background, look.text, 0.16F);
    look.series = seriesColours(look.background.lightness() < 128);
    return look;
}

ChartLook paperLook() {
    ChartLook look;
    look.font.setPixelSize(13);
    look.background = Qt::white;
    look.text = QColor(0x1c1c1c);
    look.grid = QColor(0xd8d8d8);
    look.series = seriesColours(false);
    return look;
}

std::unique_ptr<QChart> drawChart(const Graph& graph, const ChartLook& look) {
    auto chart = std::make_unique<QChart>();
    const int unit = look.font.pixelSize();
    chart->setFont(look.font);
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->setMargins({unit, unit / 2, unit * 3 / 2, unit / 2});
    chart->setBackgroundRoundness(0);
    chart->setBackgroundBrush(look.background);
    chart->setTitle(QString::fromStdString(graph.title));
    QFont titleFont = scaled(look.font, 1.35);
    titleFont.setBold(true);
    chart->setTitleFont(titleFont);
    chart->setTitleBrush(look.text);
    chart->legend()->setFont(look.font);
    chart->legend()->setLabelColor(look.text);
    chart->legend()->setAlignment(Qt::AlignTop);
    chart->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    chart->legend()->setShowToolTips(false);
    chart->addAxis(pointAxis(graph, look), Qt::AlignBottom);
    chart->addAxis(valueAxis(graph, look), Qt::AlignLeft);
    addRules(*chart, graph, look);
    for (std::size_t i = 0; i < graph.series.size(); ++i)
        addSeries(*chart, graph.series[i], i, look);
    QObject::connect(chart.get(), &QChart::plotAreaChanged, chart.get(),
                     [drawn = chart.get(), font = look.font] { fitPointLabels(*drawn, font); });
    return chart;
}

std::vector<QLineSeries*> linesOf(const QChart& chart) {
    std::vector<QLineSeries*> lines;
    for (QAbstractSeries* series : chart.series())
        if (auto* line = qobject_cast<QLineSeries*>(series); line != nullptr && line->objectName() != ruleName)
            lines.push_back(line);
    return lines;
}

} // namespace reports
