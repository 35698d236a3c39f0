#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <vector>

namespace reports {

/// A heading of a document, as a target in the outline.
struct PdfHeading {
    QString text;
    int level = 1;  ///< 1 for a title or a chapter, 2 for what stands below it, and so on
    int page = 0;   ///< from 0
    double top = 0; ///< points from the page's upper edge
};

/// An area of a page that leads to another page.
struct PdfLink {
    int page = 0; ///< from 0
    QRectF area;  ///< points from the page's upper left corner
    int target = 0;
};

struct PdfProperties {
    QString title;
    QString author;
    std::vector<PdfHeading> headings{}; ///< the outline, which PDF readers show beside the pages
    std::vector<PdfLink> links{};
    QString password{}; ///< none if empty
};

/// The same PDF with properties that Qt's writer does not set, and its language, South African English. With a password
/// it is encrypted with AES of 256 bits: the password opens it, and who has it may do everything. Throws store::Error
/// if the bytes are no PDF.
QByteArray withProperties(const QByteArray& pdf, const PdfProperties& properties);

} // namespace reports
