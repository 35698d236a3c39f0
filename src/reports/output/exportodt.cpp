#include <QXmlStreamWriter>
#include <algorithm>
#include <utility>

#include "reports/export.h"
#include "reports/output/odtframe.h"
#include "reports/output/odtstyles.h"
#include "reports/output/odttext.h"
#include "reports/output/zip.h"
#include "reports/pagelook.h"

namespace reports {
namespace {

using namespace look;

/// Writes the text of a report: paragraphs, tables, and columns side by side as a table whose cells hold paragraphs.
class FlowWriter {
public:
    FlowWriter(QXmlStreamWriter& xml, OdtStyles& styles) : m_xml(xml), m_styles(styles) {}

    /// A section of a document begins: on a new page, at its bookmark.
    void beginSection(std::size_t section) {
        m_bookmark = odtSectionName(section);
        if (section > 0) m_styles.beginPage(m_bookmark);
    }

    void add(const std::vector<Block>& blocks, double width) {
        double after = 0;
        for (std::size_t index = 0; index < blocks.size(); ++index) {
            const Block& block = blocks[index];
            if (block.kind == Block::Kind::pageBreak) {
                m_styles.beginPage();
                after = 0;
                continue;
            }
            const bool first = index == 0 || blocks[index - 1].kind == Block::Kind::pageBreak;
            const double before = roomAbove(block) + after + (first ? 0 : spaceBefore(block));
            addBlock(block, width, before);
            after = spaceAfter(block);
        }
        if (blocks.empty()) addEmptyLine();
        if (!blocks.empty() && endsInTable(blocks.back())) addThinLine();
    }

private:
    static bool endsInTable(const Block& block) {
        return block.kind == Block::Kind::table || block.kind == Block::Kind::columns;
    }

    void addBlock(const Block& block, double width, double before) {
        switch (block.kind) {
        case Block::Kind::table: return addTable(block.table, width, before);
        case Block::Kind::columns: return addColumns(block, width, before);
        case Block::Kind::rule: return addRule(before);
        default: return addText(block, before);
        }
    }

    void addText(const Block& block, double before) {
        const bool title = block.kind == Block::Kind::title || block.kind == Block::Kind::cover;
        const bool heading = title || block.kind == Block::Kind::heading;
        const Face& face = faceOf(block);
        startParagraph(heading ? "text:h" : "text:p",
                       m_styles.paragraph({.face = face,
                                           .before = before,
                                           .keepsNext = heading,
                                           .further = block.kind == Block::Kind::answer ? band() : QString()}),
                       heading ? (title ? "1" : "2") : "");
        writeOdtRuns(m_xml, m_styles, block.runs, face);
        m_xml.writeEndElement();
    }

    /// Starts a paragraph, or a heading of that level, with the bookmark of a section that begins here.
    void startParagraph(const char* element, const QString& style, const QString& level = {}) {
        m_xml.writeStartElement(element);
        m_xml.writeAttribute("text:style-name", style);
        if (!level.isEmpty()) m_xml.writeAttribute("text:outline-level", level);
        if (m_bookmark.isEmpty()) return;
        m_xml.writeEmptyElement("text:bookmark");
        m_xml.writeAttribute("text:name", std::exchange(m_bookmark, {}));
    }

    /// The band behind an answer. Padding only works inside a border, so it has a border of its own colour.
    static QString band() {
        return QString(R"(fo:background-color="%1" fo:border="0.05pt solid %1" fo:border-left="%2 solid %3" )"
                       R"(fo:padding="%4")")
            .arg(ink::resultBand.name(), odtLength(frameLine), ink::strong.name(), odtLength(answerPadding));
    }

    /// At the end of a cell or of the text a table must be followed by a paragraph: here one too thin to be seen.
    void addThinLine() {
        m_xml.writeEmptyElement("text:p");
        m_xml.writeAttribute("text:style-name", "Thin");
    }

