#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <memory>
#include <vector>

#include "reports/graphdata.h"

class QChart;
class QLineSeries;

namespace reports {

/// The colours and font of a chart. The four colours can be told apart by people who do not see red or green; line
/// styles and markers differ too, so that a grey copy is readable.
struct ChartLook {
    QFont font; ///< sized in pixels, the chart's unit on screen and on paper
    QColor background, text, grid;
    std::vector<QColor> series;
};

/// For the screen: the desktop's colours and font, light or dark.
ChartLook screenLook(const QPalette& palette, const QFont& font);

/// For paper and files: dark on white, whatever the desktop's colours are.
ChartLook paperLook();

/// Draws every kind of graph. The caller owns the chart and sets its size.
std::unique_ptr<QChart> drawChart(const Graph& graph, const ChartLook& look);

/// The lines of a drawn chart, without markers, in the order of the graph's series.
std::vector<QLineSeries*> linesOf(const QChart& chart);

} // namespace reports
