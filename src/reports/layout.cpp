#include "reports/layout.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "reports/content.h"
#include "reports/face.h"
#include "reports/pageframe.h"
#include "reports/pagelook.h"
#include "reports/paragraph.h"

namespace reports {
namespace {

using namespace look;

/// The position for the next block.
struct Cursor {
    std::size_t page = 0;
    double y = 0;

    bool operator<(const Cursor& other) const { return page != other.page ? page < other.page : y < other.y; }
};

class PageMaker {
public:
    explicit PageMaker(const PageFrame& frame) : m_frame(frame) {}

    /// The pages of a report, without their frame.
    std::vector<Page> made(const Content& content) {
        m_pages.emplace_back();
        place(content.blocks, PageFrame::flow(), {0, m_frame.top(0)});
        return std::move(m_pages);
    }

private:
    // ---- the text

    Page& page(const Cursor& at) {
        while (m_pages.size() <= at.page)
            m_pages.emplace_back();
        return m_pages[at.page];
    }
    Cursor nextPage(const Cursor& at) const { return {at.page + 1, m_frame.top(at.page + 1)}; }
    bool atTop(const Cursor& at) const { return at.y <= m_frame.top(at.page); }
    double room(const Cursor& at) const { return m_frame.bottom() - at.y; }
    /// The height available on any page except the first.
    double fullRoom() const { return m_frame.bottom() - m_frame.top(1); }

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
        case Block::Kind::pageBreak: return atTop(at) ? at : nextPage(at);
        case Block::Kind::rule:
            page(at).fills.push_back({{measure.x, at.y, measure.width, hairline}, ink::hairline});
            return {at.page, at.y + hairline};
        default: return placeParagraph(block, measure, at);
        }
    }

    /// Space at the top of a page is dropped.
    Cursor withSpace(const Cursor& at, double space) const { return atTop(at) ? at : Cursor{at.page, at.y + space}; }

    /// The part of a block that must stay on one page: a whole heading, two lines of a text, the heads and a few rows
    /// of a table.
    double leastHeight(const Block& block, const Measure& measure) const {
        if (block.kind == Block::Kind::rule) return hairline;
        if (block.kind == Block::Kind::pageBreak) return 0;
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
        const Paragraph paragraph = broken(block.runs, faceOf(block), textMeasure(block, measure).width);
        const bool whole = block.kind == Block::Kind::title || block.kind == Block::Kind::heading || isAnswer(block);
        const std::size_t lines = whole ? paragraph.lines.size() : std::min<std::size_t>(2, paragraph.lines.size());
        return roomAbove(block) + static_cast<double>(lines) * paragraph.face->lineHeight +
               (isAnswer(block) ? 2 * answerPadding : 0);
    }

    Cursor placeParagraph(const Block& block, const Measure& measure, Cursor at) {
        if (isAnswer(block)) return placeAnswer(block, measure, at);
        at.y += roomAbove(block);
        at = placeLines(broken(block.runs, faceOf(block), measure.width), measure.x, at);
        return {at.page, at.y + spaceAfter(block)};
    }

    Cursor placeLines(const Paragraph& paragraph, double x, Cursor at) {
        for (const Line& line : paragraph.lines) {
            if (paragraph.face->lineHeight > room(at) && !atTop(at)) at = nextPage(at);
            addLine(page(at), line, *paragraph.face, x, at.y);
            at.y += paragraph.face->lineHeight;
        }
        return at;
    }

    static bool isAnswer(const Block& block) { return block.kind == Block::Kind::answer; }
    static Measure textMeasure(const Block& block, const Measure& measure) {
        return isAnswer(block) ? Measure{measure.x + cellPadding, measure.width - 2 * cellPadding} : measure;
    }

    /// Places an answer on a coloured band; the caller has made sure that it fits.
    Cursor placeAnswer(const Block& block, const Measure& measure, const Cursor& at) {
        const Measure inner = textMeasure(block, measure);
        const Paragraph paragraph = broken(block.runs, faceOf(block), inner.width);
        const double height = paragraph.height() + 2 * answerPadding;
        page(at).fills.push_back({{measure.x, at.y, measure.width, height}, ink::resultBand});
        page(at).fills.push_back({{measure.x, at.y, frameLine, height}, ink::strong});
        const Cursor end = placeLines(paragraph, inner.x, {at.page, at.y + answerPadding});
        return {end.page, end.y + answerPadding + spaceAfter(block)};
    }

