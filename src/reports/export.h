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

/// A finished report, or a document of several: its figures and its pages. It needs no file any more, so several
/// windows and exports can share it.
struct Report {
    QString windowTitle; ///< of its preview, used unchanged; files are titled documentTitle(content)
    Content content;     ///< of a document: its title, client and practice, and no text
    Layout layout;
    std::vector<Section> sections; ///< of a document; empty for a single report
    QString fileClient, fileTitle; ///< stand for client and title in a proposed file name, if not empty
    QString password;              ///< opens the PDF, which is encrypted; none if empty. Kept nowhere else.

    bool isDocument() const { return !sections.empty(); }
};

/// The file formats of an export, in the order in which they are offered.
enum class Format { pdf, html, odt, csv, xlsx };

/// The formats in which a report can be exported, in the order in which they are offered: a document as PDF or ODT.
std::vector<Format> formatsOf(const Report& report);
/// Their filters for a file dialog, "PDF (*.pdf)" and so on.
QStringList exportFilters(const std::vector<Format>& formats);
/// The file ending, with its point: ".pdf".
QString endingOf(Format format);
/// The format of a file name's ending, without case; nothing for another ending.
std::optional<Format> formatOf(const QString& fileName);

/// A proposed file name such as "Botha - Needs analysis for retirement.pdf", or without the client's name if there is
/// no client. Characters that file systems refuse become "-"; a name that is too long is cut before its ending.
QString proposedFileName(const QString& client, const QString& title, const QString& ending);

/// The report as a file of this format. PDF: the printed pages, with text as text. HTML: the text with the header lines
/// above and the footer lines below. ODT: the text on pages like the printed ones. CSV: UTF-8, one record for each row.
/// XLSX: numbers as numbers. Throws store::Error if writing the format fails, store::Cancelled if progress cancels.
QByteArray exported(const Report& report, Format format, const store::Progress& progress = {});

/// The outline of a report: the headings on its pages in order; the lines of one heading are joined. Of a document: the
/// lines of its contents, each with the headings of that section below it.
std::vector<PdfHeading> headingsOf(const Report& report);

QByteArray toPdf(const Report& report, const store::Progress& progress = {});
QByteArray toHtml(const Content& content);
QByteArray toOdt(const Report& report, const store::Progress& progress = {});
QByteArray toCsv(const Content& content);
QByteArray toXlsx(const Content& content);

} // namespace reports
