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

/// What a chart is drawn with. Four colours that people who see no red or no green tell apart; line style and marker
/// differ too, so that a grey copy still reads.
struct ChartLook {
    QFont font; ///< sized in pixels: the chart's unit, on the screen as on paper
    QColor background, text, grid;
    std::vector<QColor> series;
};

/// On the screen: the desktop's colours and font, light or dark.
ChartLook screenLook(const QPalette& palette, const QFont& font);

/// On paper and in files: dark on white whatever the desktop looks like.
ChartLook paperLook();

/// The one drawing of every graph. The caller owns the chart and gives it its size.
std::unique_ptr<QChart> drawChart(const Graph& graph, const ChartLook& look);

/// The lines of a drawn chart in the order of the graph's series, without their markers.
std::vector<QLineSeries*> linesOf(const QChart& chart);

} // namespace reports
