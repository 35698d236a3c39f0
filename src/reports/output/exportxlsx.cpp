#include <xlsxwriter.h>

#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <algorithm>

#include "reports/export.h"
#include "reports/face.h"
#include "reports/output/sheetplan.h"
#include "store/error.h"

namespace reports {
namespace {

constexpr double widestColumn = 60; // digits; longer texts wrap
constexpr double textWidth = 84;    // of text outside tables: as wide as a page of text
constexpr double rowHeight = 15;    // points, for the workbook's own font

lxw_color_t colourOf(const QColor& colour) { return colour.rgb() & 0xffffff; }

/// The look of a cell, independent of its figure.
enum class Look { text, small, title, heading, answer, head, result, row };

/// The workbook's formats, one for each look, since a workbook may hold only a limited number.
class Formats {
public:
    explicit Formats(lxw_workbook* book) : m_book(book) {}

    lxw_format* get(Look look, Align align = Align::left, const QByteArray& number = {}) {
        const QByteArray key = number + '|' + QByteArray::number(static_cast<int>(look) * 4 + static_cast<int>(align));
        lxw_format*& made = m_made[key];
        if (!made) made = newFormat(look, align, number);
        return made;
    }

private:
    lxw_format* newFormat(Look look, Align align, const QByteArray& number) const {
        lxw_format* format = workbook_add_format(m_book);
        if (!number.isEmpty()) format_set_num_format(format, number.constData());
        format_set_text_wrap(format);
        format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
        format_set_align(format, align == Align::right    ? LXW_ALIGN_RIGHT
                                 : align == Align::centre ? LXW_ALIGN_CENTER
                                                          : LXW_ALIGN_LEFT);
        const bool plain = look == Look::text || look == Look::small || look == Look::row;
        if (!plain) {
            format_set_bold(format);
            format_set_font_color(format, colourOf(ink::strong));
        }
        if (look == Look::title || look == Look::answer) format_set_font_size(format, 14);
        if (look == Look::heading) format_set_font_size(format, 12);
        if (look == Look::small) format_set_font_size(format, 9);
        if (look == Look::head) format_set_bg_color(format, colourOf(ink::headBand));
        if (look == Look::result) format_set_bg_color(format, colourOf(ink::resultBand));
        if (look == Look::head || look == Look::result || look == Look::row) {
            format_set_bottom(format, LXW_BORDER_THIN);
            format_set_bottom_color(format, colourOf(look == Look::head ? ink::strong : ink::hairline));
        }
        return format;
    }

    lxw_workbook* m_book;
    QHash<QByteArray, lxw_format*> m_made;
};

class Sheet {
public:
    Sheet(lxw_worksheet* sheet, Formats& formats, const SheetPlan& plan)
        : m_sheet(sheet), m_formats(formats), m_plan(plan) {
        measureColumns();
    }

    void addLines(const QStringList& lines) {
        for (const QString& line : lines)
            if (!line.isEmpty()) addText(line, Look::small);
    }

    void addBlocks() {
        for (const Block* block : m_plan.blocks) {
            const bool gap = block->kind == Block::Kind::table || block->kind == Block::Kind::heading;
            if (gap && m_row > 0 && !m_afterHeading) ++m_row;
            m_afterHeading = block->kind == Block::Kind::heading;
            if (block->kind == Block::Kind::pageBreak && m_row > 0) m_pageBreaks.push_back(m_row);
            if (block->kind == Block::Kind::table)
                addTable(block->table);
            else if (!block->runs.empty())
                addText(textOf(block->runs), lookOf(block->kind));
        }
    }

