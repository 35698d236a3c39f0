#include "reports/output/odtframe.h"

#include <QXmlStreamWriter>

#include "reports/face.h"
#include "reports/layout.h"
#include "reports/output/odtstyles.h"
#include "reports/output/odttext.h"
#include "reports/pagelook.h"

namespace reports {
namespace {

using namespace look;

constexpr double thinLine = points(1); ///< the height of the text that must follow a table
/// Word processors round the height of each row to their own unit; this allows for the sum over a page.
constexpr double roundedRows = points(2.5);

QStringList headerLinesOf(const Content& content) {
    QStringList lines = content.headerLines;
    lines.removeAll(QString());
    return lines;
}

QStringList footerLinesOf(const Content& content) {
    QStringList lines = content.footerLines;
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

void writeLine(QXmlStreamWriter& xml, const QString& style, const QString& text) {
    xml.writeStartElement("text:p");
    xml.writeAttribute("text:style-name", style);
    writeOdtText(xml, text);
    xml.writeEndElement();
}

/// Two cells, a text at the left and one at the right: a long left text wraps beside the right one.
template <class Left, class Right>
void writeCells(QXmlStreamWriter& xml, OdtStyles& styles, const QString& cell, double width, double right, Left left,
                Right atRight) {
    const auto startCell = [&] {
        xml.writeStartElement("table:table-cell");
        xml.writeAttribute("table:style-name", styles.cell(cell));
    };
    xml.writeStartElement("table:table");
    xml.writeAttribute("table:style-name", styles.table(width, 0));
    for (const double column : {width - right, right}) {
        xml.writeEmptyElement("table:table-column");
        xml.writeAttribute("table:style-name", styles.column(column));
    }
    xml.writeStartElement("table:table-row");
    startCell();
    left();
    xml.writeEndElement();
    startCell();
    atRight();
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

double flowWidth() { return Layout::pageSize().width() - marginLeft - marginRight; }

/// The client and the date.
void writeHead(QXmlStreamWriter& xml, OdtStyles& styles, const Content& content, bool firstPage, double above) {
    const Faces& faces = Faces::all();
    const QString rule = firstPage ? QString(R"(fo:border="none")")
                                   : QString(R"(fo:border="none" fo:border-bottom="%1 solid %2")")
                                         .arg(odtLength(hairline), ink::hairline.name());
    const QString cell = QString(R"(%1 fo:padding="0pt" fo:padding-top="%2" fo:padding-bottom="%3")")
                             .arg(rule, odtLength(above), odtLength(headerGap));
    const double day = faces.header.metrics.horizontalAdvance(content.date) + points(12);
    writeCells(
        xml, styles, cell, flowWidth(), day,
        [&] {
            writeLine(xml, styles.paragraph({.face = firstPage ? faces.practice : faces.header}),
                      content.headOf(firstPage));
        },
        [&] { writeLine(xml, styles.paragraph({.face = faces.header, .align = Align::right}), content.date); });
    writeLine(xml, "Thin", {});
}

void writeHeader(QXmlStreamWriter& xml, OdtStyles& styles, const Content& content, bool firstPage) {
    const QStringList lines = headerLinesOf(content);
    const Faces& faces = Faces::all();
    const QString rule = QString(R"(fo:padding-bottom="%1" fo:border-bottom="%2 solid %3")")
                             .arg(odtLength(headerGap), odtLength(frameLine), ink::strong.name());
    xml.writeStartElement(firstPage ? "style:header-first" : "style:header");
    for (qsizetype line = 0; line < lines.size(); ++line) {
        const Face& face = line == 0 ? faces.practice : faces.header;
        const bool last = line + 1 == lines.size();
        writeLine(xml, styles.paragraph({.face = face, .further = last ? rule : QString()}), lines[line]);
    }
    writeHead(xml, styles, content, firstPage, lines.isEmpty() ? 0 : points(5) + headGap - headerGap - frameLine);
    xml.writeEndElement();
}

void writePageNumber(QXmlStreamWriter& xml, const QString& style) {
    xml.writeStartElement("text:p");
    xml.writeAttribute("text:style-name", style);
    xml.writeCharacters("Page ");
    xml.writeTextElement("text:page-number", "1");
    xml.writeCharacters(" of ");
    xml.writeTextElement("text:page-count", "1");
    xml.writeEndElement();
}

/// Lines at the left and the page number at the right, as two cells: a long line wraps beside the number.
void writeFooter(QXmlStreamWriter& xml, OdtStyles& styles, const QStringList& lines, bool firstPage) {
    const Face& face = Faces::all().footer;
    const double number = face.metrics.horizontalAdvance("Page 8888 of 8888") + points(12);
    const QString cell = QString(R"(fo:border="none" fo:padding="0pt" fo:padding-top="%1" )"
                                 R"(fo:border-top="%2 solid %3")")
                             .arg(odtLength(footerGap - hairline), odtLength(hairline), face.ink.name());
    xml.writeStartElement(firstPage ? "style:footer-first" : "style:footer");
    writeCells(
        xml, styles, cell, flowWidth(), number,
        [&] {
            for (const QString& line : lines.isEmpty() ? QStringList{QString()} : lines)
                writeLine(xml, styles.paragraph({.face = face}), line);
        },
        [&] { writePageNumber(xml, styles.paragraph({.face = face, .align = Align::right})); });
    writeLine(xml, "Thin", {});
    xml.writeEndElement();
}

/// Defaults for all texts: no spacing, and the language for spell checking.
QByteArray commonStyles() {
    return QString(R"(<office:styles>
<style:default-style style:family="paragraph"><style:paragraph-properties fo:margin="0pt" fo:orphans="2" fo:widows="0" style:tab-stop-distance="%2"/><style:text-properties style:font-name="Text" fo:font-size="9.5pt" fo:language="en" fo:country="ZA"/></style:default-style>
<style:default-style style:family="table"/>
<style:style style:name="Standard" style:family="paragraph"/>
<style:style style:name="Thin" style:family="paragraph"><style:paragraph-properties fo:line-height="%1"/><style:text-properties fo:font-size="1pt"/></style:style>
</office:styles>
)")
        .arg(odtLength(thinLine), odtLength(tabStop))
        .toUtf8();
}

QByteArray pageLayout() {
    const QSizeF page = Layout::pageSize();
    QString layout =
        QString(R"(<style:page-layout style:name="Page"><style:page-layout-properties fo:page-width="%1" )"
                R"(fo:page-height="%2" style:print-orientation="portrait" fo:margin-left="%3" fo:margin-right="%4" )"
                R"(fo:margin-top="%5" fo:margin-bottom="%6"/>)")
            .arg(odtLength(page.width()), odtLength(page.height()), odtLength(marginLeft), odtLength(marginRight),
                 odtLength(marginTop), odtLength(marginBottom - thinLine));
    const QString around = R"(<style:%1-style><style:header-footer-properties fo:min-height="0pt" fo:margin-%2="%3" )"
                           R"(style:dynamic-spacing="false"/></style:%1-style>)";
    layout += around.arg("header", "bottom", odtLength(belowHead - headerGap - thinLine));
    layout += around.arg("footer", "top", odtLength(aboveFooter - roundedRows));
    return layout.toUtf8() + "</style:page-layout>\n";
}

} // namespace

QByteArray odtRoot(const char* kind) {
    QByteArray root = QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:") + kind;
    for (const char* space : {"office", "style", "text", "table", "meta"})
        root += QByteArray(" xmlns:") + space + "=\"urn:oasis:names:tc:opendocument:xmlns:" + space + ":1.0\"";
    return root + " xmlns:fo=\"urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0\""
                  " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
                  " xmlns:dc=\"http://purl.org/dc/elements/1.1/\" office:version=\"1.2\">\n";
}

QByteArray odtFonts() {
    const QString family = Faces::all().body.font.families().constFirst();
    return "<office:font-face-decls><style:font-face style:name=\"Text\" svg:font-family=\"'" + family.toUtf8() +
           "'\" style:font-family-generic=\"swiss\"/></office:font-face-decls>\n";
}

QString odtSectionName(std::size_t section) {
    return section == 0 ? QString("Standard") : QString("Section%1").arg(section + 1);
}

QByteArray odtFrame(const OdtContents& contents) {
    OdtStyles styles;
    QByteArray frames;
    QXmlStreamWriter xml(&frames);
    for (std::size_t section = 0; section < contents.size(); ++section) {
        const Content& content = *contents[section];
        xml.writeStartElement("style:master-page");
        xml.writeAttribute("style:name", odtSectionName(section));
        xml.writeAttribute("style:page-layout-name", "Page");
        for (const bool firstPage : {false, true})
            writeHeader(xml, styles, content, firstPage);
        for (const bool firstPage : {false, true})
            writeFooter(xml, styles, footerLinesOf(content), firstPage);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return odtRoot("document-styles") + odtFonts() + commonStyles() + "<office:automatic-styles>\n" +
           styles.xml().toUtf8() + pageLayout() + "</office:automatic-styles>\n<office:master-styles>\n" + frames +
           "\n</office:master-styles>\n</office:document-styles>\n";
}

QByteArray odtMeta(const Content& content) {
    const auto element = [](const char* name, const QString& text) {
        return QByteArray("<") + name + ">" + text.toHtmlEscaped().toUtf8() + "</" + name + ">";
    };
    return odtRoot("document-meta") + "<office:meta>" + element("meta:generator", "Marlowbeck") +
           element("dc:title", documentTitle(content)) +
           element("meta:initial-creator", practiceOf(content.headerLines)) +
           element("dc:creator", practiceOf(content.headerLines)) + element("dc:language", "en-ZA") +
           "</office:meta>\n</office:document-meta>\n";
}

/// Keeping rows together works only if the document's settings ask for it.
QByteArray odtSettings() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<office:document-settings xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
           "xmlns:config=\"urn:oasis:names:tc:opendocument:xmlns:config:1.0\" "
           "xmlns:ooo=\"http://openoffice.org/2004/office\" office:version=\"1.2\">\n<office:settings>"
           "<config:config-item-set config:name=\"ooo:configuration-settings\">"
           "<config:config-item config:name=\"TableRowKeep\" config:type=\"boolean\">true</config:config-item>"
           "</config:config-item-set></office:settings>\n</office:document-settings>\n";
}

QByteArray odtManifest() {
    QByteArray manifest = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\" "
                          "manifest:version=\"1.2\">\n"
                          "<manifest:file-entry manifest:full-path=\"/\" manifest:version=\"1.2\" "
                          "manifest:media-type=\"application/vnd.oasis.opendocument.text\"/>\n";
    for (const char* part : {"content.xml", "styles.xml", "meta.xml", "settings.xml"})
        manifest +=
            QByteArray("<manifest:file-entry manifest:full-path=\"") + part + "\" manifest:media-type=\"text/xml\"/>\n";
    return manifest + "</manifest:manifest>\n";
}

} // namespace reports
