#include "reports/export.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <charconv>

#include "reports/face.h"
#include "reports/output.h"
#include "reports/output/pdfproperties.h"

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

/// A number with 15 significant digits, as many as a double holds exactly, without exponent.
QByteArray rawNumber(double number) {
    char digits[400];
    const auto [end, ignored] =
        std::to_chars(digits, digits + sizeof digits, number, std::chars_format::scientific, 14);
    double rounded = 0; // 15 digits are all that it has
    std::from_chars(digits, end, rounded);
    const auto last = std::to_chars(digits, digits + sizeof digits, rounded, std::chars_format::fixed).ptr;
    return {digits, last - digits};
}

/// True for a text that a spreadsheet would take for a figure or a formula: an account number would lose its last
/// digits, a postal code its first 0, and a note beginning with "=" would be evaluated.
bool wouldBeMisread(const QString& text) {
    static const QRegularExpression misread(R"(^\s*([=+@-]|[\d(][\d\s.,:/()%-]*$))");
    return misread.match(text).hasMatch();
}

/// RFC 4180: a field with a comma, a quote or a line break is quoted, with its quotes doubled. A leading tab keeps it a
/// text.
QByteArray quoted(const QString& text) {
    QByteArray field = (wouldBeMisread(text) ? '\t' + text : text).toUtf8();
    static const char* const special = ",\"\n\r\t";
    if (field.toStdString().find_first_of(special) == std::string::npos) return field;
    return '"' + field.replace("\"", "\"\"") + '"';
}

/// Dates in the one form that every spreadsheet reads the same way.
QByteArray fieldOf(const Cell& cell) {
    if (cell.number) return rawNumber(*cell.number);
    return cell.date.isValid() ? cell.date.toString(Qt::ISODate).toUtf8() : quoted(cell.text());
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
                    fields << fieldOf(cell);
                csv += fields.join(',') + "\r\n";
            }
    }
}

} // namespace

std::vector<Format> formatsOf(const Report& report) {
    if (report.isDocument()) return {Format::pdf, Format::odt};
    return {Format::pdf, Format::html, Format::odt, Format::csv, Format::xlsx};
}

QStringList exportFilters(const std::vector<Format>& formats) {
    QStringList filters;
    for (const Format format : formats)
        filters << offered[static_cast<int>(format)].filter;
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
    constexpr qsizetype mostBytes = 200; // of the 255 that a file name may have, since saving adds a part of its own
    while (name.toUtf8().size() > mostBytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    while (name.startsWith('.')) // would hide the file
        name.remove(0, 1);
    return name.trimmed() + ending;
}

QByteArray exported(const Report& report, Format format, const store::Progress& progress) {
    switch (format) {
    case Format::html: return toHtml(report.content);
    case Format::odt: return output().toOdt(report, progress);
    case Format::csv: return toCsv(report.content);
    case Format::xlsx: return output().toXlsx(report.content);
    case Format::pdf: break;
    }
    return toPdf(report, progress);
}

namespace {

/// Adds the headings on these pages of a layout.
void addHeadings(std::vector<PdfHeading>& headings, const Layout& layout, int from, int to) {
    const Faces& faces = Faces::all();
    for (int page = from; page < to; ++page) {
        const PlacedText* before = nullptr; // the previous piece, if it is part of a heading too
        for (const PlacedText& text : layout.pages[static_cast<std::size_t>(page)].texts) {
            const bool heads = text.face == &faces.title || text.face == &faces.heading;
            const double down = before && heads ? text.at.y() - before->at.y() : -1;
            const bool goesOn = down >= 0 && before->face == text.face && down < 1.1 * text.face->lineHeight;
            if (goesOn)
                headings.back().text += (down > 0 ? " " : "") + text.text;
            else if (heads)
                headings.push_back({text.text, text.face == &faces.title ? 1 : 2, page,
                                    (text.at.y() - text.face->ascent) * 72 / unitsPerInch});
            before = heads ? &text : nullptr;
        }
    }
}

std::vector<PdfLink> linksOf(const Layout& layout) {
    std::vector<PdfLink> links;
    for (int page = 0; page < layout.count(); ++page)
        for (const PlacedLink& link : layout.pages[static_cast<std::size_t>(page)].links) {
            constexpr double scale = 72 / unitsPerInch;
            const QRectF area(link.area.topLeft() * scale, link.area.size() * scale);
            links.push_back({page, area, layout.firstPages[static_cast<std::size_t>(link.section)]});
        }
    return links;
}

} // namespace

std::vector<PdfHeading> headingsOf(const Report& report) {
    std::vector<PdfHeading> headings;
    if (!report.isDocument()) addHeadings(headings, report.layout, 0, report.layout.count());
    for (std::size_t at = 0; at < report.sections.size(); ++at) {
        const Section& section = report.sections[at];
        if (section.heading.isEmpty()) continue;
        const bool last = at + 1 == report.sections.size();
        std::vector<PdfHeading> below;
        addHeadings(below, report.layout, report.layout.firstPages[at],
                    last ? report.layout.count() : report.layout.firstPages[at + 1]);
        headings.push_back({section.heading, section.level, report.layout.firstPages[at], 0});
        for (PdfHeading& heading : below) {
            if (heading.level == 1) continue; // the line above stands for the report's title
            heading.level = section.level + 1;
            headings.push_back(std::move(heading));
        }
    }
    return headings;
}

QByteArray toPdf(const Report& report, const store::Progress& progress) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator("Marlowbeck");
    writer.setResolution(static_cast<int>(unitsPerInch));
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
    QPainter painter(&writer);
    for (int page = 0; page < report.layout.count(); ++page) {
        store::tell(progress, static_cast<double>(page) / report.layout.count());
        if (page > 0) writer.newPage();
        report.layout.paint(painter, page);
    }
    painter.end();
    store::tell(progress, 1);
    return output().withProperties(bytes, {.title = documentTitle(report.content),
                                           .author = practiceOf(report.content.headerLines),
                                           .headings = headingsOf(report),
                                           .links = linksOf(report.layout),
                                           .password = report.password});
}

QByteArray toCsv(const Content& content) {
    QByteArray csv = "\xef\xbb\xbf"; // without this mark a spreadsheet would not read the text as UTF-8
    addRecords(csv, content.blocks);
    return csv;
}

} // namespace reports