    void addRule(double before) {
        const QString line =
            QString(R"(fo:border-bottom="%1 solid %2")").arg(odtLength(hairline), ink::hairline.name());
        addEmptyLine(before, line);
    }

    void addEmptyLine(double before = 0, const QString& further = {}) {
        static const Face thin{0.5};
        startParagraph("text:p", m_styles.paragraph({.face = thin, .before = before, .further = further}));
        m_xml.writeEndElement();
    }

    void startTable(const std::vector<double>& columns, double before) {
        double width = 0;
        for (const double column : columns)
            width += column;
        m_xml.writeStartElement("table:table");
        m_xml.writeAttribute("table:style-name", m_styles.table(width, before));
        for (const double column : columns) {
            m_xml.writeEmptyElement("table:table-column");
            m_xml.writeAttribute("table:style-name", m_styles.column(column));
        }
    }

    void addTable(const Table& table, double width, double before) {
        std::vector<double> columns;
        for (const double share : table.widths)
            columns.push_back(share * width);
        startTable(columns, before);
        if (!table.heads.empty()) m_xml.writeStartElement("table:table-header-rows");
        for (const Row& row : table.heads)
            addRow(row, columns, true);
        if (!table.heads.empty()) m_xml.writeEndElement();
        for (std::size_t row = 0; row < table.rows.size(); ++row)
            addRow(table.rows[row], columns, false, row + 1 < std::min(rowsTogether, table.rows.size()));
        if (table.heads.empty() && table.rows.empty()) addRow({}, columns, false);
        m_xml.writeEndElement();
    }

    /// keepsNext: the next row must be on the same page.
    void addRow(const Row& row, const std::vector<double>& columns, bool head, bool keepsNext = false) {
        m_xml.writeStartElement("table:table-row");
        m_xml.writeAttribute("table:style-name", m_styles.row(fitsAPage(row)));
        std::size_t column = 0;
        for (const Cell& cell : row.cells) {
            if (column == columns.size()) break;
            const auto wanted = static_cast<std::size_t>(std::max(cell.columns, 1));
            const std::size_t spanned = std::min(wanted, columns.size() - column);
            double width = -2 * cellPadding;
            for (std::size_t each = 0; each < spanned; ++each)
                width += columns[column++];
            addCell(row, cell, spanned, width, head, keepsNext);
        }
        for (; column < columns.size(); ++column)
            addCell(row, {}, 1, 0, head, keepsNext);
        m_xml.writeEndElement();
    }

    /// The page of a section, which a word processor keeps right when the text is changed; `shown` until then.
    void writePageNumberOf(std::size_t section, const QString& shown) {
        m_xml.writeStartElement("text:bookmark-ref");
        m_xml.writeAttribute("text:reference-format", "page");
        m_xml.writeAttribute("text:ref-name", odtSectionName(section));
        m_xml.writeCharacters(shown);
        m_xml.writeEndElement();
    }

    static bool fitsAPage(const Row& row) {
        constexpr qsizetype mostLetters = 600; // a narrow column with so many fills half a page
        return std::all_of(row.cells.begin(), row.cells.end(), [](const Cell& cell) {
            const QString text = cell.text();
            return text.size() <= mostLetters && text.count('\n') < 20;
        });
    }

    void addCell(const Row& row, const Cell& cell, std::size_t spanned, double width, bool head, bool keepsNext) {
        const Face& face = faceOf(cell, faceOf(row, head), width);
        startCell(cellLook(row, head), spanned);
        startParagraph("text:p", m_styles.paragraph({.face = face, .align = cell.align, .keepsNext = keepsNext}));
        if (row.leadsTo >= 0 && &cell == &row.cells.back())
            writePageNumberOf(static_cast<std::size_t>(row.leadsTo), cell.text());
        else
            writeOdtRuns(m_xml, m_styles, cell.runs, face);
        m_xml.writeEndElement();
        endCell(spanned);
    }

