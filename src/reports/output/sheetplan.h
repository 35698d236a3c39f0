#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "reports/content.h"

namespace reports {

/// The content of one sheet of a workbook, in order.
struct SheetPlan {
    QString name; ///< valid in a workbook: short, without refused characters, unlike all others
    std::vector<const Block*> blocks;
    const Table* headed = nullptr; ///< the only table with heads; null if there is none or more than one
};

/// Divides a report into sheets. A long table with heads gets a sheet of its own, with the heading above it, because a
/// sheet repeats only one set of heads when printed. Columns side by side are placed one below the other. The first
/// sheet is "Report".
std::vector<SheetPlan> sheetsOf(const Content& content);

/// The text in parts that fit a cell and a row, split at line ends and blanks; at least one part.
QStringList cellTexts(const QString& text);

/// The width of a text's widest line, in digits.
double digitsWide(const QString& text);
/// The number of lines of the text in a cell of this width in digits.
int linesIn(const QString& text, double digits);

/// A mask in a spreadsheet's own form, with as many decimal places as the figure was printed with. It groups by the
/// spreadsheet's separator (a blank in South Africa) and quotes the text around the figure.
QByteArray spreadsheetFormat(const QString& mask, const QString& printed);

} // namespace reports
