#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace reports {

/// A heading of a document, as a target in the outline.
struct PdfHeading {
    QString text;
    int level = 1;  ///< 1 for the title, 2 for a heading below it
    int page = 0;   ///< from 0
    double top = 0; ///< points from the page's upper edge
};

/// The same PDF with properties that Qt's writer does not set: title, author, language (South African English), and an
/// outline of its headings, which PDF readers show beside the pages. Throws store::Error if the bytes are no PDF.
QByteArray withProperties(const QByteArray& pdf, const QString& title, const QString& author,
                          const std::vector<PdfHeading>& headings);

} // namespace reports
