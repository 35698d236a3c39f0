#include "reports/layout.h"

#include <QPainter>
#include <algorithm>

#include "reports/content.h"
#include "reports/face.h"
#include "reports/pagelook.h"
#include "reports/paragraph.h"

namespace reports {
namespace {

using namespace look;

/// A header or footer line; what is wider than the page is left out.
Line oneLine(const QString& text, const Face& face, double width) {
    return broken({Run{text}}, face, width).lines.front();
}

/// Where the next thing goes.
struct Cursor {
    std::size_t page = 0;
    double y = 0;

    bool operator<(const Cursor& other) const { return page != other.page ? page < other.page : y < other.y; }
};

struct Measure {
    double x = 0;
    double width = 0;
};

class PageMaker {
public:
    explicit PageMaker(const Content& content) : m_content(content), m_size(Layout::pageSize()) {
        for (const QString& line : content.headerLines)
            if (!line.isEmpty()) m_headerLines << line;
        m_footerLines = content.footerLines;
        while (!m_footerLines.isEmpty() && m_footerLines.last().isEmpty())
            m_footerLines.removeLast();
        m_top = marginTop + headerHeight();
        m_bottom = m_size.height() - marginBottom - footerHeight();
    }

    Layout made() {
        const Measure whole{marginLeft, m_size.width() - marginLeft - marginRight};
        m_layout.pages.emplace_back();
        place(m_content.blocks, whole, {0, m_top});
        for (std::size_t page = 0; page < m_layout.pages.size(); ++page)
            addFrame(m_layout.pages[page], page, whole);
        return std::move(m_layout);
    }

private:
    // ---- the frame of each page

    double headerHeight() const {
        if (m_headerLines.isEmpty()) return 0;
        const double others = static_cast<double>(m_headerLines.size() - 1) * Faces::all().header.lineHeight;
        return Faces::all().practice.lineHeight + others + points(5) + belowHeader;
    }
    double footerHeight() const {
        const auto lines = static_cast<double>(std::max<qsizetype>(m_footerLines.size(), 1));
        return lines * Faces::all().footer.lineHeight + footerGap + aboveFooter;
    }

    void addFrame(Page& page, std::size_t index, const Measure& whole) {
        const Faces& faces = Faces::all();
        double y = marginTop;
        for (const QString& line : m_headerLines) {
            const Face& face = y == marginTop ? faces.practice : faces.header;
            addLine(page, oneLine(line, face, whole.width), face, whole.x, y);
            y += face.lineHeight;
        }
        if (!m_headerLines.isEmpty())
            page.fills.push_back({{whole.x, y + headerGap, whole.width, frameLine}, ink::strong});

        y = m_bottom + aboveFooter;
        page.fills.push_back({{whole.x, y, whole.width, hairline}, faces.footer.ink});
        y += footerGap;
        const QString number = QString("Page %1 of %2").arg(index + 1).arg(m_layout.pages.size());
        const double numberWidth = faces.footer.metrics.horizontalAdvance(number);
        page.texts.push_back({{whole.x + whole.width - numberWidth, y + faces.footer.ascent}, number, &faces.footer});
        for (const QString& line : m_footerLines) {
            if (!line.isEmpty())
                addLine(page, oneLine(line, faces.footer, whole.width - numberWidth - points(12)), faces.footer,
                        whole.x, y);
            y += faces.footer.lineHeight;
        }
    }

    static void addLine(Page& page, const Line& line, const Face& face, double x, double y) {
        for (const Piece& piece : line.pieces)
            page.texts.push_back({{x + piece.x, y + face.ascent}, piece.text, piece.face});
    }

    // ---- the flow

    Page& page(const Cursor& at) {
        while (m_layout.pages.size() <= at.page)
            m_layout.pages.emplace_back();
        return m_layout.pages[at.page];
    }
    Cursor nextPage(const Cursor& at) const { return {at.page + 1, m_top}; }
    bool atTop(const Cursor& at) const { return at.y <= m_top; }
    double room(const Cursor& at) const { return m_bottom - at.y; }
    double fullRoom() const { return m_bottom - m_top; }

    Cursor place(const std::vector<Block>& blocks, const Measure& measure, Cursor at) {
        for (std::size_t index = 0; index < blocks.size(); ++index) {
            const Block& block = blocks[index];
            at = withSpace(at, index == 0 ? 0 : spaceBefore(block));
            const bool isHeading = block.kind == Block::Kind::heading || block.kind == Block::Kind::title;
            const Block* next = isHeading && index + 1 < blocks.size() ? &blocks[index + 1] : nullptr;
            const double needed = leastHeight(block, measure) + (next ? leastHeight(*next, measure) : 0);
            if (needed > room(at) && !atTop(at) && needed <= fullRoom()) at = nextPage(at);
            at = placeBlock(block, measure, at);
        }
        return at;
    }