    void startCell(const QString& cellLook, std::size_t spanned) {
        m_xml.writeStartElement("table:table-cell");
        m_xml.writeAttribute("table:style-name", m_styles.cell(cellLook));
        if (spanned > 1) m_xml.writeAttribute("table:number-columns-spanned", QString::number(spanned));
    }

    void endCell(std::size_t spanned) {
        m_xml.writeEndElement();
        for (std::size_t covered = 1; covered < spanned; ++covered)
            m_xml.writeEmptyElement("table:covered-table-cell");
    }

    /// As on the page, the rule is part of the row's height.
    static QString cellLook(const Row& row, bool head) {
        const double rule = head ? headLine : hairline;
        QString look =
            QString(R"(fo:padding-left="%1" fo:padding-right="%1" fo:padding-top="%2" fo:padding-bottom="%3" )"
                    R"(fo:border-left="none" fo:border-right="none" fo:border-top="none" )"
                    R"(fo:border-bottom="%4 solid %5")")
                .arg(odtLength(cellPadding), odtLength(rowPadding), odtLength(rowPadding - rule), odtLength(rule),
                     (head ? ink::strong : ink::hairline).name());
        if (head || row.result || row.total)
            look += QString(R"( fo:background-color="%1")").arg((head ? ink::headBand : ink::resultBand).name());
        return look;
    }

    void addColumns(const Block& block, double width, double before) {
        if (block.columns.empty()) return;
        const double forFlows = width - gutter * static_cast<double>(block.columns.size() - 1);
        std::vector<double> widths;
        for (std::size_t column = 0; column < block.columns.size(); ++column)
            widths.push_back(forFlows * block.widths[column] + (column + 1 < block.columns.size() ? gutter : 0));
        startTable(widths, before);
        m_xml.writeStartElement("table:table-row");
        m_xml.writeAttribute("table:style-name", m_styles.row(false));
        for (std::size_t column = 0; column < block.columns.size(); ++column) {
            const double beside = column + 1 < block.columns.size() ? gutter : 0;
            startCell(QString(R"(fo:border="none" fo:padding="0pt" fo:padding-right="%1")").arg(odtLength(beside)), 1);
            add(block.columns[column], forFlows * block.widths[column]);
            endCell(1);
        }
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    QXmlStreamWriter& m_xml;
    OdtStyles& m_styles;
    QString m_bookmark; ///< of a section without any paragraph yet
};

QByteArray contentXml(const OdtContents& contents, const store::Progress& progress) {
    OdtStyles styles;
    QByteArray body;
    QXmlStreamWriter xml(&body);
    FlowWriter writer(xml, styles);
    for (std::size_t section = 0; section < contents.size(); ++section) {
        store::tell(progress, static_cast<double>(section) / static_cast<double>(contents.size()));
        if (contents.size() > 1) writer.beginSection(section);
        writer.add(contents[section]->blocks, Layout::pageSize().width() - marginLeft - marginRight);
    }
    xml.writeEndDocument(); // closes an element still open for attributes
    return odtRoot("document-content") + odtFonts() + "<office:automatic-styles>\n" + styles.xml().toUtf8() +
           "</office:automatic-styles>\n<office:body><office:text>\n" + body +
           "\n</office:text></office:body>\n</office:document-content>\n";
}

} // namespace

QByteArray toOdt(const Report& report, const store::Progress& progress) {
    OdtContents contents;
    for (const Section& section : report.sections)
        contents.push_back(&section.content);
    if (contents.empty()) contents.push_back(&report.content);
    return zipped({{"mimetype", "application/vnd.oasis.opendocument.text", true}, // other programs expect it first
                   {"content.xml", contentXml(contents, progress)},
                   {"styles.xml", odtFrame(contents)},
                   {"meta.xml", odtMeta(report.content)},
                   {"settings.xml", odtSettings()},
                   {"META-INF/manifest.xml", odtManifest()}});
}

} // namespace reports
