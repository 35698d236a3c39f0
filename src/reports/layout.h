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

/// A report divided into pages once: screen, paper and PDF all paint these.
struct Layout {
    std::vector<Page> pages;

    /// A4 upright, in page units (see face.h).
    static QSizeF pageSize();
    /// Paints a page; the painter's units are page units. If `visible` is given, only what touches it. index from 0.
    void paint(QPainter& painter, int index, const QRectF& visible = {}) const;
    /// A page's text, line by line, for a screen reader.
    QString textOf(int index) const;
    int count() const { return static_cast<int>(pages.size()); }
};

/// Divides a report into pages; always at least one.
Layout layOut(const Content& content);

} // namespace reports