    Cursor placeBlock(const Block& block, const Measure& measure, const Cursor& at) {
        switch (block.kind) {
        case Block::Kind::table: return withSpace(placeTable(block.table, measure, at), spaceAfter(block));
        case Block::Kind::columns: return placeColumns(block, measure, at);
        case Block::Kind::rule:
            page(at).fills.push_back({{measure.x, at.y, measure.width, hairline}, ink::hairline});
            return {at.page, at.y + hairline};
        default: return placeParagraph(block, measure, at);
        }
    }

    /// Space never opens a page.
    Cursor withSpace(const Cursor& at, double space) const { return atTop(at) ? at : Cursor{at.page, at.y + space}; }

    /// What of a block must stand on one page: all of a heading, two lines of a text, the heads and a few rows of a
    /// table.
    double leastHeight(const Block& block, const Measure& measure) const {
        if (block.kind == Block::Kind::rule) return hairline;
        if (block.kind == Block::Kind::columns) {
            double least = 0;
            for (std::size_t column = 0; column < block.columns.size(); ++column)
                if (!block.columns[column].empty())
                    least =
                        std::max(least, leastHeight(block.columns[column].front(), columnOf(block, measure, column)));
            return least;
        }
        if (block.kind == Block::Kind::table) {
            double least = 0;
            for (const Row& row : block.table.heads)
                least += rowHeight(shapedRow(row, block.table, measure, true));
            const std::size_t rows = std::min(rowsTogether, block.table.rows.size());
            for (std::size_t row = 0; row < rows; ++row)
                least += rowHeight(shapedRow(block.table.rows[row], block.table, measure, false));
            return least;
        }
        const Paragraph paragraph = broken(block.runs, faceOf(block), measure.width);
        const bool whole = block.kind == Block::Kind::title || block.kind == Block::Kind::heading;
        const std::size_t lines = whole ? paragraph.lines.size() : std::min<std::size_t>(2, paragraph.lines.size());
        return static_cast<double>(lines) * paragraph.face->lineHeight;
    }

    Cursor placeParagraph(const Block& block, const Measure& measure, Cursor at) {
        const Paragraph paragraph = broken(block.runs, faceOf(block), measure.width);
        for (const Line& line : paragraph.lines) {
            if (paragraph.face->lineHeight > room(at) && !atTop(at)) at = nextPage(at);
            addLine(page(at), line, *paragraph.face, measure.x, at.y);
            at.y += paragraph.face->lineHeight;
        }
        at.y += spaceAfter(block);
        return at;
    }

    // ---- columns side by side: each runs on over the pages by itself

    static Measure columnOf(const Block& block, const Measure& measure, std::size_t column) {
        const double width = measure.width - gutter * static_cast<double>(block.columns.size() - 1);
        double x = measure.x;
        for (std::size_t before = 0; before < column; ++before)
            x += width * block.widths[before] + gutter;
        return {x, width * block.widths[column]};
    }

    Cursor placeColumns(const Block& block, const Measure& measure, const Cursor& at) {
        Cursor lowest = at;
        for (std::size_t column = 0; column < block.columns.size(); ++column)
            lowest = std::max(lowest, place(block.columns[column], columnOf(block, measure, column), at));
        return lowest;
    }

    // ---- tables

    struct ShapedCell {
        Paragraph text;
        Align align = Align::left;
        Measure measure;
    };
    struct ShapedRow {
        std::vector<ShapedCell> cells;
        bool head = false;
        bool result = false;
    };

    static ShapedRow shapedRow(const Row& row, const Table& table, const Measure& measure, bool head) {
        const Face& face = faceOf(row, head);
        ShapedRow shaped{.cells = {}, .head = head, .result = row.result};
        shaped.cells.reserve(row.cells.size());
        double x = measure.x;
        std::size_t column = 0;
        for (const Cell& cell : row.cells) {
            double width = 0;
            for (int spanned = 0; spanned < cell.columns && column < table.widths.size(); ++spanned)
                width += table.widths[column++] * measure.width;
            const Measure inner{x + cellPadding, width - 2 * cellPadding};
            shaped.cells.push_back({broken(cell.runs, face, inner.width), cell.align, inner});
            x += width;
        }
        return shaped;
    }

    static double rowHeight(const ShapedRow& row) {
        double height = row.head ? Faces::all().columnHead.lineHeight : Faces::all().body.lineHeight;
        for (const ShapedCell& cell : row.cells)
            height = std::max(height, cell.text.height());
        return height + 2 * rowPadding;
    }

