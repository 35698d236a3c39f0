#include "reports/export.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <charconv>

#include "reports/face.h"
#include "reports/output.h"

namespace reports {
namespace {

struct Offered {
    const char* ending;
    const char* filter;
};
constexpr Offered offered[] = {{"pdf", "PDF (*.pdf)"},
                               {"html", "HTML (*.html)"},
                               {"odt", "ODT (*.odt)"},
                               {"csv", "CSV (*.csv)"},
                               {"xlsx", "XLSX (*.xlsx)"}};

/// A number with all its places and no exponent, the shortest that reads back as the same double.
QByteArray rawNumber(double number) {
    char digits[400];
    const auto end = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed).ptr;
    return {digits, end - digits};
}

/// RFC 4180: a field with a comma, a quote or a line end stands in quotes, quotes doubled.
QByteArray quoted(const QString& text) {
    QByteArray field = text.toUtf8();
    if (!field.contains(',') && !field.contains('"') && !field.contains('\n') && !field.contains('\r')) return field;
    return '"' + field.replace("\"", "\"\"") + '"';
}

void addRecords(QByteArray& csv, const std::vector<Block>& blocks) {
    for (const Block& block : blocks) {
        for (const auto& column : block.columns)
            addRecords(csv, column);
        if (!block.runs.empty()) csv += quoted(textOf(block.runs)) + "\r\n";
        for (const auto* rows : {&block.table.heads, &block.table.rows})
            for (const Row& row : *rows) {
                QByteArrayList fields;
                for (const Cell& cell : row.cells)
                    fields << (cell.number ? rawNumber(*cell.number) : quoted(cell.text()));
                csv += fields.join(',') + "\r\n";
            }
    }
}

} // namespace

QStringList exportFilters() {
    QStringList filters;
    for (const Offered& kind : offered)
        filters << kind.filter;
    return filters;
}

QString endingOf(Format format) { return '.' + QString(offered[static_cast<int>(format)].ending); }

std::optional<Format> formatOf(const QString& fileName) {
    const QString ending = QFileInfo(fileName).suffix();
    for (int kind = 0; kind < static_cast<int>(std::size(offered)); ++kind)
        if (ending.compare(QLatin1String(offered[kind].ending), Qt::CaseInsensitive) == 0)
            return static_cast<Format>(kind);
    return {};
}

QString proposedFileName(const QString& client, const QString& title, const QString& ending) {
    const QString who = client.simplified();
    QString name = who.isEmpty() ? title.simplified() : who + " - " + title.simplified();
    for (QChar& letter : name)
        if (letter < ' ' || QStringView(u"/\\:*?\"<>|\x7f").contains(letter)) letter = '-';
    constexpr qsizetype mostBytes = 200; // of the 255 that a file name may have, since a save adds a part of its own
    while (name.toUtf8().size() > mostBytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    while (name.startsWith('.')) // would be hidden
        name.remove(0, 1);
    return name.trimmed() + ending;
}

QByteArray exported(const Report& report, Format format) {
    switch (format) {
    case Format::html: return toHtml(report.content);
    case Format::odt: return output().toOdt(report.content);
    case Format::csv: return toCsv(report.content);
    case Format::xlsx: return output().toXlsx(report.content);
    case Format::pdf: break;
    }
    return toPdf(report);
}

QByteArray toPdf(const Report& report) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(documentTitle(report.content));
    writer.setCreator("Marlowbeck");
    writer.setResolution(static_cast<int>(unitsPerInch));
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
    QPainter painter(&writer);
    for (int page = 0; page < report.layout.count(); ++page) {
        if (page > 0) writer.newPage();
        report.layout.paint(painter, page);
    }
    painter.end();
    return bytes;
}

QByteArray toCsv(const Content& content) {
    QByteArray csv;
    addRecords(csv, content.blocks);
    return csv;
}

} // namespace reports
