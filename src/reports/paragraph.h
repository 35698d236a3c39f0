#pragma once

#include <QString>
#include <vector>

#include "reports/face.h"

namespace reports {

struct Run;

/// A text in one face within one line; its position counts from the start of the line.
struct Piece {
    double x = 0;
    QString text;
    const Face* face = nullptr;
};

struct Line {
    std::vector<Piece> pieces;
    double width = 0;
};

struct Paragraph {
    std::vector<Line> lines;
    const Face* face = nullptr; ///< determines the line height

    double height() const { return static_cast<double>(lines.size()) * face->lineHeight; }
};

/// Breaks runs of text into lines no wider than `width`, between words if possible. A heading has the same face
/// throughout; in body text a run may be bold or italic.
Paragraph broken(const std::vector<Run>& runs, const Face& face, double width);

} // namespace reports
