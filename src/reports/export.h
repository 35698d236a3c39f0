#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "reports/content.h"
#include "reports/layout.h"

namespace reports {

struct PdfHeading;

/// A report that has been run: its figures and its pages. It reads no file any more, so any number of windows and
/// exports can share one.
struct Report {
    QString windowTitle; ///< of its preview, letter for letter; files carry documentTitle(content) instead
    Content content;
    Layout layout;
};

/// Kinds of file that a report can be exported as, in the order in which they are offered.
enum class Format { pdf, html, odt, csv, xlsx };

/// What a file chooser offers: "PDF (*.pdf)" and so on, in the order of Format.
QStringList exportFilters();
/// The ending with its point: ".pdf".
QString endingOf(Format format);
/// The kind by a file's ending, without case; none if the ending is none of ours.
std::optional<Format> formatOf(const QString& fileName);

/// A name to propose for a file about a client: "Botha - Needs analysis for retirement.pdf", without the client's part
/// where there is no client. Letters that file systems refuse become "-"; a name too long for them is cut before its
/// ending.
QString proposedFileName(const QString& client, const QString& title, const QString& ending);

/// The report as a file of this kind. PDF: the pages as they print, letters kept as text. HTML: the flow with the
/// header lines above and the footer lines below. ODT: the flow on pages like the printed ones. CSV: UTF-8, one record
/// a row. XLSX: numbers as numbers. Throws store::Error if the kind's own writer fails.
QByteArray exported(const Report& report, Format format);

/// The headings of the pages in their order, those of several lines as one.
std::vector<PdfHeading> headingsOf(const Layout& layout);

QByteArray toPdf(const Report& report);
QByteArray toHtml(const Content& content);
QByteArray toOdt(const Content& content);
QByteArray toCsv(const Content& content);
QByteArray toXlsx(const Content& content);

} // namespace reports
