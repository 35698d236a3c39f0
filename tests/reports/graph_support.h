#pragma once

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QPushButton>
#include <numeric>

#include "reports/frmGraph.h"
#include "reports/output/graphview.h"
#include "screenkit/testdesk.h"
#include "screenkit/workbench.h"

namespace graphtest {

using reports::frmGraph;
using reports::GraphPeriod;
using Array = std::vector<double>;

/// Element i is base + i; element 0, which no graph may show, is an extreme value.
inline Array counting(double base, int last = 51) {
    Array array(static_cast<std::size_t>(last) + 1);
    std::iota(array.begin(), array.end(), base);
    array[0] = 9e9;
    return array;
}

struct Fixture {
    screenkit::TestDesk desk;
    screenkit::Workbench bench{desk};
    frmGraph window{bench.workplace};
    const Array a = counting(1000), b = counting(2000), c = counting(3000), d = counting(4000);

    reports::GraphView& view() const {
        return *static_cast<reports::GraphView*>(window.findChild<QChartView*>("ChartFX1"));
    }
    QChart& chart() const { return *view().chart(); }
    QCategoryAxis& axis(Qt::Orientation side) const {
        return *qobject_cast<QCategoryAxis*>(chart().axes(side).constFirst());
    }
    void press(const char* button) const { window.findChild<QPushButton*>(button)->click(); }
    void open() {
        window.resize(900, 600);
        window.show();
        QApplication::processEvents();
    }
    QPoint pixelOf(int point, std::size_t series) const {
        auto* line = reports::linesOf(chart())[series];
        return view().mapFromScene(chart().mapToScene(chart().mapToPosition(line->at(point - 1), line)));
    }
};

} // namespace graphtest
