#include "reports/pagelook.h"

#include "reports/content.h"

namespace reports {

namespace {

const Face* smaller(const Face& face) {
    const Faces& faces = Faces::all();
    if (&face == &faces.body) return &faces.small;
    if (&face == &faces.small) return &faces.smallest;
    if (&face == &faces.result) return &faces.total;
    if (&face == &faces.total) return &faces.smallTotal;
    return &face == &faces.smallTotal ? &faces.smallestTotal : nullptr;
}

} // namespace

const Face& faceOf(const Block& block) {
    const Faces& faces = Faces::all();
    switch (block.kind) {
    case Block::Kind::title: return faces.title;
    case Block::Kind::cover: return faces.cover;
    case Block::Kind::lead: return faces.lead;
    case Block::Kind::answer: return faces.answer;
    case Block::Kind::heading: return faces.heading;
    case Block::Kind::note: return faces.note;
    default: return faces.body;
    }
}

const Face& faceOf(const Row& row, bool head) {
    const Faces& faces = Faces::all();
    if (head) return faces.columnHead;
    return row.result ? faces.result : row.total ? faces.total : faces.body;
}

const Face& faceOf(const Cell& cell, const Face& row, double width) {
    const Face* face = &row;
    if (!cell.number) return row;
    const QString figure = cell.text();
    while (face->widthOf(figure) > width && smaller(*face))
        face = smaller(*face);
    return *face;
}

double spaceBefore(const Block& block) {
    switch (block.kind) {
    case Block::Kind::heading: return points(14);
    case Block::Kind::lead: return points(1);
    case Block::Kind::table: return points(4);
    case Block::Kind::columns: return points(10);
    default: return points(3);
    }
}

double roomAbove(const Block& block) { return block.kind == Block::Kind::cover ? millimetres(62) : 0; }

double spaceAfter(const Block& block) {
    if (block.kind == Block::Kind::table) return look::afterTable;
    switch (block.kind) {
    case Block::Kind::lead: return points(9);
    case Block::Kind::answer: return points(8);
    case Block::Kind::paragraph:
    case Block::Kind::note: return points(4);
    default: return 0;
    }
}

} // namespace reports
