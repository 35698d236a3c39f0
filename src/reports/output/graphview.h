#pragma once

#include <QChartView>

#include "reports/output/graphchart.h"

class QGraphicsEllipseItem;
class QGraphicsPathItem;
class QGraphicsTextItem;

namespace reports {

/// A graph on the screen. A callout shows the value nearest to the pointer. By keyboard, Left and Right, Home and End
/// move along the points, Up and Down between the lines, and Escape hides the callout.
class GraphView : public QChartView {
public:
    explicit GraphView(QWidget* parent = nullptr);

    void show(const Graph& graph);
    /// The callout's text, line by line: "Year 12", then each series with its value. Empty while it is hidden.
    QString callout() const { return m_calloutText; }

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Cursor {
        int point = 0; ///< from 1; 0 while no point is selected
        int series = 0;
    };

    void redraw();
    Cursor nearestTo(QPointF position) const;
    QPointF positionOf(int point, int series) const;
    bool hasValue(int point, int series) const;
    void moveAlong(int point);
    void moveAcross(int by);
    void pointAt(Cursor cursor);
    void buildCallout();
    void placeCallout();
    QString calloutHtml() const;

    Graph m_graph;
    ChartLook m_look;
    Cursor m_cursor;
    QString m_calloutText;
    QGraphicsEllipseItem* m_ring = nullptr;
    QGraphicsPathItem* m_box = nullptr;
    QGraphicsTextItem* m_label = nullptr;
};

} // namespace reports