    // ---- columns side by side

    static Measure columnOf(const Block& block, const Measure& measure, std::size_t column) {
        const double width = measure.width - gutter * static_cast<double>(block.columns.size() - 1);
        double x = measure.x;
        for (std::size_t before = 0; before < column; ++before)
            x += width * block.widths[before] + gutter;
        return {x, width * block.widths[column]};
    }

    Cursor placeColumns(const Block& block, const Measure& measure, const Cursor& at) {
        const double height = heightOf(block, measure);
        if (height <= room(at)) return sideBySide(block, measure, at);
        if (height <= fullRoom() && room(at) < fullRoom() / 2) return sideBySide(block, measure, nextPage(at));
        // Side by side they would leave half a page empty, so they are placed one below the other.
        Cursor next = at;
        for (const std::vector<Block>& column : block.columns)
            next = place(column, measure, withSpace(next, &column == &block.columns.front() ? 0 : spaceBefore(block)));
        return next;
    }

    Cursor sideBySide(const Block& block, const Measure& measure, const Cursor& at) {
        Cursor lowest = at;
        for (std::size_t column = 0; column < block.columns.size(); ++column)
            lowest = std::max(lowest, place(block.columns[column], columnOf(block, measure, column), at));
        return lowest;
    }

    /// The height of columns side by side, found by placing them on trial pages. Larger than any page if they need a
    /// second one.
    double heightOf(const Block& block, const Measure& measure) {
        std::vector<Page> kept = std::exchange(m_pages, {});
        const Cursor start{1, m_frame.top(1)};
        const Cursor end = sideBySide(block, measure, start);
        m_pages = std::move(kept);
        return end.page == start.page ? end.y - start.y : Layout::pageSize().height();
    }

    // ---- tables

    struct ShapedCell {
        Paragraph text;
        Align align = Align::left;
        Measure measure;
        double drop = 0; ///< lowers a smaller face to the row's baseline
    };
    struct ShapedRow {
        std::vector<ShapedCell> cells;
        bool head = false;
        bool banded = false;
        int leadsTo = -1;
    };

    static ShapedRow shapedRow(const Row& row, const Table& table, const Measure& measure, bool head) {
        const Face& face = faceOf(row, head);
        ShapedRow shaped{.cells = {}, .head = head, .banded = head || row.result || row.total, .leadsTo = row.leadsTo};
        shaped.cells.reserve(row.cells.size());
        double x = measure.x;
        std::size_t column = 0;
        for (const Cell& cell : row.cells) {
            double width = 0;
            for (int spanned = 0; spanned < cell.columns && column < table.widths.size(); ++spanned)
                width += table.widths[column++] * measure.width;
            const Measure inner{x + cellPadding, width - 2 * cellPadding};
            Paragraph text = broken(cell.runs, faceOf(cell, face, inner.width), inner.width);
            const double drop = face.ascent - text.face->ascent;
            shaped.cells.push_back({std::move(text), cell.align, inner, drop});
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
        for (std::size_t index = 0; index < table.rows.size(); ++index) {
            const ShapedRow shaped = shapedRow(table.rows[index], table, measure, false);
            const double height = rowHeight(shaped);
            const double needed = height + heightOfTotalBelow(table, index, measure);
            const bool fitsOnFresh = needed <= fullRoom() - headsHeight;
            if (needed > room(at) && (fitsOnFresh || room(at) < 3 * Faces::all().body.lineHeight))
                at = placeHeads(heads, measure, nextPage(at));
            at = height <= room(at) ? placeRow(shaped, height, measure, at) : placeLongRow(shaped, heads, measure, at);
        }
        return at;
    }

    /// A total must not stand alone at the top of a page, so the row before it moves along. Gives the height of both.
    static double heightOfTotalBelow(const Table& table, std::size_t row, const Measure& measure) {
        if (row + 1 >= table.rows.size() || !table.rows[row + 1].total) return 0;
        return rowHeight(shapedRow(table.rows[row + 1], table, measure, false));
    }

    Cursor placeHeads(const std::vector<ShapedRow>& heads, const Measure& measure, Cursor at) {
        for (const ShapedRow& head : heads)
            at = placeRow(head, rowHeight(head), measure, at);
        return at;
    }

    Cursor placeRow(const ShapedRow& row, double height, const Measure& measure, const Cursor& at) {
        Page& on = page(at);
        if (row.banded)
            on.fills.push_back({{measure.x, at.y, measure.width, height}, row.head ? ink::headBand : ink::resultBand});
        on.fills.push_back({{measure.x, at.y + height - hairline, measure.width, row.head ? headLine : hairline},
                            row.head ? ink::strong : ink::hairline});
        for (const ShapedCell& cell : row.cells)
            for (std::size_t line = 0; line < cell.text.lines.size(); ++line)
                addCellLine(on, cell, line, at.y, line);
        if (row.leadsTo >= 0) on.links.push_back({{measure.x, at.y, measure.width, height}, row.leadsTo});
        return {at.page, at.y + height};
    }

    static void addCellLine(Page& on, const ShapedCell& cell, std::size_t line, double top, std::size_t slot) {
        const Line& text = cell.text.lines[line];
        const double spare = cell.measure.width - text.width;
        const double shift = cell.align == Align::right ? spare : cell.align == Align::centre ? spare / 2 : 0;
        const double y = top + rowPadding + cell.drop + static_cast<double>(slot) * cell.text.face->lineHeight;
        addLine(on, text, *cell.text.face, cell.measure.x + shift, y);
    }

    /// A row higher than a page continues on the next pages, line by line, below the heads.
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

    const PageFrame& m_frame;
    std::vector<Page> m_pages;
};

/// The pages of a report while those of a document are put together.
struct LaidSection {
    explicit LaidSection(const Content& content) : frame(content), pages(PageMaker(frame).made(content)) {}

