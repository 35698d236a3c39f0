#include "screenkit/tabletext.h"

#include <QAbstractItemModel>
#include <algorithm>
#include <utility>

namespace screenkit {

namespace {

QString cellText(QString text) {
    const bool isPlain = !text.contains('\t') && !text.contains('\n') && !text.startsWith('"');
    return isPlain ? text : '"' + text.replace('"', "\"\"") + '"';
}

bool endsCell(const QString& text, qsizetype at) { return at >= text.size() || text[at] == '\t' || text[at] == '\n'; }

/// The position after the quotation mark that closes the cell beginning at `start`; -1 if there is no such mark.
qsizetype closingMark(const QString& text, qsizetype start) {
    if (text[start] != '"') return -1;
    for (qsizetype at = text.indexOf('"', start + 1); at >= 0; at = text.indexOf('"', at + 1)) {
        if (endsCell(text, at + 1)) return at + 1;
        if (text[at + 1] != '"') return -1;
        ++at;
    }
    return -1;
}

} // namespace

QString tableText(QModelIndexList cells) {
    std::sort(cells.begin(), cells.end()); // by row, then by column
    QStringList heads, lines;
    int row = -1;
    for (const QModelIndex& cell : cells) {
        const QString text = cellText(cell.data().toString());
        if (cell.row() == cells.front().row())
            heads << cellText(cell.model()->headerData(cell.column(), Qt::Horizontal).toString());
        if (std::exchange(row, cell.row()) != cell.row())
            lines << text;
        else
            lines.back() += '\t' + text;
    }
    return heads.join('\t') + '\n' + lines.join('\n');
}

std::vector<QStringList> tableRows(const QString& copied) {
    QString text = copied;
    text.replace("\r\n", "\n").replace('\r', '\n');
    if (text.endsWith('\n')) text.chop(1); // only ends the last row
    std::vector<QStringList> rows(1);
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype marked = start < text.size() ? closingMark(text, start) : -1;
        qsizetype end = marked >= 0 ? marked : start;
        while (!endsCell(text, end))
            ++end;
        const QString cell = text.mid(start, end - start);
        rows.back() << (marked >= 0 ? cell.mid(1, cell.size() - 2).replace("\"\"", "\"") : cell);
        if (end < text.size() && text[end] == '\n') rows.emplace_back();
        start = end + 1;
    }
    return rows;
}

} // namespace screenkit
