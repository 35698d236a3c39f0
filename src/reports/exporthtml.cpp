#include "reports/export.h"

namespace reports {
namespace {

/// Fonts and colours of the printed page. Blanks in stored texts are kept.
constexpr const char* style = R"(
body { font-family: 'Roboto', sans-serif; font-size: 10pt; color: #1f232b; max-width: 52em; }
h1 { font-size: 20pt; font-weight: 600; color: #17406b; margin: 12px 0 4px 0; }
h1.cover { font-size: 30pt; margin-top: 150px; }
h2 { font-size: 13pt; font-weight: 600; color: #17406b; margin: 20px 0 6px 0; }
p, td, th { white-space: pre-wrap; }
p { margin: 6px 0; }
p.lead { color: #5b6472; margin-bottom: 12px; }
p.answer { font-size: 16pt; font-weight: bold; color: #17406b; background-color: #f3f6fa; padding: 6px; }
p.note, p.footer { color: #5b6472; font-size: 8.5pt; }
p.header, p.footer { margin: 0; }
table { width: 100%; border-collapse: collapse; }
td, th { padding: 4px 7px; vertical-align: top; }
th { background-color: #e9eef5; color: #17406b; font-weight: 600; border-bottom: 1px solid #17406b; }
td { border-bottom: 1px solid #d3d9e2; }
hr.page { border: none; margin: 0; break-after: page; }
tr.result td { font-size: 11.5pt; }
tr.result td, tr.total td { background-color: #f3f6fa; color: #17406b; font-weight: bold; }
table.columns td.column { border: none; padding: 0 14px 0 0; white-space: normal; }
)";

const char* alignment(Align align) {
    return align == Align::right ? " align=\"right\"" : align == Align::centre ? " align=\"center\"" : "";
}

class HtmlWriter {
public:
    QByteArray page(const Content& content) {
        m_html = "<!DOCTYPE html>\n<html lang=\"en-ZA\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                 documentTitle(content).toHtmlEscaped().toUtf8() + "</title>\n<style>" + style +
                 "</style>\n</head>\n<body>\n";
        addLines(content.headerLines, "header");
        if (content.headerLines.join("").size() > 0) m_html += "<hr>\n";
        addLines({content.headOf(true), content.date}, "header");
        addBlocks(content.blocks);
        if (content.footerLines.join("").size() > 0) m_html += "<hr>\n";
        addLines(content.footerLines, "footer");
        m_html += "</body>\n</html>\n";
        return m_html;
    }

private:
    void addLines(const QStringList& lines, const char* kind) {
        for (const QString& line : lines)
            if (!line.isEmpty())
                m_html += QByteArray("<p class=\"") + kind + "\">" + line.toHtmlEscaped().toUtf8() + "</p>\n";
    }

    void addBlocks(const std::vector<Block>& blocks) {
        for (const Block& block : blocks)
            addBlock(block);
    }

    void addBlock(const Block& block) {
        switch (block.kind) {
        case Block::Kind::title: return addText("h1", "", block.runs);
        case Block::Kind::cover: return addText("h1", " class=\"cover\"", block.runs);
        case Block::Kind::heading: return addText("h2", "", block.runs);
        case Block::Kind::lead: return addText("p", " class=\"lead\"", block.runs);
        case Block::Kind::answer: return addText("p", " class=\"answer\"", block.runs);
        case Block::Kind::note: return addText("p", " class=\"note\"", block.runs);
        case Block::Kind::paragraph: return addText("p", "", block.runs);
        case Block::Kind::rule: m_html += "<hr>\n"; return;
        case Block::Kind::pageBreak: m_html += "<hr class=\"page\">\n"; return;
        case Block::Kind::table: return addTable(block.table);
        case Block::Kind::columns: return addColumns(block);
        }
    }

    void addText(const QByteArray& element, const QByteArray& attributes, const std::vector<Run>& runs) {
        m_html += "<" + element + attributes + ">";
        addRuns(runs);
        m_html += "</" + element + ">\n";
    }

    void addRuns(const std::vector<Run>& runs) {
        for (const Run& run : runs) {
            QString text = run.text.toHtmlEscaped().replace('\n', "<br>");
            if (run.italic) text = "<i>" + text + "</i>";
            if (run.bold) text = "<b>" + text + "</b>";
            m_html += text.toUtf8();
        }
    }

    void addTable(const Table& table) {
        m_html += "<table width=\"100%\" cellspacing=\"0\">\n";
        if (!table.heads.empty()) m_html += "<thead>\n";
        for (const Row& row : table.heads)
            addRow(row, table, "th");
        if (!table.heads.empty()) m_html += "</thead>\n";
        m_html += "<tbody>\n";
        for (const Row& row : table.rows)
            addRow(row, table, "td");
        m_html += "</tbody>\n</table>\n";
    }

    void addRow(const Row& row, const Table& table, const QByteArray& element) {
        m_html += row.result ? "<tr class=\"result\">" : row.total ? "<tr class=\"total\">" : "<tr>";
        for (std::size_t column = 0; column < row.cells.size(); ++column) {
            const Cell& cell = row.cells[column];
            m_html += "<" + element + alignment(cell.align);
            if (cell.columns > 1) m_html += " colspan=\"" + QByteArray::number(cell.columns) + "\"";
            if (column < table.widths.size())
                m_html += " width=\"" + QByteArray::number(qRound(table.widths[column] * 100)) + "%\"";
            m_html += ">";
            if (row.result || row.total) m_html += "<b>";
            addRuns(cell.runs);
            if (row.result || row.total) m_html += "</b>";
            m_html += "</" + element + ">";
        }
        m_html += "</tr>\n";
    }

    void addColumns(const Block& block) {
        m_html += "<table class=\"columns\" width=\"100%\" cellspacing=\"0\"><tr>\n";
        for (std::size_t column = 0; column < block.columns.size(); ++column) {
            m_html += "<td class=\"column\" valign=\"top\" width=\"" +
                      QByteArray::number(qRound(block.widths[column] * 100)) + "%\">\n";
            addBlocks(block.columns[column]);
            m_html += "</td>\n";
        }
        m_html += "</tr></table>\n";
    }

    QByteArray m_html;
};

} // namespace

QByteArray toHtml(const Content& content) { return HtmlWriter().page(content); }

} // namespace reports
