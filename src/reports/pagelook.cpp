#include "reports/pagelook.h"

#include "reports/content.h"

namespace reports {

const Face& faceOf(const Block& block) {
    const Faces& faces = Faces::all();
    switch (block.kind) {
    case Block::Kind::title: return faces.title;
    case Block::Kind::lead: return faces.lead;
    case Block::Kind::heading: return faces.heading;
    case Block::Kind::note: return faces.note;
    default: return faces.body;
    }
}

const Face& faceOf(const Row& row, bool head) {
    const Faces& faces = Faces::all();
    return head ? faces.columnHead : row.result ? faces.result : faces.body;
}

double spaceBefore(const Block& block) {
    switch (block.kind) {
    case Block::Kind::heading: return points(14);
    case Block::Kind::lead: return points(1);
    case Block::Kind::table: return points(4);
    case Block::Kind::columns: return points(10);
    default: return points(6);
    }
}

double spaceAfter(const Block& block) {
    if (block.kind == Block::Kind::table) return look::afterTable;
    return block.kind == Block::Kind::lead ? points(9) : 0;
}

} // namespace reports
