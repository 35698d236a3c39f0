#include <xlsxwriter.h>

#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <algorithm>

#include "reports/export.h"
#include "store/error.h"

namespace reports {
namespace {

/// A mask as a spreadsheet writes it: groups by its own separator (a blank in South Africa), the letters around the
/// figure quoted, so that a "%" there does not multiply by a hundred.
QByteArray spreadsheetFormat(const QString& mask) {
    const auto isDigit = [](QChar letter) { return letter == '#' || letter == '0'; };
    const auto first = std::find_if(mask.begin(), mask.end(), isDigit);
    const auto last = std::find_if(mask.rbegin(), mask.rend(), isDigit).base();
    if (first == mask.end()) return "General";
    const QString before(mask.begin(), first - mask.begin());
    const QString figure(first, last - first);
    const QString after(last, mask.end() - last);
    const qsizetype point = figure.indexOf('.');
    const QString whole = figure.left(point < 0 ? figure.size() : point);
    QString format = whole.contains(' ') ? (whole.endsWith('0') ? "#,##0" : "#,###") : whole;
    if (point >= 0) format += figure.mid(point);
    const auto literal = [](const QString& text) {
        return text.isEmpty() ? text : '"' + QString(text).remove('"') + '"';
    };
    return (literal(before) + format + literal(after)).toUtf8();
}

class Sheet {
public:
    Sheet(lxw_workbook* book, lxw_worksheet* sheet) : m_book(book), m_sheet(sheet) {}

    void addLines(const QStringList& lines) {
        for (const QString& line : lines)
            if (!line.isEmpty()) addText(line, nullptr);
    }

    void add(const std::vector<Block>& blocks) {
        for (const Block& block : blocks) {
            for (const auto& column : block.columns)
                add(column);
            const bool heads = block.kind == Block::Kind::title || block.kind == Block::Kind::heading;
            if (heads && m_row > 0) ++m_row;
            if (!block.runs.empty()) addText(textOf(block.runs), heads ? format({}, true, Align::left) : nullptr);
            for (const Row& row : block.table.heads)
                addRow(row, true);
            for (const Row& row : block.table.rows)
                addRow(row, row.result);
        }
    }

    void finish() { worksheet_set_column(m_sheet, 0, m_lastColumn, 22, nullptr); }

private:
    void addText(const QString& text, lxw_format* style) {
        worksheet_write_string(m_sheet, m_row++, 0, text.toUtf8().constData(), style);
    }

    void addRow(const Row& row, bool bold) {
        lxw_col_t column = 0;
        for (const Cell& cell : row.cells) {
            if (cell.number)
                worksheet_write_number(m_sheet, m_row, column, *cell.number, format(cell.mask, bold, cell.align));
            else if (!cell.runs.empty())
                worksheet_write_string(m_sheet, m_row, column, cell.text().toUtf8().constData(),
                                       format({}, bold, cell.align));
            m_lastColumn = std::max(m_lastColumn, column);
            column = static_cast<lxw_col_t>(column + cell.columns);
        }
        ++m_row;
    }

    /// One format of the book for each look, since a book holds a limited number of them.
    lxw_format* format(const QString& mask, bool bold, Align align) {
        lxw_format*& made = m_formats[mask + QChar(bold ? 'b' : ' ') + QChar('0' + static_cast<int>(align))];
        if (made) return made;
        made = workbook_add_format(m_book);
        if (!mask.isEmpty()) format_set_num_format(made, spreadsheetFormat(mask).constData());
        if (bold) format_set_bold(made);
        if (align == Align::right) format_set_align(made, LXW_ALIGN_RIGHT);
        return made;
    }

    lxw_workbook* m_book;
    lxw_worksheet* m_sheet;
    QHash<QString, lxw_format*> m_formats;
    lxw_row_t m_row = 0;
    lxw_col_t m_lastColumn = 0;
};

} // namespace

QByteArray toXlsx(const Content& content) {
    // The library writes to a named file only; the folder is ours alone and goes with the scope.
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("report.xlsx"));
    const QByteArray scratch = QFile::encodeName(folder.path());
    lxw_workbook_options options{};
    options.tmpdir = const_cast<char*>(scratch.constData()); // read only, though the library does not say so
    lxw_workbook* book = workbook_new_opt(path.constData(), &options);
    QByteArray bookTitle = documentTitle(content).toUtf8();
    lxw_doc_properties properties{};
    properties.title = bookTitle.data();
    workbook_set_properties(book, &properties);
    Sheet sheet(book, workbook_add_worksheet(book, "Report"));
    sheet.addLines(content.headerLines);
    sheet.add(content.blocks);
    sheet.addLines(content.footerLines);
    sheet.finish();
    const lxw_error failure = workbook_close(book);
    QFile file(QFile::decodeName(path));
    if (failure != LXW_NO_ERROR || !file.open(QIODevice::ReadOnly))
        throw store::Error(store::Number::deviceError, path.toStdString(), lxw_strerror(failure));
    return file.readAll();
}

} // namespace reports
