#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

class QPainter;

namespace reports {

struct Content;
class Face;

/// A line of text at its place; the point is the start of its baseline.
struct PlacedText {
    QPointF at;
    QString text;
    const Face* face;
};

struct PlacedFill {
    QRectF area;
    QColor colour;
};

struct Page {
    std::vector<PlacedFill> fills;
    std::vector<PlacedText> texts;
};

/// A report on its pages, broken once: the screen, the paper and the PDF all paint these.
struct Layout {
    std::vector<Page> pages;

    /// A4, upright, in units of the page (see face.h).
    static QSizeF pageSize();
    /// Paints a page on a painter whose units are those of the page; only what touches `visible` if that is given.
    /// index from 0.
    void paint(QPainter& painter, int index, const QRectF& visible = {}) const;
    /// A page's text, line by line, for those who hear it.
    QString textOf(int index) const;
    int count() const { return static_cast<int>(pages.size()); }
};

/// Breaks a report into pages. There is always at least one.
Layout layOut(const Content& content);

} // namespace reports
