#include "reports/face.h"

#include "screenkit/look.h"

namespace reports {
namespace {

QFont fontOf(double pointSize, QFont::Weight weight, bool italic) {
    QFont font;
    font.setFamilies({screenkit::look::fontFamily, "sans-serif"});
    font.setPixelSize(qRound(points(pointSize)));
    font.setWeight(weight);
    font.setItalic(italic);
    // Widths must not depend on the size at which a page is shown.
    font.setHintingPreference(QFont::PreferNoHinting);
    // An invisibly small spacing keeps letters from being joined into ligatures: "fi" read back from a PDF stays "fi".
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
    return font;
}

} // namespace

Face::Face(double pointSize, QFont::Weight weight, const QColor& colour, bool slanted)
    : font(fontOf(pointSize, weight, slanted)), ink(colour), lineHeight(points(pointSize) * 1.36), ascent(0),
      metrics(font) {
    // Centres the capitals in their line, whatever space the font itself asks for above and below.
    ascent = (lineHeight + metrics.capHeight()) / 2;
}

double Face::widthOf(const QString& text) const {
    constexpr qsizetype most = 4000; // some ten pages of figures
    if (const auto known = m_widths.constFind(text); known != m_widths.cend()) return *known;
    if (m_widths.size() >= most) m_widths.clear();
    return *m_widths.insert(text, metrics.horizontalAdvance(text));
}

const Faces& Faces::all() {
    static const Faces faces;
    return faces;
}

} // namespace reports