    Cursor placeTable(const Table& table, const Measure& measure, Cursor at) {
        std::vector<ShapedRow> heads;
        double headsHeight = 0;
        for (const Row& row : table.heads) {
            heads.push_back(shapedRow(row, table, measure, true));
            headsHeight += rowHeight(heads.back());
        }
        at = placeHeads(heads, measure, at);
        for (const Row& row : table.rows) {
            const ShapedRow shaped = shapedRow(row, table, measure, false);
            const double height = rowHeight(shaped);
            const bool fitsOnFresh = height <= fullRoom() - headsHeight;
            if (height > room(at) && (fitsOnFresh || room(at) < 3 * Faces::all().body.lineHeight))
                at = placeHeads(heads, measure, nextPage(at));
            at = height <= room(at) ? placeRow(shaped, height, measure, at) : placeLongRow(shaped, heads, measure, at);
        }
        return at;
    }

    Cursor placeHeads(const std::vector<ShapedRow>& heads, const Measure& measure, Cursor at) {
        for (const ShapedRow& head : heads)
            at = placeRow(head, rowHeight(head), measure, at);
        return at;
    }

    Cursor placeRow(const ShapedRow& row, double height, const Measure& measure, const Cursor& at) {
        Page& on = page(at);
        if (row.head || row.result)
            on.fills.push_back({{measure.x, at.y, measure.width, height}, row.head ? ink::headBand : ink::resultBand});
        on.fills.push_back({{measure.x, at.y + height - hairline, measure.width, row.head ? headLine : hairline},
                            row.head ? ink::strong : ink::hairline});
        for (const ShapedCell& cell : row.cells)
            for (std::size_t line = 0; line < cell.text.lines.size(); ++line)
                addCellLine(on, cell, line, at.y, line);
        return {at.page, at.y + height};
    }

    static void addCellLine(Page& on, const ShapedCell& cell, std::size_t line, double top, std::size_t slot) {
        const Line& text = cell.text.lines[line];
        const double spare = cell.measure.width - text.width;
        const double shift = cell.align == Align::right ? spare : cell.align == Align::centre ? spare / 2 : 0;
        const double y = top + rowPadding + static_cast<double>(slot) * cell.text.face->lineHeight;
        addLine(on, text, *cell.text.face, cell.measure.x + shift, y);
    }

    /// A row higher than a page goes on over the next ones, line by line, under the heads.
    Cursor placeLongRow(const ShapedRow& row, const std::vector<ShapedRow>& heads, const Measure& measure, Cursor at) {
        std::size_t most = 0;
        for (const ShapedCell& cell : row.cells)
            most = std::max(most, cell.text.lines.size());
        const double lineHeight = Faces::all().body.lineHeight;
        std::size_t slot = 0;
        for (std::size_t line = 0; line < most; ++line, ++slot) {
            if (2 * rowPadding + static_cast<double>(slot + 1) * lineHeight > room(at) && slot > 0) {
                at = placeHeads(heads, measure, nextPage(at));
                slot = 0;
            }
            for (const ShapedCell& cell : row.cells)
                if (line < cell.text.lines.size()) addCellLine(page(at), cell, line, at.y, slot);
        }
        at.y += 2 * rowPadding + static_cast<double>(slot) * lineHeight;
        page(at).fills.push_back({{measure.x, at.y - hairline, measure.width, hairline}, ink::hairline});
        return at;
    }

    const Content& m_content;
    QSizeF m_size;
    QStringList m_headerLines;
    QStringList m_footerLines;
    double m_top = 0;
    double m_bottom = 0;
    Layout m_layout;
};

} // namespace

QSizeF Layout::pageSize() { return {millimetres(210), millimetres(297)}; }

void Layout::paint(QPainter& painter, int index, const QRectF& visible) const {
    const Page& page = pages[static_cast<std::size_t>(index)];
    const bool all = visible.isEmpty();
    for (const PlacedFill& fill : page.fills)
        if (all || fill.area.intersects(visible)) painter.fillRect(fill.area, fill.colour);
    for (const PlacedText& text : page.texts) {
        const double reach = 2 * text.face->lineHeight; // accents and tails reach past the line
        if (!all && (text.at.y() + reach < visible.top() || text.at.y() - reach > visible.bottom())) continue;
        painter.setFont(text.face->font);
        painter.setPen(text.face->ink);
        painter.drawText(text.at, text.text);
    }
}

QString Layout::textOf(int index) const {
    QString text;
    double line = -1;
    for (const PlacedText& placed : pages[static_cast<std::size_t>(index)].texts) {
        if (line >= 0) text += placed.at.y() == line ? ' ' : '\n';
        text += placed.text;
        line = placed.at.y();
    }
    return text;
}

Layout layOut(const Content& content) { return PageMaker(content).made(); }

} // namespace reports
