#pragma once

#include <QAbstractScrollArea>
#include <memory>

namespace reports {

struct Layout;

/// The pages of a report one below the other. Only the visible part of a page is painted, so a report of a hundred
/// pages opens as fast as one of two. A click on a line of a document's contents shows the page that it names.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    enum class Zoom { pageWidth, wholePage, fixed };

    PageView(std::shared_ptr<const Layout> layout, QWidget* parent = nullptr);

    /// The page at the middle of the view, from 0.
    int currentPage() const;
    int pageCount() const;
    /// Scrolls to the top of a page; a number outside the report means its first or last page.
    void showPage(int page);

    Zoom zoomMode() const { return m_zoom; }
    void setZoom(Zoom zoom);
    /// 1 shows a page in its real size. Limited to 0.1 to 8.
    void setScale(double scale);
    double scale() const { return m_scale; }

signals:
    void pageChanged(int page);
    void scaleChanged(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    double gap() const;
    QSizeF pageSize(double scale) const;
    QRectF pageArea(int page) const;
    double fittingScale() const;
    void rescale(double scale);
    void updateScrollBars();
    void notePage();
    /// The page that the link at this place leads to; below 0 if there is none.
    int targetAt(const QPointF& place) const;

    std::shared_ptr<const Layout> m_layout;
    Zoom m_zoom = Zoom::pageWidth;
    double m_scale = 0;
    int m_noted = -1;
    QPoint m_dragFrom;
    QPoint m_pressedAt;
};

} // namespace reports
