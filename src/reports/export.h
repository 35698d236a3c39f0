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

/// A finished report: its figures and its pages. It needs no file any more, so several windows and exports can share
/// it.
struct Report {
    QString windowTitle; ///< of its preview, used unchanged; files are titled documentTitle(content)
    Content content;
    Layout layout;
};

/// The file formats of an export, in the order in which they are offered.
enum class Format { pdf, html, odt, csv, xlsx };

/// The filters for a file dialog, "PDF (*.pdf)" and so on, in the order of Format.
QStringList exportFilters();
/// The file ending, with its point: ".pdf".
QString endingOf(Format format);
/// The format of a file name's ending, without case; nothing for another ending.
std::optional<Format> formatOf(const QString& fileName);

/// A proposed file name such as "Botha - Needs analysis for retirement.pdf", or without the client's name if there is
/// no client. Characters that file systems refuse become "-"; a name that is too long is cut before its ending.
QString proposedFileName(const QString& client, const QString& title, const QString& ending);

/// The report as a file of this format. PDF: the printed pages, with text as text. HTML: the text with the header lines
/// above and the footer lines below. ODT: the text on pages like the printed ones. CSV: UTF-8, one record for each row.
/// XLSX: numbers as numbers. Throws store::Error if writing the format fails.
QByteArray exported(const Report& report, Format format);

/// The headings on the pages in order; the lines of one heading are joined.
std::vector<PdfHeading> headingsOf(const Layout& layout);

QByteArray toPdf(const Report& report);
QByteArray toHtml(const Content& content);
QByteArray toOdt(const Content& content);
QByteArray toCsv(const Content& content);
QByteArray toXlsx(const Content& content);

} // namespace reports
