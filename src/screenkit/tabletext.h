#pragma once

#include <QModelIndexList>
#include <QStringList>
#include <vector>

class QAbstractItemModel;

namespace screenkit {

/// Cells as spreadsheets put them on the clipboard: tabs between cells, one line for each row, the heads first. A cell
/// that contains a tab or a line break is put in quotation marks.
///
/// cells: of one model, in any order; the caller leaves out hidden columns.
QString tableText(QModelIndexList cells);

/// The rows of cells in such a text; a text without tab and line break is one cell.
std::vector<QStringList> tableRows(const QString& text);

} // namespace screenkit