    /// Prints on A4, fitted to the page's width, with repeated heads and the page number at the bottom.
    void finish() {
        for (std::size_t column = 0; column < m_widths.size(); ++column) {
            const auto at = static_cast<lxw_col_t>(column);
            worksheet_set_column(m_sheet, at, at, m_widths[column], nullptr);
        }
        constexpr std::uint8_t a4 = 9;
        worksheet_set_paper(m_sheet, a4);
        if (widthOf(0, m_widths.size()) > 1.5 * textWidth) worksheet_set_landscape(m_sheet);
        worksheet_fit_to_pages(m_sheet, 1, 0);
        worksheet_set_footer(m_sheet, "&RPage &P of &N");
        m_pageBreaks.push_back(0); // the end of the list
        worksheet_set_h_pagebreaks(m_sheet, m_pageBreaks.data());
    }

private:
    static Look lookOf(Block::Kind kind) {
        switch (kind) {
        case Block::Kind::cover:
        case Block::Kind::title: return Look::title;
        case Block::Kind::heading: return Look::heading;
        case Block::Kind::note: return Look::small;
        case Block::Kind::answer: return Look::answer;
        default: return Look::text;
        }
    }

    /// Makes each column as wide as its own cells need; then adds space at the right for texts as wide as a page.
    void measureColumns() {
        for (const Block* block : m_plan.blocks) {
            m_widths.resize(std::max(m_widths.size(), block->table.widths.size()), 8);
            for (const auto* rows : {&block->table.heads, &block->table.rows})
                for (const Row& row : *rows)
                    measureRow(row);
        }
        if (m_widths.empty()) m_widths = {textWidth};
        while (widthOf(0, m_widths.size()) < textWidth)
            m_widths.push_back(std::min(10.0, textWidth + 1 - widthOf(0, m_widths.size())));
    }

    void measureRow(const Row& row) {
        std::size_t column = 0;
        for (const Cell& cell : row.cells) {
            if (cell.columns == 1 && column < m_widths.size()) {
                const double wanted = digitsWide(cell.text()) * 1.2 + 2; // heads and results are bold
                m_widths[column] = std::max(m_widths[column], cell.number ? wanted : std::min(wanted, widestColumn));
            }
            column += static_cast<std::size_t>(cell.columns);
        }
    }

    double widthOf(std::size_t from, std::size_t columns) const {
        double width = 0;
        for (std::size_t column = from; column < std::min(from + columns, m_widths.size()); ++column)
            width += m_widths[column];
        return width;
    }

    void addText(const QString& text, Look look) {
        for (const QString& part : cellTexts(text)) {
            writeAcross(part, 0, m_widths.size(), m_formats.get(look));
            const double size = look == Look::title || look == Look::answer ? 1.4 : 1.0;
            setHeight(static_cast<int>(std::ceil(linesIn(part, widthOf(0, m_widths.size()) / size) * size)));
            ++m_row;
        }
    }

    /// Writes a text across several columns. They are merged, so that the text covers no other cell.
    void writeAcross(const QString& text, std::size_t column, std::size_t columns, lxw_format* format) {
        const auto first = static_cast<lxw_col_t>(column);
        const auto last = static_cast<lxw_col_t>(column + columns - 1);
        if (columns > 1) worksheet_merge_range(m_sheet, m_row, first, m_row, last, "", format);
        if (text.isEmpty())
            worksheet_write_blank(m_sheet, m_row, first, format);
        else
            worksheet_write_string(m_sheet, m_row, first, text.toUtf8().constData(), format);
    }

    /// A row of one line keeps the default height.
    void setHeight(int lines) {
        constexpr double highest = 409;
        if (lines > 1) worksheet_set_row(m_sheet, m_row, std::min(lines * rowHeight, highest), nullptr);
    }

    void addTable(const Table& table) {
        const lxw_row_t first = m_row;
        for (const Row& row : table.heads)
            addRow(row, Look::head);
        if (&table == m_plan.headed && m_row > first) {
            worksheet_repeat_rows(m_sheet, first, m_row - 1);
            if (m_plan.blocks.back()->table.rows.size() == table.rows.size() && m_plan.blocks.size() <= 2)
                worksheet_freeze_panes(m_sheet, m_row, 0); // the table has this sheet to itself
        }
        for (const Row& row : table.rows)
            addRow(row, row.result || row.total ? Look::result : Look::row);
    }

