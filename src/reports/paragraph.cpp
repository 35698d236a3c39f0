#include "reports/paragraph.h"

#include <QTextLayout>
#include <algorithm>

#include "reports/content.h"
#include "reports/pagelook.h"

namespace reports {
namespace {

const Face& faceOf(const Run& run, const Face& base) {
    const Faces& faces = Faces::all();
    if (&base != &faces.body) return base; // headings have only one face
    return run.bold ? faces.bold : run.italic ? faces.italic : base;
}

/// Most texts are a word or a number that fits on one line; they need no line breaking.
bool fitsOneLine(const std::vector<Run>& runs, const Face& face, double width, Paragraph& paragraph) {
    if (runs.size() != 1 || runs.front().text.contains('\n') || runs.front().text.contains('\t')) return false;
    const Face& own = faceOf(runs.front(), face);
    const double advance = own.widthOf(runs.front().text);
    if (advance > width) return false;
    paragraph.lines.push_back({{{0, runs.front().text, &own}}, advance});
    return true;
}

/// Adds the pieces of a line: each text between two tabs is a piece at its own position.
void addPieces(Line& made, const QTextLine& line, const QString& text, int from, int to, const Face& face) {
    while (from < to) {
        const auto tab = static_cast<int>(text.indexOf('\t', from));
        const int end = tab < 0 ? to : std::min(tab, to);
        const QString part = text.mid(from, end - from).remove(QChar::LineSeparator);
        if (!part.isEmpty()) made.pieces.push_back({line.cursorToX(from), part, &face});
        from = end + 1;
    }
}

/// A blank before each tab: a text that ends just before a tab stop would otherwise touch the next one.
std::vector<Run> apart(std::vector<Run> runs) {
    for (Run& run : runs)
        run.text.replace('\t', " \t");
    return runs;
}

Line lineOf(const QTextLine& line, const QString& text, const std::vector<Run>& runs, const Face& base) {
    Line made{.pieces = {}, .width = line.naturalTextWidth()};
    const int lineStart = line.textStart();
    const int lineEnd = lineStart + line.textLength();
    int start = 0;
    for (const Run& run : runs) {
        const int end = start + static_cast<int>(run.text.size());
        const int from = std::max(start, lineStart);
        const int to = std::min(end, lineEnd);
        if (from < to) addPieces(made, line, text, from, to, faceOf(run, base));
        start = end;
    }
    return made;
}

} // namespace

Paragraph broken(const std::vector<Run>& given, const Face& face, double width) {
    Paragraph paragraph{.lines = {}, .face = &face};
    if (given.empty() || fitsOneLine(given, face, width, paragraph)) return paragraph;
    const std::vector<Run> runs = apart(given);
    const QString text = textOf(runs).replace('\n', QChar(QChar::LineSeparator));
    QTextLayout layout(text, face.font);
    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const Run& run : runs) {
        QTextCharFormat format;
        format.setFont(faceOf(run, face).font);
        formats.append({start, static_cast<int>(run.text.size()), format});
        start += static_cast<int>(run.text.size());
    }
    layout.setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(look::tabStop);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        paragraph.lines.push_back(lineOf(line, text, runs, face));
    }
    layout.endLayout();
    return paragraph;
}

} // namespace reports
