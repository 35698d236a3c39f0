#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

#include "reports/content.h"
#include "reports/layout.h"

namespace reports {

/// A report that has been run: its figures and its pages. It reads no file any more, so any number of windows and
/// exports can share one.
struct Report {
    QString title;    ///< of its window, letter for letter
    QString baseName; ///< what an export suggests as its name
    Content content;
    Layout layout;
};

/// Kinds of file that a report can be exported as, in the order in which they are offered.
enum class Format { pdf, html, odt, csv, xlsx };

/// What a file chooser offers: "PDF (*.pdf)" and so on, in the order of Format.
QStringList exportFilters();
/// The kind by a file's ending, without case; a PDF if the ending is none of ours.
Format formatOf(const QString& fileName);

/// The report as a file of this kind. PDF: the pages as they print, letters kept as text. HTML and ODT: the flow with
/// the header lines above and the footer lines below. CSV: UTF-8, one record a row, values as stored. XLSX: numbers as
/// numbers. Throws store::Error if the kind's own writer fails.
QByteArray exported(const Report& report, Format format);

QByteArray toPdf(const Report& report);
QByteArray toHtml(const Content& content, const QString& title);
QByteArray toOdt(const Content& content, const QString& title);
QByteArray toCsv(const Content& content);
QByteArray toXlsx(const Content& content, const QString& title);

} // namespace reports