    /// A row whose texts are too long for one row continues in the rows below.
    void addRow(const Row& row, Look look) {
        std::vector<QStringList> texts;
        qsizetype most = 1;
        for (const Cell& cell : row.cells) {
            texts.push_back(cellTexts(cell.text()));
            most = std::max(most, texts.back().size());
        }
        for (qsizetype part = 0; part < most; ++part) {
            std::size_t column = 0;
            int lines = 1;
            for (std::size_t index = 0; index < row.cells.size() && column < m_widths.size(); ++index) {
                const Cell& cell = row.cells[index];
                const auto wanted = static_cast<std::size_t>(std::max(cell.columns, 1));
                const std::size_t columns = std::min(wanted, m_widths.size() - column);
                const QString text = texts[index].value(part);
                writeCell(cell, part == 0, text, column, columns, look);
                if (!cell.number) lines = std::max(lines, linesIn(text, widthOf(column, columns)));
                column += columns;
            }
            setHeight(lines);
            ++m_row;
        }
    }

    void writeCell(const Cell& cell, bool whole, const QString& text, std::size_t column, std::size_t columns,
                   Look look) {
        const auto at = static_cast<lxw_col_t>(column);
        if (columns > 1) writeAcross(text, column, columns, m_formats.get(look, cell.align));
        if (whole && cell.number && !text.isEmpty()) {
            lxw_format* format = m_formats.get(look, cell.align, spreadsheetFormat(cell.mask, text));
            worksheet_write_number(m_sheet, m_row, at, *cell.number, format);
        } else if (constexpr int firstYear = 1900; whole && cell.date.year() > firstYear) { // a spreadsheet's first
            lxw_datetime day{cell.date.year(), cell.date.month(), cell.date.day(), 0, 0, 0};
            worksheet_write_datetime(m_sheet, m_row, at, &day, m_formats.get(look, cell.align, "dd/mm/yyyy"));
        } else if (columns == 1) {
            writeAcross(text, column, columns, m_formats.get(look, cell.align));
        }
    }

    lxw_worksheet* m_sheet;
    Formats& m_formats;
    const SheetPlan& m_plan;
    std::vector<double> m_widths; ///< of the columns, in digits
    lxw_row_t m_row = 0;
    std::vector<lxw_row_t> m_pageBreaks; ///< above these rows
    bool m_afterHeading = false;
};

void addSheets(lxw_workbook* book, const Content& content) {
    Formats formats(book);
    bool first = true;
    for (const SheetPlan& plan : sheetsOf(content)) {
        Sheet sheet(workbook_add_worksheet(book, plan.name.toUtf8().constData()), formats, plan);
        if (first) sheet.addLines(content.headerLines + QStringList{content.headOf(true), content.date});
        sheet.addBlocks();
        if (first) sheet.addLines(content.footerLines);
        sheet.finish();
        first = false;
    }
}

} // namespace

QByteArray toXlsx(const Content& content) {
    // The library writes only to a named file; this private folder is removed at the end of the scope.
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("report.xlsx"));
    const QByteArray scratch = QFile::encodeName(folder.path());
    lxw_workbook_options options{};
    options.tmpdir = const_cast<char*>(scratch.constData()); // the library reads it only, though not declared const
    lxw_workbook* book = workbook_new_opt(path.constData(), &options);
    QByteArray bookTitle = documentTitle(content).toUtf8();
    QByteArray author = practiceOf(content.headerLines).toUtf8();
    lxw_doc_properties properties{};
    properties.title = bookTitle.data();
    properties.author = author.data();
    workbook_set_properties(book, &properties);
    addSheets(book, content);
    const lxw_error failure = workbook_close(book);
    QFile file(QFile::decodeName(path));
    if (failure != LXW_NO_ERROR || !file.open(QIODevice::ReadOnly))
        throw store::Error(store::Number::deviceError, path.toStdString(), lxw_strerror(failure));
    return file.readAll();
}

} // namespace reports