    /// Adds the pages, in their frame, to a layout that will have `count` pages.
    void addTo(Layout& layout, std::size_t count) {
        for (std::size_t page = 0; page < pages.size(); ++page) {
            frame.add(pages[page], page, layout.pages.size() + 1, count);
            layout.pages.push_back(std::move(pages[page]));
        }
    }

    PageFrame frame;
    std::vector<Page> pages;
};

/// Writes the page numbers into the rows that lead to a section; false if there is none.
bool writePageNumbers(Content& content, const std::vector<int>& firstPages) {
    bool written = false;
    for (Block& block : content.blocks)
        for (Row& row : block.table.rows)
            if (row.leadsTo >= 0) {
                row.cells.back().runs = {Run{QString::number(firstPages[static_cast<std::size_t>(row.leadsTo)] + 1)}};
                written = true;
            }
    return written;
}

} // namespace

QSizeF Layout::pageSize() { return {millimetres(210), millimetres(297)}; }

void Layout::paint(QPainter& painter, int index, const QRectF& visible) const {
    const Page& page = pages[static_cast<std::size_t>(index)];
    const bool all = visible.isEmpty();
    for (const PlacedFill& fill : page.fills)
        if (all || fill.area.intersects(visible)) painter.fillRect(fill.area, fill.colour);
    for (const PlacedText& text : page.texts) {
        const double reach = 2 * text.face->lineHeight; // accents and descenders extend beyond the line
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

Layout layOut(const Content& content) {
    LaidSection laid(content);
    Layout layout;
    laid.addTo(layout, laid.pages.size());
    return layout;
}

Layout layOut(std::vector<Section>& sections, const store::Progress& progress) {
    Layout layout;
    std::vector<LaidSection> laid;
    int count = 0;
    for (const Section& section : sections) {
        store::tell(progress, static_cast<double>(laid.size()) / static_cast<double>(sections.size()));
        laid.emplace_back(section.content);
        layout.firstPages.push_back(count);
        count += static_cast<int>(laid.back().pages.size());
    }
    for (std::size_t section = 0; section < sections.size(); ++section) {
        // The numbers have a column to themselves: with or without them, the contents take as many pages.
        Content& content = sections[section].content;
        if (writePageNumbers(content, layout.firstPages))
            laid[section].pages = PageMaker(laid[section].frame).made(content);
        laid[section].addTo(layout, static_cast<std::size_t>(count));
    }
    return layout;
}

} // namespace reports
