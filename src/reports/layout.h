#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

#include "store/progress.h"

class QPainter;

namespace reports {

struct Content;
struct Section;
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

/// An area that leads to another part of the document.
struct PlacedLink {
    QRectF area;
    int section; ///< from 0
};

struct Page {
    std::vector<PlacedFill> fills;
    std::vector<PlacedText> texts;
    std::vector<PlacedLink> links;
};

/// A report divided into pages once: screen, paper and PDF all paint these.
struct Layout {
    std::vector<Page> pages;
    std::vector<int> firstPages; ///< of each section of a document, from 0; empty for a single report

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
/// Divides the sections of a document into pages, each section from a new page on. Its pages are those of the report
/// alone, except that they are numbered through the whole. Writes the page numbers into the rows that lead to a
/// section. Progress may cancel; then store::Cancelled is thrown.
Layout layOut(std::vector<Section>& sections, const store::Progress& progress = {});

} // namespace reports
