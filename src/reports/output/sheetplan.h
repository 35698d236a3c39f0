#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "reports/content.h"

namespace reports {

/// What one sheet of a workbook shows, in its order.
struct SheetPlan {
    QString name; ///< as a workbook takes it: short, without the letters that it refuses, unlike all others
    std::vector<const Block*> blocks;
    const Table* headed = nullptr; ///< the only table with heads; null where there is none, or several
};

/// Parts a report into sheets: a long table with heads, and the heading above it, has one of its own, since the heads
/// that a sheet repeats when it is printed stand above all of its pages. Columns side by side come one below the other.
/// The first sheet is "Report".
std::vector<SheetPlan> sheetsOf(const Content& content);

/// The text in pieces that a cell can hold and a row can show, parted at line ends and blanks; one at least.
QStringList cellTexts(const QString& text);

/// How many digits' width the widest line of a text takes.
double digitsWide(const QString& text);
/// Rows of letters that the text takes in a cell so many digits wide.
int linesIn(const QString& text, double digits);

/// A mask as a spreadsheet writes it, with as many places as the figure was printed with: groups by its own separator
/// (a blank in South Africa), the letters around the figure quoted.
QByteArray spreadsheetFormat(const QString& mask, const QString& printed);

} // namespace reports
