#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace reports {

/// A heading of a document: where its reader may go.
struct PdfHeading {
    QString text;
    int level = 1;  ///< 1 for the title, 2 for what stands under it
    int page = 0;   ///< from 0
    double top = 0; ///< points from the page's upper edge
};

/// The same PDF with the properties that the toolkit's writer does not give: its title and author, the language of its
/// texts (South African English), and an outline of its headings, which readers show beside the pages. Throws
/// store::Error if the bytes are no PDF.
QByteArray withProperties(const QByteArray& pdf, const QString& title, const QString& author,
                          const std::vector<PdfHeading>& headings);

} // namespace reports
