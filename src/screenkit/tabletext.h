#pragma once

#include <QModelIndexList>
#include <QStringList>
#include <vector>

class QAbstractItemModel;

namespace screenkit {

/// Cells as spreadsheets put them on the clipboard: tabs between cells, a line a row, the heads above. A cell that
/// holds a tab or a line end of its own stands in quotation marks.
///
/// cells: of one model, in any order, hidden columns left out by the caller.
QString tableText(QModelIndexList cells);

/// The rows of cells that such a text holds; a text without tab and line end is one cell.
std::vector<QStringList> tableRows(const QString& text);

} // namespace screenkit
