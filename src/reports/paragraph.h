#pragma once

#include <QString>
#include <vector>

#include "reports/face.h"

namespace reports {

struct Run;

/// Some text in one face on one line, measured from the line's start.
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
    const Face* face = nullptr; ///< gives the height of its lines

    double height() const { return static_cast<double>(lines.size()) * face->lineHeight; }
};

/// Runs of text broken into lines no wider than `width`, between words where that goes. A heading's face is the face of
/// all of it; in body text a run may be bold or slanted.
Paragraph broken(const std::vector<Run>& runs, const Face& face, double width);

} // namespace reports
