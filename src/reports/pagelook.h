#pragma once

#include <cstddef>

#include "reports/face.h"

namespace reports {

struct Block;
struct Cell;
struct Row;

/// The measurements of a printed page, in page units. Pages and exports share them.
namespace look {
inline constexpr double marginLeft = millimetres(20);
inline constexpr double marginRight = millimetres(20);
inline constexpr double marginTop = millimetres(14);
inline constexpr double marginBottom = millimetres(12);
inline constexpr double cellPadding = points(5);   ///< left and right of a cell's text
inline constexpr double rowPadding = points(2.0);  ///< above and below it
inline constexpr double gutter = millimetres(9);   ///< between columns of the page
inline constexpr double hairline = points(0.5);    ///< under a row and above the footer
inline constexpr double headLine = points(0.9);    ///< under column heads
inline constexpr double frameLine = points(1.2);   ///< under the header
inline constexpr double headerGap = points(4);     ///< between the header's text and its rule
inline constexpr double headGap = points(6);       ///< between that rule and the line with client and date
inline constexpr double belowHead = points(12);    ///< between that line and the text
inline constexpr double answerPadding = points(5); ///< above and below an answer, within its band
inline constexpr double aboveFooter = points(10);  ///< between the text and the footer's rule
inline constexpr double footerGap = points(5);     ///< between that rule and the footer's text
inline constexpr double afterTable = points(4);
/// Six times the text size, as in the screens' text fields: columns made with tabs line up on paper too.
inline constexpr double tabStop = points(57);
inline constexpr std::size_t rowsTogether = 4; ///< at least this many rows follow a table's heads on the same page
} // namespace look

/// The face of a block's text, or of a row's cells.
const Face& faceOf(const Block& block);
const Face& faceOf(const Row& row, bool head);
/// The face of one cell in a row of that face. A figure is never broken: if it is too wide for its column, a smaller
/// face is used, if there is one.
const Face& faceOf(const Cell& cell, const Face& row, double width);

/// The space above a block, unless it is first on its page or column, and the space below it.
double spaceBefore(const Block& block);
double spaceAfter(const Block& block);
/// The room above a block that it has at the top of a page too.
double roomAbove(const Block& block);

} // namespace reports
